#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "grid/TableAngle.h"
#include "grid/TableReading.h"

namespace penwright {

/// A table's line of angles, put over the cells of its lines of values. Places are counted from 0.
struct TableHeading {
    std::size_t begin = 0;             ///< cell of the line of angles that stands over the first value
    std::vector<std::size_t> columns;  ///< cells of a line of values that have an angle over them
    std::vector<TableAngle> angles;    ///< as many as columns
    std::optional<std::size_t> wrong;  ///< the first cell of the line of angles that is none
};

/// How many cells at the end of a line name averages, sums or the like.
std::size_t namedAtEnd(const std::vector<std::string_view> &cells);

/// Puts the names of averages or sums that the line above ends with behind the angles of a line, if they stand behind
/// the last of them there, or nearly. A line with numbers or of units, or angles that have such names, leave all as it
/// is.
void takeNamesAbove(std::vector<std::string_view> &angles, const std::vector<std::string_view> &above,
                    std::string_view text, TableSeparator separator);

/// The width of the lines below a line of angles, of which the first has `width` cells: more than it has where the
/// names of averages or sums end the line of angles and it has no cells for them.
std::size_t headedWidth(const std::vector<std::string_view> &cells, std::size_t width, const TableReading &reading);

/// Puts a line of angles over lines of `width` cells. The first of these is no value where the reading has a column of
/// angles; nothing, or a word or several, may stand over it. Columns with nothing or with a summary's name over them
/// hold no values.
TableHeading tableHeading(const std::vector<std::string_view> &cells, std::size_t width, const TableReading &reading);

}  // namespace penwright
