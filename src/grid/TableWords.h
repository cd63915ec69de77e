#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "grid/TableText.h"

namespace penwright {

/// How a text is read, in a sentence: "Tabs between cells, decimal point, no thousands sign."
std::string readingWords(const TableReading &reading);

/// What was read, in a sentence: how many angles, from where to where, and in which direction of the text, and how many
/// values.
std::string contentWords(const TableContent &table, const TableReading &reading);

/// The part of a text that is shown first, for a long one: some 200,000 bytes, whole lines.
std::string_view firstPart(std::string_view text);

/// One line of a text as a separator cuts it.
struct CutLine {
    std::size_t number = 0;  ///< of the text's lines, counted from 1
    std::vector<std::string> cells;
};

/// The first lines of a text behind those that are skipped, and some around one of them, `line`, which is 0 for none.
std::vector<CutLine> cutLines(std::string_view text, const TableReading &reading, std::size_t line);

}  // namespace penwright
