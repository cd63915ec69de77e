#include "platform/x11/X11Window.h"

#include <algorithm>
#include <cstring>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include "platform/Freed.h"

namespace penwright::x11 {
namespace {

xcb_connection_t *connection()
{
    const auto *native = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return native ? native->connection() : nullptr;
}

Freed<xcb_query_tree_reply_t> treeOf(WindowId window)
{
    xcb_connection_t *c = connection();
    return Freed<xcb_query_tree_reply_t>(c ? xcb_query_tree_reply(c, xcb_query_tree(c, window), nullptr) : nullptr);
}

xcb_atom_t atom(const char *name)
{
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const Freed<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection(), xcb_intern_atom(connection(), 1, length, name), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool hasProperty(WindowId window, xcb_atom_t property)
{
    const auto cookie = xcb_get_property(connection(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 0);
    const Freed<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection(), cookie, nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

// A window may be gone before a request about it arrives; the toolkit would print the error.
void sendIgnoringErrors(xcb_void_cookie_t cookie)
{
    xcb_discard_reply(connection(), cookie.sequence);
    xcb_flush(connection());
}

}  // namespace

bool available()
{
    return connection() != nullptr;
}

bool exists(WindowId window)
{
    return treeOf(window) != nullptr;
}

WindowId parentOf(WindowId window)
{
    const auto tree = treeOf(window);
    return tree ? tree->parent : 0;
}

bool isRoot(WindowId window)
{
    const auto tree = treeOf(window);
    return tree && tree->root == window;
}

WindowId topLevelOf(WindowId window)
{
    if (!available())
        return 0;
    const xcb_atom_t managed = atom("WM_STATE");
    WindowId belowRoot = window;
    for (WindowId climbed = window; climbed != 0 && !isRoot(climbed); climbed = parentOf(climbed)) {
        if (managed != XCB_ATOM_NONE && hasProperty(climbed, managed))
            return climbed;
        belowRoot = climbed;
    }
    return belowRoot;
}

bool watch(WindowId window)
{
    xcb_connection_t *c = connection();
    if (!c)
        return false;
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_FOCUS_CHANGE;
    const auto cookie = xcb_change_window_attributes_checked(c, window, XCB_CW_EVENT_MASK, &mask);
    return Freed<xcb_generic_error_t>(xcb_request_check(c, cookie)) == nullptr;
}

void place(WindowId window, int x, int y, PixelSize size)
{
    if (!available())
        return;
    const auto offset = [](int value) { return static_cast<std::uint32_t>(std::clamp(value, -32768, 32767)); };
    const auto extent = [](int value) { return static_cast<std::uint32_t>(std::clamp(value, 1, 32767)); };
    const std::uint32_t values[] = {offset(x), offset(y), extent(size.width), extent(size.height)};
    constexpr std::uint16_t mask =
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT;
    sendIgnoringErrors(xcb_configure_window_checked(connection(), window, mask, values));
}

std::optional<PixelSize> sizeOf(WindowId window)
{
    xcb_connection_t *c = connection();
    if (!c)
        return std::nullopt;
    const Freed<xcb_get_geometry_reply_t> reply(xcb_get_geometry_reply(c, xcb_get_geometry(c, window), nullptr));
    return reply ? std::optional(PixelSize{reply->width, reply->height}) : std::nullopt;
}

void raise(WindowId window)
{
    if (!available())
        return;
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    sendIgnoringErrors(xcb_configure_window_checked(connection(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above));
}

bool isViewable(WindowId window)
{
    xcb_connection_t *c = connection();
    if (!c)
        return false;
    const Freed<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

void focus(WindowId window)
{
    if (!available())
        return;
    const auto cookie = xcb_set_input_focus_checked(connection(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    sendIgnoringErrors(cookie);
}

WindowId focused()
{
    xcb_connection_t *c = connection();
    if (!c)
        return 0;
    const Freed<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    return reply && reply->focus != XCB_INPUT_FOCUS_POINTER_ROOT ? reply->focus : 0;
}

bool isButtonHeld()
{
    xcb_connection_t *c = connection();
    if (!c)
        return false;
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
    const Freed<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(c, xcb_query_pointer(c, root), nullptr));
    return reply && (reply->mask & (XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3)) != 0;
}

}  // namespace penwright::x11
