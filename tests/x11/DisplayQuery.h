#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <xcb/xcb.h>

#include "platform/Freed.h"

namespace penwright::test {

struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Rectangle &) const = default;
    friend std::ostream &operator<<(std::ostream &out, const Rectangle &r)
    {
        return out << r.x << "," << r.y << " " << r.width << "x" << r.height;
    }
};

/// What the display itself says of windows, over a connection that the toolkit knows nothing of.
class DisplayQuery {
public:
    DisplayQuery() : m_connection(xcb_connect(nullptr, nullptr)) {}
    DisplayQuery(const DisplayQuery &) = delete;
    DisplayQuery &operator=(const DisplayQuery &) = delete;
    ~DisplayQuery() { xcb_disconnect(m_connection); }

    std::uint32_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root; }

    std::uint32_t parentOf(std::uint32_t window) const
    {
        const auto reply = freed(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
        return reply ? reply->parent : 0;
    }

    /// The children of a window from the lowest to the topmost.
    std::vector<std::uint32_t> childrenOf(std::uint32_t window) const
    {
        const auto reply = freed(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
        if (!reply)
            return {};
        const auto *first = xcb_query_tree_children(reply.get());
        return {first, first + xcb_query_tree_children_length(reply.get())};
    }

    /// Place in the parent, and size, in pixels.
    Rectangle geometryOf(std::uint32_t window) const
    {
        const auto reply = freed(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        return reply ? Rectangle{reply->x, reply->y, reply->width, reply->height} : Rectangle{};
    }

    /// Place on the screen, whatever frames the window lies in, and size, in pixels.
    Rectangle onScreen(std::uint32_t window) const
    {
        const Rectangle place = geometryOf(window);
        const auto asked = xcb_translate_coordinates(m_connection, window, root(), 0, 0);
        const auto reply = freed(xcb_translate_coordinates_reply(m_connection, asked, nullptr));
        return reply ? Rectangle{reply->dst_x, reply->dst_y, place.width, place.height} : Rectangle{};
    }

    bool isMapped(std::uint32_t window) const { return mapStateOf(window) != int(XCB_MAP_STATE_UNMAPPED); }
    bool isViewable(std::uint32_t window) const { return mapStateOf(window) == int(XCB_MAP_STATE_VIEWABLE); }

    std::uint32_t focus() const
    {
        const auto reply = freed(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        return reply ? reply->focus : 0;
    }

    /// The top-level window that the window manager says its user works with, 0 for none.
    std::uint32_t activeWindow() const
    {
        const char name[] = "_NET_ACTIVE_WINDOW";
        const auto asked = xcb_intern_atom(m_connection, 1, sizeof name - 1, name);
        const auto atom = freed(xcb_intern_atom_reply(m_connection, asked, nullptr));
        return atom ? windowIn(root(), atom->atom) : 0;
    }

    std::uint32_t transientFor(std::uint32_t window) const { return windowIn(window, XCB_ATOM_WM_TRANSIENT_FOR); }

private:
    std::uint32_t windowIn(std::uint32_t window, xcb_atom_t property) const
    {
        const auto cookie = xcb_get_property(m_connection, 0, window, property, XCB_ATOM_WINDOW, 0, 1);
        const auto reply = freed(xcb_get_property_reply(m_connection, cookie, nullptr));
        if (!reply || xcb_get_property_value_length(reply.get()) != 4)
            return 0;
        return *static_cast<std::uint32_t *>(xcb_get_property_value(reply.get()));
    }

    int mapStateOf(std::uint32_t window) const
    {
        const auto reply = freed(
            xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
        return reply ? static_cast<int>(reply->map_state) : 0;
    }

    xcb_connection_t *m_connection;
};

}  // namespace penwright::test
