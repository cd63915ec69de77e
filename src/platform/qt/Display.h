#pragma once

namespace penwright {

/// To be called before QApplication is made. Chooses Qt's `xcb` platform unless QT_QPA_PLATFORM is set, because only
/// X11 lets a window live inside another process's window, and sees to it that a platform that cannot be loaded ends
/// the program with one line on stderr and status 1 instead of an abort.
/// Returns false, with one line on stderr, when the X display cannot be opened.
bool prepareDisplay();

}  // namespace penwright
