#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "grid/TableReading.h"

namespace penwright {

/// How far above the first line of numbers the line of angles stands at most, with lines of units between them.
inline constexpr std::size_t kLinesAbove = 3;

/// One of the first lines of a text, cut into cells.
struct SampleLine {
    std::size_t number = 0;  ///< of the text's lines, counted from 1
    std::vector<std::string_view> cells;
    bool isFull = false;  ///< all cells are numbers, the first perhaps blank or an angle
};

/// The beginning of a text, from which is guessed how all of it is read, cut at one separator. Refers to the text.
struct TableSample {
    TableSeparator separator = TableSeparator::Tab;
    std::vector<SampleLine> lines;
    std::size_t width = 0;  ///< cells of most lines of numbers, 0 when there is none
    std::size_t first = 0;  ///< place of the first of those lines, counted from 0

    std::size_t fullLines = 0;  ///< how many full lines have `width` cells
};

/// The sample cut at the separator that makes a table of it.
TableSample tableSample(std::string_view sample);

}  // namespace penwright
