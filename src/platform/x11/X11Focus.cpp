#include "platform/x11/X11Focus.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

namespace penwright {
namespace {

using namespace std::chrono_literals;

/// How long a window manager is given to turn to a dialog or to the help window.
constexpr auto kManagersTime = 200ms;

/// How long a window manager that is busy may hand the focus to the host after the wizard has taken it.
constexpr auto kContested = 2s;
constexpr int kMostTakenBack = 3;  // whoever takes it more often would go on for ever
constexpr x11::WindowId kNoWindow = ~x11::WindowId(0);

void activateModal()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    modal->raise();
    modal->activateWindow();
    // Where the X focus never left the dialog, the display reports no change that would correct the toolkit's belief.
    QApplication::setActiveWindow(modal);
}

}  // namespace

ForeignWindows::ForeignWindows() = default;
ForeignWindows::~ForeignWindows() = default;

QWindow *ForeignWindows::of(x11::WindowId window)
{
    std::unique_ptr<QWindow> &foreign = m_windows[window];
    if (!foreign)
        foreign.reset(QWindow::fromWinId(window));
    return foreign.get();
}

X11Focus::X11Focus(QWidget &window, ForeignWindows &foreign)
    : m_window(&window), m_foreign(foreign), m_presses([this] { onPress(); })
{
    qApp->installEventFilter(this);
    qApp->installNativeEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &X11Focus::onFocusWindow);
}

void X11Focus::setHost(x11::WindowId host)
{
    m_host = host;
    m_takeWhenExposed = false;
    // A dialog blocks the windows it shares a top-level window with; for the wizard that leads through its host.
    const x11::WindowId top = host ? x11::topLevelOf(host) : 0;
    m_hostTop = top;
    m_heldIt = false;
    if (top)
        x11::watch(top);
    if (top && top != host)
        m_foreign.of(host)->setTransientParent(m_foreign.of(top));
}

void X11Focus::take()
{
    if (!m_host || !m_window || !m_window->isVisible() || QApplication::activeModalWidget())
        return;
    const auto self = static_cast<x11::WindowId>(m_window->winId());
    m_isTakeDue = false;
    m_takeWhenExposed = !x11::isViewable(self);
    // Taken again it would count as taken later than a key that is on its way, and what that key opens would not get
    // it.
    if (x11::focused() != self)
        takeInTime(self);
    // Where the X focus never left the wizard, the display reports nothing that would tell the toolkit so.
    if (!m_takeWhenExposed)
        m_window->activateWindow();
}

// With the time of the press that asked for it: after a later one, what a window manager does about that press or an
// earlier one would be ignored. The display ignores a request that is itself too old, as one is where nobody pressed
// anything.
void X11Focus::takeInTime(x11::WindowId self)
{
    const x11::Time time = x11::laterOf(m_presses.time(), x11::userTimeOf(m_hostTop));
    if (time != x11::kNoTime)
        x11::focus(self, time);
    if (x11::focused() != self)
        x11::focus(self);
}

void X11Focus::takeUnlessElsewhere()
{
    if (!hasAnotherProgramTakenIt())
        take();
}

bool X11Focus::hasIt() const
{
    return m_host && m_window && x11::focused() == static_cast<x11::WindowId>(m_window->winId());
}

bool X11Focus::hasAnotherProgramTakenIt() const
{
    const x11::WindowId holder = x11::focusedManaged();
    return holder != 0 && holder != m_hostTop && !QWidget::find(holder);
}

void X11Focus::letGo()
{
    if (hasIt())
        x11::focus(m_hostTop, x11::laterOf(m_presses.time(), x11::userTimeOf(m_hostTop)));
    if (hasIt())
        x11::focus(m_hostTop);
}

// A host that does not see to it itself would have its user's next keys go to the wizard. With the time of the press
// alone: the display ignores it where the host has given the wizard the focus since, as at a click on the wizard's tab.
void X11Focus::onPress()
{
    if (!m_host || !m_window)
        return;
    const auto self = static_cast<x11::WindowId>(m_window->winId());
    if (!x11::isPointerOver(self, kNoWindow))
        m_contested = QDeadlineTimer();  // who presses elsewhere means it, in a list over the host's window, too
    if (!x11::isPointerOver(m_hostTop, self))
        return;
    m_heldIt = false;  // the host is meant, and what it takes is not taken back
    if (hasIt())
        x11::focus(m_hostTop, x11::laterOf(m_presses.time(), x11::userTimeOf(m_hostTop)));
}

bool X11Focus::eventFilter(QObject *object, QEvent *event)
{
    if (!m_host || !m_window)
        return false;
    // The toolkit tells its top-level windows, and a window in another one is none for it.
    if (object == qApp && event->type() == QEvent::ApplicationPaletteChange)
        QCoreApplication::sendEvent(m_window->windowHandle(), event);
    if (object == m_window || object == m_window->windowHandle())
        onOwnWindow(event->type());
    else if (object->isWidgetType())
        onOtherWindow(static_cast<QWidget &>(*object), event->type());
    return false;
}

void X11Focus::onOwnWindow(QEvent::Type type)
{
    // Each comes to the widget, to its native window or to both; to take the focus twice is to take it once.
    if (type == QEvent::MouseButtonPress) {
        m_due = nullptr;  // who presses the wizard under a window that has just opened means the wizard
        contest();
        take();
    } else if (type == QEvent::Show)
        takeSoon();
    else if (type == QEvent::Expose && m_takeWhenExposed)
        takeAtOnceShown();
}

