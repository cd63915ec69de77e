#pragma once

#include <vector>

#include "grid/TableContent.h"

namespace penwright {

/// Planes that stand beside each other in a text, below others of the same table.
struct TablePart {
    std::vector<double> values{};  ///< line by line
    std::size_t columns = 0;
    std::size_t rows = 0;
};

/// A table as it stands in its text: all parts have as many lines as the first.
struct TableBody {
    std::vector<double> down{};  ///< angles beside the lines; empty when there are none, as are those across
    std::vector<double> across{};
    std::vector<TablePart> parts{TablePart()};

    /// The table with its vertical angles from line to line, or from cell to cell. Angles that fall are turned round
    /// with their values. Those with a dash before each number, from "C-0" on, are not below 0.
    TableContent content(bool verticalDown) const;
};

/// Angles that have a dash before each number, from "C-0" on, without it; others as they are.
std::vector<double> withoutDashes(std::vector<double> angles);

/// Whether an angle that follows others does not go their way: it is smaller than the last one of those that rise from
/// the first, or larger than the last one of those that fall.
bool turnsBack(double first, double last, double next);

}  // namespace penwright
