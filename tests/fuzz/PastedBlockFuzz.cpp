#include "fuzz/Fuzz.h"
#include "grid/GridBlock.h"
#include "pages/candela/PastedValues.h"

using namespace penwright;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text = test::textOf(data, size);
    const GridLines lines = splitGridBlock(text);
    for (const auto &line : lines)
        for (const std::string &cell : line)
            test::require(cell.find_first_of("\r\n\t") == std::string::npos, "a cell is one line without tabs");
    test::require(lines.empty() == text.empty(), "a text holds a cell");
    test::require(widestLine(lines) <= size + 1, "cells are not more than what separates them");
    const auto cell = textOfOneCell(text);
    test::require(!cell || cell->find_first_of("\r\n\t") == std::string::npos, "one cell is one line without tabs");

    PastedValues values(text);
    std::size_t length = 0;
    for (int i = 0; i < values.count(); ++i)
        length += values.next().size() + 1;
    test::require(length <= size + 1, "values are not more than what separates them");
    test::require(values.next().empty(), "nothing stands behind the last value");
    test::require(values.shortestLine() <= values.longestLine() && values.longestLine() <= values.count(),
                  "lines are parts of the values");
    return 0;
}
