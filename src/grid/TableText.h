#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "grid/TableContent.h"
#include "grid/TableFault.h"
#include "grid/TableReading.h"

namespace penwright {

/// How a text is probably to be read, by its first lines: takes the same time for any length. A text without a table
/// gives the reading of a plain one.
TableReading guessTable(std::string_view text);

/// Reads the table of a UTF-8 text. Further planes may stand below the first ones, under angles that go on with theirs
/// and beside the same ones, and the line of angles may come again, as on a new page. Left out are blank lines, lines
/// without any number below the line of angles (such as units), lines and columns that a word names as averages, sums
/// or the like, columns without an angle, lines' numbers before their angles, angles that come again at the lines'
/// ends, units behind values, and remarks behind the last line. Angles that all fall are turned round with their
/// values. All else that is no number is a fault, as are angles that turn back and lines of unequal length, but for
/// what is left out at their ends. Takes time and memory in proportion to the text. `goOn` is asked now and then with
/// the part that is read, 0 to 1; when it says no, the fault has no text.
std::variant<TableContent, TableFault> readTable(std::string_view text, const TableReading &reading,
                                                 const std::function<bool(double)> &goOn = {});

/// What is wrong with the size of a table that is to have so many angles; nothing when it fits.
std::optional<std::string> tableMisfit(const TableContent &table, int vertical, int horizontal);

}  // namespace penwright
