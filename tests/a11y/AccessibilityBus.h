#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include "a11y/AccessibleObject.h"
#include "support/Process.h"

namespace penwright::test {

/// A session bus of its own for one test process and, behind it, the bus of screen readers. Programs started from here
/// on speak on it. To be made when DISPLAY and HOME are set.
class AccessibilityBus : public QObject {
    Q_OBJECT

public:
    AccessibilityBus();
    ~AccessibilityBus() override;

    /// What holds all programs.
    AccessibleObject desktop() const;

    /// What was told last to have the focus: `role "name" = "value" (description)`; "" before anything was.
    std::string focus();

    /// How many descriptions have changed, each of which may be spoken.
    int changedDescriptions();

    /// What a reader would say from now on, a line for each: what gets the focus, once, as `focus` tells it, and what
    /// is new in the description of what has it, as `now (description)`.
    void beginToTell() { m_told.clear(); }
    std::string told();

    /// How often something was told to have the focus, the same thing again included.
    int timesFocused();

    /// How often something was told of a text in a box that had not been told to have the focus.
    int textsBeforeFocus();

private slots:
    void caretMoved(const QDBusMessage &event);
    void stateChanged(const QDBusMessage &event);
    void propertyChanged(const QDBusMessage &event);

private:
    std::string focusText() const;

    Process m_session;
    QDBusConnection m_bus;
    QString m_focusService;
    QString m_focusPath;
    int m_changedDescriptions = 0;
    int m_timesFocused = 0;
    int m_textsBeforeFocus = 0;
    std::string m_told;
};

}  // namespace penwright::test
