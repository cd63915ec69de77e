#pragma once

#include <string>
#include <string_view>

namespace penwright {

/// The clipboard's plain text, empty when it has none or its owner does not answer within the toolkit's bound.
/// Error 7, out of memory, when it is far longer than any table that a page can hold.
std::string readClipboardText();

/// Puts plain text on the clipboard, and nothing else.
void writeClipboardText(std::string_view text);

}  // namespace penwright
