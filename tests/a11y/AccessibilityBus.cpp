#include "a11y/AccessibilityBus.h"

#include <cstdlib>
#include <QCoreApplication>
#include <stdexcept>

namespace penwright::test {
namespace {

constexpr auto kSession = "session";
constexpr auto kReaders = "readers";

/// The address of the bus of screen readers, which the session bus starts when it is asked for it.
QString readersAddress(const std::string &session)
{
    const QDBusMessage answer =
        QDBusConnection::connectToBus(QString::fromStdString(session), kSession)
            .call(QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
    if (answer.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error("no bus of screen readers: " + answer.errorMessage().toStdString());
    return answer.arguments().front().toString();
}

QDBusConnection startReadersBus(Process &sessionBus)
{
    const auto session = sessionBus.readLine();
    if (!session)
        throw std::runtime_error("the session bus does not start");
    setenv("DBUS_SESSION_BUS_ADDRESS", session->c_str(), 1);
    setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
    return QDBusConnection::connectToBus(readersAddress(*session), kReaders);
}

}  // namespace

AccessibilityBus::AccessibilityBus()
    : m_session({"dbus-daemon", "--session", "--nofork", "--print-address=1"}, {}, Process::Errors::Dropped),
      m_bus(startReadersBus(m_session))
{
    // Programs tell only what somebody has asked for.
    for (const QString event :
         {"object:state-changed:focused", "object:property-change:accessible-description", "object:text-caret-moved"}) {
        QDBusMessage wish = QDBusMessage::createMethodCall("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                                                           "org.a11y.atspi.Registry", "RegisterEvent");
        wish.setArguments({event});
        m_bus.call(wish);
    }
    m_bus.connect({}, {}, "org.a11y.atspi.Event.Object", "StateChanged", this, SLOT(stateChanged(QDBusMessage)));
    m_bus.connect({}, {}, "org.a11y.atspi.Event.Object", "TextCaretMoved", this, SLOT(caretMoved(QDBusMessage)));
    m_bus.connect({}, {}, "org.a11y.atspi.Event.Object", "PropertyChange", this, SLOT(propertyChanged(QDBusMessage)));
}

AccessibilityBus::~AccessibilityBus()
{
    QDBusConnection::disconnectFromBus(kReaders);
    QDBusConnection::disconnectFromBus(kSession);
}

AccessibleObject AccessibilityBus::desktop() const
{
    return {m_bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
}

std::string AccessibilityBus::focus()
{
    QCoreApplication::processEvents();
    return focusText();
}

std::string AccessibilityBus::told()
{
    QCoreApplication::processEvents();
    return m_told;
}

std::string AccessibilityBus::focusText() const
{
    if (m_focusPath.isEmpty())
        return {};
    const AccessibleObject object(m_bus, m_focusService, m_focusPath);
    if (!object.exists())
        return {};
    try {
        return (object.roleName() + " \"" + object.name() + '"' +
                (object.has("Text") ? " = \"" + object.text() + '"' : "") +
                (object.description().isEmpty() ? "" : " (" + object.description() + ')'))
            .toStdString();
    } catch (const std::runtime_error &) {  // it has gone while it was asked
        return {};
    }
}

void AccessibilityBus::stateChanged(const QDBusMessage &event)
{
    if (event.arguments().size() < 2 || event.arguments()[0] != "focused" || event.arguments()[1].toInt() != 1)
        return;
    const bool isNew = m_focusService != event.service() || m_focusPath != event.path();
    m_focusService = event.service();
    m_focusPath = event.path();
    ++m_timesFocused;
    if (isNew)
        m_told += focusText() + "\n";
}

int AccessibilityBus::timesFocused()
{
    QCoreApplication::processEvents();
    return m_timesFocused;
}

int AccessibilityBus::textsBeforeFocus()
{
    QCoreApplication::processEvents();
    return m_textsBeforeFocus;
}

void AccessibilityBus::caretMoved(const QDBusMessage &event)
{
    if (event.service() != m_focusService || event.path() != m_focusPath)
        ++m_textsBeforeFocus;
}

int AccessibilityBus::changedDescriptions()
{
    QCoreApplication::processEvents();
    return m_changedDescriptions;
}

void AccessibilityBus::propertyChanged(const QDBusMessage &event)
{
    if (event.arguments().isEmpty() || event.arguments()[0] != "accessible-description")
        return;
    ++m_changedDescriptions;
    if (event.service() == m_focusService && event.path() == m_focusPath)
        m_told += "now (" + AccessibleObject(m_bus, m_focusService, m_focusPath).description().toStdString() + ")\n";
}

}  // namespace penwright::test
