// A host application reduced to its window: it makes one, prints "window <number> <number of its top-level window>" and
// obeys one command a line on standard input, each answered by one line. With the argument "nested" the host window is
// a child of the top-level window.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>

#include <xcb/xcb.h>

namespace {

class Host {
public:
    explicit Host(bool nested) : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection))
            std::exit(1);
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_top = makeWindow(m_screen->root, 100, 80, 820, 620);
        m_host = nested ? makeWindow(m_top, 10, 10, 800, 600) : m_top;
        xcb_map_window(m_connection, m_top);
        if (nested)
            xcb_map_window(m_connection, m_host);
        sync();
    }
    Host(const Host &) = delete;
    Host &operator=(const Host &) = delete;
    ~Host() { xcb_disconnect(m_connection); }

    std::uint32_t window() const { return m_host; }
    std::uint32_t topWindow() const { return m_top; }

    /// False when the command is to end.
    bool obey(const std::string &line)
    {
        std::istringstream in(line);
        std::string word;
        std::uint32_t first = 0;
        std::uint32_t second = 0;
        in >> word >> first >> second;
        const std::uint32_t values[] = {first, second};
        if (word == "move")
            xcb_configure_window(m_connection, m_top, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values);
        else if (word == "resize")
            xcb_configure_window(m_connection, m_top, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
        else if (word == "map")
            xcb_map_window(m_connection, m_top);
        else if (word == "unmap")
            xcb_unmap_window(m_connection, m_top);
        else if (word == "takefocus")
            xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_top, first);  // 0 is the current time
        else if (word == "leavefocus")
            xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, XCB_INPUT_FOCUS_POINTER_ROOT, XCB_CURRENT_TIME);
        else if (word == "usertime")
            setUserTime(m_top, first);
        else if (word == "usertimeapart")
            setUserTimeApart(first);
        else if (word == "destroy")
            xcb_destroy_window(m_connection, m_top);
        sync();
        return word != "quit";
    }

private:
    std::uint32_t makeWindow(std::uint32_t parent, std::int16_t x, std::int16_t y, std::uint16_t width,
                             std::uint16_t height)
    {
        const std::uint32_t id = xcb_generate_id(m_connection);
        const std::uint32_t background = m_screen->white_pixel;
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, id, parent, x, y, width, height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, m_screen->root_visual, XCB_CW_BACK_PIXEL, &background);
        const char title[] = "Bare host";
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, id, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                            std::strlen(title), title);
        return id;
    }

    /// Tells when the user pressed something in the window last.
    void setUserTime(std::uint32_t window, std::uint32_t time)
    {
        setNumber(window, "_NET_WM_USER_TIME", XCB_ATOM_CARDINAL, time);
    }

    /// Tells so on a window that is there for this alone.
    void setUserTimeApart(std::uint32_t time)
    {
        const std::uint32_t keeper = makeWindow(m_top, 0, 0, 1, 1);
        setUserTime(keeper, time);
        setNumber(m_top, "_NET_WM_USER_TIME_WINDOW", XCB_ATOM_WINDOW, keeper);
    }

    void setNumber(std::uint32_t window, const std::string &property, xcb_atom_t type, std::uint32_t number)
    {
        const auto asked =
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(property.size()), property.c_str());
        xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(m_connection, asked, nullptr);
        if (!atom)
            std::exit(1);
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom->atom, type, 32, 1, &number);
        std::free(atom);
    }

    /// Returns once the server has obeyed.
    void sync() { std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr)); }

    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen = nullptr;
    std::uint32_t m_top = 0;
    std::uint32_t m_host = 0;
};

}  // namespace

int main(int count, char **arguments)
{
    Host host(count > 1 && std::string(arguments[1]) == "nested");
    std::cout << "window " << host.window() << " " << host.topWindow() << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        if (!host.obey(line))
            break;
        std::cout << "done" << std::endl;
    }
}
