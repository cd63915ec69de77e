#pragma once

class QKeyEvent;

namespace penwright {

/// Whether a key is a Tab that is the grid's, forward or back.
bool isTab(const QKeyEvent &event);

/// Whether an Enter or a Tab goes on; with Shift it goes back.
bool isForward(const QKeyEvent &event);

/// F4 and Alt+Down.
bool opensList(const QKeyEvent &event);

/// Ctrl+Shift+Up and Ctrl+Shift+Down: they extend the selection to the first and the last row.
bool selectsToEnd(const QKeyEvent &event);

/// The keys that a line of text has no use for: they commit and go on to move in the grid.
bool movesRows(const QKeyEvent &event);

}  // namespace penwright
