#pragma once

namespace penwright {

/// Takes the toolkit's messages through a filter, once for the process: the line about dialogs over an embedded window
/// is dropped, a fatal one ends the process with status 1 after one line on stderr, all others go on as before.
void installMessageFilter();

}  // namespace penwright
