#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace penwright {

/// A block of cells, rows from 1 and columns from 0, both ends included; row 0 where there is none.
struct GridBlock {
    int firstRow = 0;
    int firstColumn = 0;
    int lastRow = 0;
    int lastColumn = 0;
};

/// The texts of a block of cells, line by line; lines may differ in length.
using GridLines = std::vector<std::vector<std::string>>;

/// What a text from the clipboard is for an open editor: the text of its one cell, whatever line end stands behind it.
/// Nothing when it holds several cells, as spreadsheets hand them over.
std::optional<std::string> textOfOneCell(std::string_view text);

/// The cells of tab-delimited lines. Lines end with "\r\n", "\n" or "\r", and a last line end adds no line.
/// No cell holds a line end: what stands in quotes because it has one comes in one line, without the quotes.
/// Empty lines and columns behind the last text are left out; a block of empty cells alone is taken as it is.
GridLines splitGridBlock(std::string_view text);

/// The number of texts in the longest line.
std::size_t widestLine(const GridLines &lines);

}  // namespace penwright
