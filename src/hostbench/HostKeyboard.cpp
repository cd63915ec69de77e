#include "hostbench/HostKeyboard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include "platform/Freed.h"

namespace penwright {
namespace {

/// The toolkit's connection; none on another platform, whose window numbers are none of the display's.
xcb_connection_t *display()
{
    return QGuiApplication::platformName() == "xcb"
               ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection()
               : nullptr;
}

xcb_window_t focused()
{
    const Freed<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(display(), xcb_get_input_focus(display()), nullptr));
    return focus ? focus->focus : xcb_window_t(XCB_WINDOW_NONE);
}

/// The window in a window, which is the wizard's: the stand-in host puts nothing of its own there.
xcb_window_t childOf(xcb_window_t window)
{
    const Freed<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(display(), xcb_query_tree(display(), window), nullptr));
    return tree && xcb_query_tree_children_length(tree.get()) > 0 ? xcb_query_tree_children(tree.get())[0]
                                                                  : xcb_window_t(XCB_WINDOW_NONE);
}

// A window that is gone, or not on the screen, is no error here.
void focus(xcb_window_t window, xcb_timestamp_t time)
{
    const auto cookie = xcb_set_input_focus_checked(display(), XCB_INPUT_FOCUS_PARENT, window, time);
    xcb_discard_reply(display(), cookie.sequence);
    xcb_flush(display());
}

}  // namespace

HostKeyboard::HostKeyboard(QWidget &window) : QObject(&window), m_window(window)
{
    qApp->installEventFilter(this);
    qApp->installNativeEventFilter(this);
}

void HostKeyboard::giveToWizardIn(xcb_window_t host)
{
    const xcb_window_t wizard = display() ? childOf(host) : xcb_window_t(XCB_WINDOW_NONE);
    if (wizard != XCB_WINDOW_NONE)
        focus(wizard, XCB_CURRENT_TIME);
}

void HostKeyboard::takeFrom(xcb_window_t host)
{
    if (!display())
        return;
    const xcb_window_t holder = focused();
    if (holder <= XCB_INPUT_FOCUS_POINTER_ROOT || holder == host || holder == childOf(host))
        take(XCB_CURRENT_TIME);
}

void HostKeyboard::take(xcb_timestamp_t time)
{
    if (display())
        focus(static_cast<xcb_window_t>(m_window.winId()), time);
}

bool HostKeyboard::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_focus_in_event_t *>(message);
    const bool isBelow =
        event->detail == XCB_NOTIFY_DETAIL_VIRTUAL || event->detail == XCB_NOTIFY_DETAIL_NONLINEAR_VIRTUAL;
    return (event->response_type & 0x7f) == XCB_FOCUS_IN && isBelow;
}

bool HostKeyboard::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress || !object->isWidgetType())
        return false;
    // The toolkit tells a press to each widget on the way; the first one takes the keyboard.
    const auto &pressed = static_cast<QWidget &>(*object);
    if (pressed.window() == &m_window && display() && focused() != static_cast<xcb_window_t>(m_window.winId()))
        take(static_cast<xcb_timestamp_t>(static_cast<QMouseEvent *>(event)->timestamp()));
    return false;
}

}  // namespace penwright
