#include "platform/x11/X11Window.h"

#include <algorithm>
#include <cstring>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include "platform/Freed.h"
#include "platform/x11/Connection.h"

namespace penwright::x11 {
namespace {

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

/// A number that a property holds; 0 where there is none.
std::uint32_t numberIn(WindowId window, const char *property)
{
    const xcb_atom_t name = atom(property);
    if (name == XCB_ATOM_NONE)
        return 0;
    const auto cookie = xcb_get_property(connection(), 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    const Freed<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection(), cookie, nullptr));
    std::uint32_t number = 0;
    if (reply && reply->format == 32 && xcb_get_property_value_length(reply.get()) == sizeof number)
        std::memcpy(&number, xcb_get_property_value(reply.get()), sizeof number);
    return number;
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

namespace {

struct TopLevel {
    WindowId window = 0;
    bool isManaged = false;
};

TopLevel climbFrom(WindowId window)
{
    const xcb_atom_t managed = atom("WM_STATE");
    TopLevel top{window};
    for (WindowId climbed = window; climbed != 0 && !isRoot(climbed); climbed = parentOf(climbed)) {
        top.window = climbed;
        if (managed != XCB_ATOM_NONE && hasProperty(climbed, managed))
            return {climbed, true};
    }
    return top;
}

}  // namespace

WindowId topLevelOf(WindowId window)
{
    return available() ? climbFrom(window).window : 0;
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

void focus(WindowId window, Time time)
{
    if (!available())
        return;
    const xcb_timestamp_t asked = time == kNoTime ? XCB_CURRENT_TIME : time;
    sendIgnoringErrors(xcb_set_input_focus_checked(connection(), XCB_INPUT_FOCUS_PARENT, window, asked));
}

WindowId focused()
{
    xcb_connection_t *c = connection();
    if (!c)
        return 0;
    const Freed<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    return reply && reply->focus != XCB_INPUT_FOCUS_POINTER_ROOT ? reply->focus : 0;
}

WindowId focusedManaged()
{
    const WindowId holder = focused();
    const TopLevel top = holder ? climbFrom(holder) : TopLevel{};
    return top.isManaged ? top.window : 0;
}

Time userTimeOf(WindowId topLevel)
{
    if (!available())
        return kNoTime;
    // Some toolkits keep it apart, so that the window manager is not woken by every change of the window's own.
    const WindowId keeper = numberIn(topLevel, "_NET_WM_USER_TIME_WINDOW");
    return numberIn(keeper ? keeper : topLevel, "_NET_WM_USER_TIME");
}

bool isPointerOver(WindowId window, WindowId but)
{
    xcb_connection_t *c = connection();
    if (!c)
        return false;
    bool isOver = false;
    WindowId deeper = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
    while (deeper != 0 && deeper != but) {
        isOver = isOver || deeper == window;
        const Freed<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(c, xcb_query_pointer(c, deeper), nullptr));
        deeper = reply ? reply->child : 0;
    }
    return isOver && deeper != but;
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
