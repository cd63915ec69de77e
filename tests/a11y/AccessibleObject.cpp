#include "a11y/AccessibleObject.h"

#include <algorithm>
#include <array>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <stdexcept>

namespace penwright::test {
namespace {

constexpr auto kAccessible = "org.a11y.atspi.Accessible";
constexpr auto kTable = "org.a11y.atspi.Table";

/// By their numbers on the bus.
constexpr std::array kStates{"invalid",         "active",
                             "armed",           "busy",
                             "checked",         "collapsed",
                             "defunct",         "editable",
                             "enabled",         "expandable",
                             "expanded",        "focusable",
                             "focused",         "has-tooltip",
                             "horizontal",      "iconified",
                             "modal",           "multi-line",
                             "multiselectable", "opaque",
                             "pressed",         "resizable",
                             "selectable",      "selected",
                             "sensitive",       "showing",
                             "single-line",     "stale",
                             "transient",       "vertical",
                             "visible",         "manages-descendants",
                             "indeterminate",   "required",
                             "truncated",       "animated",
                             "invalid-entry",   "supports-autocompletion",
                             "selectable-text", "is-default",
                             "visited",         "checkable",
                             "has-popup",       "read-only"};

constexpr std::array kRelations{"null",        "label-for",        "labelled-by",     "controller-for", "controlled-by",
                                "member-of",   "tooltip-for",      "child-of",        "parent-of",      "extended",
                                "flows-to",    "flows-from",       "subwindow-of",    "embeds",         "embedded-by",
                                "popup-for",   "parent-window-of", "description-for", "described-by",   "details",
                                "details-for", "error-message",    "error-for"};

struct Reference {
    QString service;
    QDBusObjectPath path;
};

const QDBusArgument &operator>>(const QDBusArgument &from, Reference &reference)
{
    from.beginStructure();
    from >> reference.service >> reference.path;
    from.endStructure();
    return from;
}

std::vector<Reference> references(const QDBusArgument &from)
{
    std::vector<Reference> all;
    from.beginArray();
    while (!from.atEnd()) {
        from >> all.emplace_back();
    }
    from.endArray();
    return all;
}

}  // namespace

AccessibleObject::AccessibleObject(QDBusConnection bus, QString service, QString path)
    : m_bus(std::move(bus)), m_service(std::move(service)), m_path(std::move(path))
{
}

bool AccessibleObject::exists() const
{
    return m_bus.call(QDBusMessage::createMethodCall(m_service, m_path, kAccessible, "GetRole")).type() ==
           QDBusMessage::ReplyMessage;
}

QVariant AccessibleObject::call(const QString &interface, const QString &method, const QVariantList &arguments) const
{
    QDBusMessage question = QDBusMessage::createMethodCall(m_service, m_path, interface, method);
    question.setArguments(arguments);
    const QDBusMessage answer = m_bus.call(question, QDBus::Block, 20000);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty())
        throw std::runtime_error((m_path + " " + method + ": " + answer.errorMessage()).toStdString());
    return answer.arguments().front();
}

QVariant AccessibleObject::property(const QString &interface, const QString &name) const
{
    return call("org.freedesktop.DBus.Properties", "Get", {interface, name}).value<QDBusVariant>().variant();
}

AccessibleObject AccessibleObject::referred(const QVariant &answer) const
{
    Reference reference;
    answer.value<QDBusArgument>() >> reference;
    return {m_bus, reference.service, reference.path.path()};
}

QString AccessibleObject::roleName() const
{
    return call(kAccessible, "GetRoleName").toString();
}

std::vector<AccessibleObject> AccessibleObject::children() const
{
    std::vector<AccessibleObject> all;
    for (const Reference &reference : references(call(kAccessible, "GetChildren").value<QDBusArgument>()))
        all.emplace_back(m_bus, reference.service, reference.path.path());
    return all;
}

bool AccessibleObject::has(const QString &interface) const
{
    return call(kAccessible, "GetInterfaces").toStringList().contains("org.a11y.atspi." + interface);
}

std::vector<std::string> AccessibleObject::states() const
{
    const QDBusArgument words = call(kAccessible, "GetState").value<QDBusArgument>();
    std::vector<std::string> all;
    words.beginArray();
    for (std::size_t first = 0; !words.atEnd(); first += 32) {
        quint32 word = 0;
        words >> word;
        for (std::size_t bit = 0; bit < 32; ++bit)
            if (word & (1U << bit))
                all.emplace_back(kStates.at(first + bit));
    }
    words.endArray();
    return all;
}

bool AccessibleObject::is(const std::string &state) const
{
    const auto all = states();
    return std::find(all.begin(), all.end(), state) != all.end();
}

std::vector<std::pair<std::string, std::vector<QString>>> AccessibleObject::relations() const
{
    std::vector<std::pair<std::string, std::vector<QString>>> all;
    const QDBusArgument list = call(kAccessible, "GetRelationSet").value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        quint32 kind = 0;
        list.beginStructure();
        list >> kind;
        auto &[name, targets] = all.emplace_back(kRelations.at(kind), std::vector<QString>());
        for (const Reference &reference : references(list))
            targets.push_back(AccessibleObject(m_bus, reference.service, reference.path.path()).name());
        list.endStructure();
    }
    list.endArray();
    return all;
}

QString AccessibleObject::text() const
{
    return call("org.a11y.atspi.Text", "GetText", {0, -1}).toString();
}

AccessibleObject AccessibleObject::cell(int row, int column) const
{
    return referred(call(kTable, "GetAccessibleAt", {row, column}));
}

AccessibleObject AccessibleObject::rowHeader(int row) const
{
    return referred(call(kTable, "GetRowHeader", {row}));
}

AccessibleObject AccessibleObject::columnHeader(int column) const
{
    return referred(call(kTable, "GetColumnHeader", {column}));
}

}  // namespace penwright::test
