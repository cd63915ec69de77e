#pragma once

#include <QAbstractNativeEventFilter>
#include <QDeadlineTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <map>
#include <memory>

#include "platform/x11/PressWatch.h"
#include "platform/x11/X11Window.h"

namespace penwright {

/// The toolkit's stand-ins for windows of other processes, one for each number. The stand-in that an own window was
/// made a child of owns that window: it must outlive it.
class ForeignWindows {
public:
    ForeignWindows();
    ~ForeignWindows();
    QWindow *of(x11::WindowId window);

private:
    std::map<x11::WindowId, std::unique_ptr<QWindow>> m_windows;
};

/// Keyboard focus, stacking and palette of a window that is embedded in another process's. For such a window the
/// toolkit only believes that it is active: the X focus is moved here, on a mouse press, when the window is shown, when
/// a dialog or the help window ends, and when the host's window gets the focus back from another program that got it
/// from the wizard. A press on the rest of the host's window, and the wizard's end, give it to the host. Dialogs get
/// the host's top-level window as their transient parent, so that they stay above it.
class X11Focus : public QObject, public QAbstractNativeEventFilter {
public:
    X11Focus(QWidget &window, ForeignWindows &foreign);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    /// The window that the wizard is embedded in, 0 while it is in none: then everything here rests.
    void setHost(x11::WindowId host);

    /// Takes the focus unless a dialog is open or the wizard is not shown. A wizard whose host is not on the screen
    /// takes it once it is.
    void take();

    /// Gives the focus to the host's window if the wizard has it.
    void letGo();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void onOwnWindow(QEvent::Type type);
    void onOtherWindow(QWidget &other, QEvent::Type type);
    void onDialog(QWidget &dialog, QEvent::Type type);
    void giveSoonTo(QWidget &other);
    void takeSoon();
    void takeAtOnceShown();
    void contest();
    void takeBack();
    void takeInTime(x11::WindowId self);
    void takeUnlessElsewhere();
    bool hasIt() const;
    bool hasAnotherProgramTakenIt() const;
    void onPress();
    void onHostFocus(bool gets, int detail);
    void onFocusWindow(QWindow *focused);
    bool hasHostTakenIt() const;
    bool isContested() const;

    QPointer<QWidget> m_window;  ///< events still pass through here while it is being destroyed
    ForeignWindows &m_foreign;
    PressWatch m_presses;
    x11::WindowId m_host = 0;
    x11::WindowId m_hostTop = 0;
    bool m_heldIt = false;            ///< whether the wizard, not the host itself, had the focus last of the two
    QPointer<QWindow> m_lastFocused;  ///< of this program's windows
    QPointer<QWidget> m_due;          ///< the dialog or help window that gets the focus soon if nobody gives it
    bool m_takeWhenExposed = false;
    bool m_isTakeDue = false;    ///< since it was shown
    QDeadlineTimer m_contested;  ///< until then a window manager may hand the host the focus that is the wizard's
    int m_mayTakeBack = 0;       ///< how often it is taken back until then
};

}  // namespace penwright
