#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace penwright {

/// The line end that a text begins with, "\r\n", "\n" or "\r": how many characters it has, 0 for none.
std::size_t lineEndLength(std::string_view text);

/// The text without the one line end that it may end with.
std::string_view withoutLastLineEnd(std::string_view text);

/// The number of the line, counted from 1, that the end of the text stands in.
std::size_t lineNumberBehind(std::string_view text);

/// The text in one line: line ends at its end go, as spreadsheets put one behind a cell; each one before it becomes a
/// blank.
std::string inOneLine(std::string_view text);

}  // namespace penwright
