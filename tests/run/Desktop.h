#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "support/Process.h"
#include "support/Xvfb.h"

namespace penwright::test {

/// What a user does at the display, and sees there.

inline std::string xdotool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    Process process(arguments);
    const std::string output = process.readAll();
    process.waitForEnd();
    return output;
}

inline void typeKeys(const std::vector<std::string> &keys)
{
    std::vector<std::string> arguments{"key", "--clearmodifiers"};
    arguments.insert(arguments.end(), keys.begin(), keys.end());
    xdotool(arguments);
}

/// The number of the window that is on the screen under exactly this title, "" when none comes.
inline std::string windowTitled(const std::string &title, Milliseconds bound = 60s)
{
    std::string pattern = "^";
    for (const char c : title)
        pattern.append(std::string("()*+.?[]").find(c) == std::string::npos ? "" : "\\").push_back(c);
    std::string window;
    waitUntil(
        [&] {
            std::istringstream(xdotool({"search", "--onlyvisible", "--name", pattern + "$"})) >> window;
            return !window.empty();
        },
        bound);
    return window;
}

/// Gives a window the keyboard: by a key of the window manager's, or past nobody where there is none. Some window
/// managers give it back to the window that they turned to last when it is taken unasked.
inline void turnTo(const std::string &window)
{
    xdotool({managerAskedFor().empty() ? "windowfocus" : "windowactivate", "--sync", window});
}

/// Waits for a window with this title, gives it the keyboard and presses keys there. False when no such window comes.
inline bool pressIn(const std::string &title, const std::vector<std::string> &keys)
{
    const std::string window = windowTitled(title);
    if (window.empty())
        return false;
    turnTo(window);
    typeKeys(keys);
    return true;
}

}  // namespace penwright::test
