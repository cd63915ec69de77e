#pragma once

#include <QDBusConnection>
#include <string>
#include <utility>
#include <vector>

namespace penwright::test {

/// One object that a program exposes to screen readers, asked over the accessibility bus as a screen reader asks.
class AccessibleObject {
public:
    AccessibleObject(QDBusConnection bus, QString service, QString path);

    QString name() const { return property("org.a11y.atspi.Accessible", "Name").toString(); }
    QString description() const { return property("org.a11y.atspi.Accessible", "Description").toString(); }
    QString roleName() const;
    std::vector<AccessibleObject> children() const;

    /// Whether it has an interface, as "Text" or "Table".
    bool has(const QString &interface) const;

    /// The names of its states, from the table that readers share.
    std::vector<std::string> states() const;
    bool is(const std::string &state) const;

    /// The relations by their names, each with the names of the objects that it leads to.
    std::vector<std::pair<std::string, std::vector<QString>>> relations() const;

    QString text() const;
    int rows() const { return property("org.a11y.atspi.Table", "NRows").toInt(); }
    int columns() const { return property("org.a11y.atspi.Table", "NColumns").toInt(); }
    AccessibleObject cell(int row, int column) const;
    AccessibleObject rowHeader(int row) const;
    AccessibleObject columnHeader(int column) const;

    /// Whether it is still there.
    bool exists() const;

private:
    QVariant property(const QString &interface, const QString &name) const;
    QVariant call(const QString &interface, const QString &method, const QVariantList &arguments = {}) const;
    AccessibleObject referred(const QVariant &answer) const;

    QDBusConnection m_bus;
    QString m_service;
    QString m_path;
};

}  // namespace penwright::test
