#pragma once

#include <string>
#include <string_view>

namespace penwright {

class PastedValues;

/// What is said of values that came in lines of another length than a table of so many columns has; "" when they did
/// not: "Lines of 3 values were pasted into 2 columns". They may lie across where the table has them down.
std::string arrangementHint(const PastedValues &values, int columns);

/// What is said of a clipboard with another number of values than a table of so many rows and columns has.
std::string wholeTableHint(const PastedValues &values, int rows, int columns);

/// What a message says of a text that ended a paste at a cell: it is no number, or beyond a single. Before the first
/// text nothing has been pasted.
std::string pasteRefusal(const std::string &cell, std::string_view text, bool isFirst);

/// What is said of a text that ended a paste though it is a number by other signs; "" for any other.
std::string otherSignsHint(std::string_view text);

/// What is said of a paste that ended before a cell, of which "Row 2, column 1" is the name.
std::string boundaryHint(std::string_view cell);

/// What is said of a value in a cell, by its name, that has lost its thousands and stands beside another.
std::string thousandsHint(const std::string &value, const std::string &cell, const std::string &neighbour);

/// Two hints, of which each may be "", in one text.
std::string joinedHints(const std::string &one, const std::string &other);

}  // namespace penwright
