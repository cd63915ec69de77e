#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <QSize>
#include <QString>
#include <vector>

namespace penwright {

/// A connection of its own to the X display, as any other program on the desktop has: it sees windows, their titles and
/// the keyboard focus, and presses keys.
class XDisplay {
public:
    XDisplay();
    ~XDisplay();
    XDisplay(const XDisplay &) = delete;
    XDisplay &operator=(const XDisplay &) = delete;

    /// Whether there is a display and it lets programs press keys.
    bool isUsable() const { return m_isUsable; }

    std::vector<xcb_window_t> children(xcb_window_t window) const;

    /// The window's title (_NET_WM_NAME), "" when it has none.
    QString title(xcb_window_t window) const;

    /// The window's size in pixels, empty when there is no such window.
    QSize size(xcb_window_t window) const;

    /// The title of the window that has the keyboard focus, or of the nearest one around it that has a title.
    QString focusedTitle() const;

    /// Presses and releases one key, `modifier` held around it when it is not 0. Both are X11 key symbols.
    /// False when the keyboard has no such key.
    bool pressKey(std::uint32_t keySymbol, std::uint32_t modifier = 0);

    /// The first character of `text` for which the keyboard has no key, "" when it has all.
    QString untypable(const QString &text) const;

    /// Types a text that has no such character.
    void type(const QString &text);

private:
    struct Key {
        xcb_keycode_t code;
        bool isShifted;
    };
    std::optional<Key> keyFor(std::uint32_t keySymbol) const;
    void sendKey(std::uint8_t event, xcb_keycode_t code);
    xcb_window_t parent(xcb_window_t window) const;

    xcb_connection_t *m_display = nullptr;
    bool m_isUsable = false;
    std::vector<xcb_keysym_t> m_symbols;  ///< row by row, m_perKey for each key
    int m_perKey = 0;
    xcb_keycode_t m_firstKey = 0;
};

/// X11 key symbols.
inline constexpr std::uint32_t kKeyTab = 0xff09;
inline constexpr std::uint32_t kKeyReturn = 0xff0d;
inline constexpr std::uint32_t kKeyShift = 0xffe1;
inline constexpr std::uint32_t kKeyControl = 0xffe3;
inline constexpr std::uint32_t kKeyAlt = 0xffe9;
inline constexpr std::uint32_t kKeyUp = 0xff52;
inline constexpr std::uint32_t kKeyRight = 0xff53;
inline constexpr std::uint32_t kKeyDown = 0xff54;
inline constexpr std::uint32_t kKeySpace = 0x20;

}  // namespace penwright
