#pragma once

#include <xcb/xcb.h>

namespace penwright::x11 {

/// The toolkit's connection to the display; none where it does not run on X11.
xcb_connection_t *connection();

/// Sends a request about a window that may be gone before it arrives; the toolkit would print the error.
void sendIgnoringErrors(xcb_void_cookie_t cookie);

}  // namespace penwright::x11
