#pragma once

#include <cstdint>
#include <optional>

#include "platform/HostEmbedding.h"

/// Windows of the X11 display by their numbers, this program's own and others', in exact pixels. Where the toolkit does
/// not run on X11, routines answer empty and change nothing. A number that names no window is no error anywhere.
namespace penwright::x11 {

using WindowId = std::uint32_t;

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

/// Gives a window the keyboard focus; one that is not viewable does not get it.
void focus(WindowId window);

/// The window that has the keyboard focus; 0 for none.
WindowId focused();

/// Whether a mouse button is held at this moment, wherever the pointer is.
bool isButtonHeld();

}  // namespace penwright::x11
