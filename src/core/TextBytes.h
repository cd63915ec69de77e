#pragma once

#include <string>
#include <string_view>

namespace penwright {

/// Whether the bytes are well-formed UTF-8, ASCII among it.
bool isUtf8(std::string_view bytes);

/// Whether the bytes begin with the mark of UTF-16, in either order of its bytes.
bool hasUtf16Mark(std::string_view bytes);

/// The bytes without the marks of UTF-8 that they may begin with: a program that adds one need not see another.
std::string_view withoutUtf8Mark(std::string_view bytes);

/// The text of a file or of the clipboard, as UTF-8 without a mark: of UTF-16 with a mark, of UTF-8 with or without
/// one, and of anything else as Latin-1, with the signs that Windows puts where Latin-1 has none. There is no failure:
/// half a character of UTF-16 becomes U+FFFD, an odd last byte is left out.
std::string utf8Text(std::string_view bytes);

/// A part of a file as UTF-8: of UTF-8, and of anything else as Latin-1, as above. A mark is a character like any
/// other.
std::string utf8Part(std::string_view bytes);

/// A word of a text or file as a message shows it: in quotes, in UTF-8, with "?" for control characters, and with "..."
/// for what is beyond 30 bytes.
std::string shownWord(std::string_view bytes);

}  // namespace penwright
