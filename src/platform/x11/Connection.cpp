#include "platform/x11/Connection.h"

#include <QGuiApplication>

namespace penwright::x11 {

xcb_connection_t *connection()
{
    const auto *native = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return native ? native->connection() : nullptr;
}

void sendIgnoringErrors(xcb_void_cookie_t cookie)
{
    xcb_discard_reply(connection(), cookie.sequence);
    xcb_flush(connection());
}

}  // namespace penwright::x11