// A window manager that turns to the host's window as it comes back may do so after the wizard was given the focus.
void X11Focus::takeAtOnceShown()
{
    contest();
    take();
}

void X11Focus::contest()
{
    m_contested.setRemainingTime(kContested);
    m_mayTakeBack = kMostTakenBack;
}

// Once for what tells of one showing: a user may have pressed elsewhere before the next one is heard.
void X11Focus::takeSoon()
{
    m_isTakeDue = true;
    QTimer::singleShot(0, this, [this] {
        if (m_isTakeDue)
            take();
    });
}

void X11Focus::onOtherWindow(QWidget &other, QEvent::Type type)
{
    const bool isTurnedTo = type == QEvent::Show || type == QEvent::ZOrderChange;
    if ((!isTurnedTo && type != QEvent::Hide) || !other.isWindow() || !other.windowHandle())
        return;
    if (other.windowType() == Qt::Dialog)
        onDialog(other, type);
    else if (other.windowType() == Qt::Window && isTurnedTo)
        giveSoonTo(other);  // the help window, asked for
    else if (other.windowType() == Qt::Window && other.windowHandle() == m_lastFocused)
        takeBack();  // the help window, closed by its user
}

void X11Focus::onDialog(QWidget &dialog, QEvent::Type type)
{
    if (type == QEvent::Hide)
        return takeBack();
    if (type == QEvent::Show) {
        dialog.windowHandle()->setTransientParent(m_foreign.of(x11::topLevelOf(m_host)));
        giveSoonTo(dialog);
    }
}

// A window manager that counts by its own last press may find itself ignored where it gives a window the focus.
void X11Focus::giveSoonTo(QWidget &other)
{
    m_due = &other;
    QTimer::singleShot(kManagersTime, &other, [this, &other] {
        if (m_due == &other && other.isVisible() && hasIt())
            x11::focus(static_cast<x11::WindowId>(other.winId()));
    });
}

void X11Focus::takeBack()
{
    contest();
    QTimer::singleShot(0, this, [this] {
        activateModal();
        takeUnlessElsewhere();
    });
}

void X11Focus::onFocusWindow(QWindow *focused)
{
    if (focused)
        m_lastFocused = focused;
    if (!m_window)
        return;
    // A click on the blocked wizard still makes the toolkit believe that the wizard is active.
    if (focused == m_window->windowHandle() && QApplication::activeModalWidget())
        QTimer::singleShot(0, this, activateModal);
    // A window manager that notices late that a window is gone gives the focus to the host after it was taken here.
    else if (m_host && !focused && isContested())
        QTimer::singleShot(0, this, [this] {  // behind a press of the host that has been seen before
            if (!isContested())
                return;
            --m_mayTakeBack;
            take();
        });
}

bool X11Focus::isContested() const
{
    return m_mayTakeBack > 0 && !m_contested.hasExpired() && hasHostTakenIt();
}

bool X11Focus::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (!m_hostTop || eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_focus_in_event_t *>(message);
    const int type = event->response_type & 0x7f;
    const bool isFocus = type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT;
    const bool isOfGrab = event->mode == XCB_NOTIFY_MODE_GRAB || event->mode == XCB_NOTIFY_MODE_UNGRAB;
    // Where no window has the focus, those under the pointer are told that keys come to them: nobody gave it to them.
    const bool isOfPointer = event->detail == XCB_NOTIFY_DETAIL_POINTER;
    if (!isFocus || isOfGrab || isOfPointer)
        return false;
    if (event->event == m_hostTop)
        onHostFocus(type == XCB_FOCUS_IN, event->detail);
    else if (type == XCB_FOCUS_IN && m_window && event->event == static_cast<x11::WindowId>(m_window->winId()))
        m_heldIt = true;  // who has it now may be another already
    return false;
}

// A window manager gives the focus to the host's window and knows nothing of the wizard in it.
void X11Focus::onHostFocus(bool gets, int detail)
{
    const bool isBetweenBoth = detail == XCB_NOTIFY_DETAIL_INFERIOR;
    const bool isHostsOwn = detail == XCB_NOTIFY_DETAIL_NONLINEAR || detail == XCB_NOTIFY_DETAIL_ANCESTOR;
    if (gets ? !isBetweenBoth && !isHostsOwn : isBetweenBoth)  // something in the host's window gets it
        m_heldIt = hasIt();
    else if (gets ? isBetweenBoth : isHostsOwn)  // the host takes it from the wizard, or loses what was its own
        m_heldIt = false;
    else if (gets && m_heldIt && !x11::isButtonHeld())
        QTimer::singleShot(0, this, [this] {
            if (m_heldIt)  // no press on the host has been heard of meanwhile
                takeUnlessElsewhere();
        });
}

// A user who clicks on the host means it, and still holds the button when the focus goes.
bool X11Focus::hasHostTakenIt() const
{
    const x11::WindowId holder = x11::focused();
    return holder != 0 && x11::topLevelOf(holder) == x11::topLevelOf(m_host) && !x11::isButtonHeld();
}

}  // namespace penwright
