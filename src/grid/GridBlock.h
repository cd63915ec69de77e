#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace penwright {

/// The texts of a block of cells, line by line; lines may differ in length.
using GridLines = std::vector<std::vector<std::string>>;

/// Whether a text from the clipboard holds several cells, as spreadsheets hand them over.
bool isGridBlock(std::string_view text);

/// The cells of tab-delimited lines. Lines end with "\r\n" or "\n", and a last line end adds no line.
/// Empty lines and columns behind the last text are left out; a block of empty cells alone is taken as it is.
GridLines splitGridBlock(std::string_view text);

}  // namespace penwright
