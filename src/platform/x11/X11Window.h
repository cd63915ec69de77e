#pragma once

#include <cstdint>
#include <optional>

#include "platform/HostEmbedding.h"

/// Windows of the X11 display by their numbers, this program's own and others', in exact pixels. Where the toolkit does
/// not run on X11, routines answer empty and change nothing. A number that names no window is no error anywhere.
namespace penwright::x11 {

using WindowId = std::uint32_t;

/// The display's clock, in milliseconds.
using Time = std::uint32_t;

inline constexpr Time kNoTime = 0;

/// The later of two times; one that is no time is earlier than any.
Time laterOf(Time one, Time other);

bool available();

bool exists(WindowId window);

/// The number of a window's parent; 0 for a root window and for a number that names none.
WindowId parentOf(WindowId window);

bool isRoot(WindowId window);

/// The window that a window manager knows and that `window` lives in; without a manager, the one below the root.
WindowId topLevelOf(WindowId window);

/// Asks for the events that tell of a window's end and of the keyboard focus that it gets and loses; false when the
/// number names none.
bool watch(WindowId window);

/// Moves and sizes within the parent, shown or hidden. Sizes below 1 and what the protocol cannot carry are clamped.
void place(WindowId window, int x, int y, PixelSize size);

std::optional<PixelSize> sizeOf(WindowId window);

void raise(WindowId window);

/// Whether a window and all windows that it lives in are mapped.
bool isViewable(WindowId window);

/// Gives a window the keyboard focus, which goes to its parent when the window goes; one that is not viewable does not
/// get it. `time` is that of the press which asked for it: the display ignores a request that is older than the last
/// change of the focus. No time is the time at which the request arrives.
void focus(WindowId window, Time time = kNoTime);

/// The window that has the keyboard focus; 0 for none.
WindowId focused();

/// The window that the keyboard focus is in and that a window manager knows; 0 for none.
WindowId focusedManaged();

/// When its user pressed something in a top-level window last, as the window itself tells its window manager.
Time userTimeOf(WindowId topLevel);

/// Whether the pointer is over a window, and over none of the window's own descendants that `but` is, or that lives in
/// it.
bool isPointerOver(WindowId window, WindowId but);

/// Has the display tell of each press of a mouse button, in whatever window.
void watchPresses();

/// A press that an event tells of.
struct Press {
    Time time;
    bool isAnywhere;  ///< told because of watchPresses; a press in a window of this program is told as such too
};

/// The press that an event of the display, as native event filters get it, tells of.
std::optional<Press> pressOf(const void *event);

/// Whether a mouse button is held at this moment, wherever the pointer is.
bool isButtonHeld();

}  // namespace penwright::x11
