#pragma once

#include <string>
#include <string_view>

namespace penwright {

/// Whether a byte of a UTF-8 text goes on with a character rather than beginning one.
bool isContinuation(char byte);

/// The number of characters of a UTF-8 text, counted as code points.
int codePointCount(std::string_view text);

/// The longest beginning of a text that has at most `bytes` bytes, cut between characters.
std::string_view withinBytes(std::string_view text, std::size_t bytes);

/// A code point in UTF-8.
std::string codePointText(char32_t codePoint);

/// The text without its first character; "" stays "". Of a text that is no UTF-8 at least one byte goes, and no more
/// than the first byte announces.
std::string_view withoutFirstCodePoint(std::string_view text);

}  // namespace penwright
