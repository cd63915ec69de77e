#pragma once

namespace penwright {

/// Takes the toolkit's messages through a filter, once for the process: the line about dialogs over an embedded window
/// and those about platforms that cannot be loaded are dropped, a fatal one ends the process with status 1 after one
/// line on stderr, which begins with the name of the program, all others go on as before.
void installMessageFilter(const char *program = "PenwrightPE");

}  // namespace penwright
