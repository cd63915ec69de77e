#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QObject>

class QWidget;

namespace penwright {

/// Sees to it that keys go where the host's user looks. The wizard is another program's window within the host's: no
/// toolkit takes the keyboard back from it, and a window manager knows the host's window alone.
class HostKeyboard : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    /// The host takes the keyboard at each press in `window`.
    explicit HostKeyboard(QWidget &window);

    /// Gives the keyboard to the wizard in a host window, if there is one.
    static void giveToWizardIn(xcb_window_t host);

    /// Takes the keyboard if the wizard in a host window had it and is gone, or nobody has it.
    void takeFrom(xcb_window_t host);

    /// Keeps from the toolkit that the keyboard has come to a window in one of its own, which it would take for its
    /// own: the host would be shown, and said by a screen reader, as what is typed into.
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void take(xcb_timestamp_t time);

    QWidget &m_window;
};

}  // namespace penwright
