#pragma once

struct xcb_connection_t;

namespace penwright {

/// To be made before QApplication, and to outlive it. Chooses Qt's `xcb` platform unless QT_QPA_PLATFORM names another,
/// because only X11 lets a window live inside another process's window; so a Wayland platform, which many export for
/// all their programs, counts only where there is no X display. It sees to it that a platform that cannot be
/// loaded ends the program with one line on stderr and status 1 instead of an abort. It stays connected: a display
/// whose only client goes may start anew and refuse the next one for a moment.
class Display {
public:
    /// `program` is the name that lines on stderr begin with.
    explicit Display(const char *program = "PenwrightPE");
    ~Display();
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    /// False, with one line on stderr, when the X display cannot be opened.
    bool isUsable() const { return m_isUsable; }

private:
    xcb_connection_t *m_connection = nullptr;
    bool m_isUsable = true;
};

}  // namespace penwright
