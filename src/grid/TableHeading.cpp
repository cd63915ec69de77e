#include "grid/TableHeading.h"

namespace penwright {

TableHeading tableHeading(const std::vector<std::string_view> &cells, std::size_t width, const TableReading &reading)
{
    TableHeading heading;
    const std::size_t firstValue = reading.hasAngleColumn ? 1 : 0;
    heading.begin = firstValue;
    if (reading.hasAngleColumn && cells.size() + 1 == width && tableAngle(cells.front(), reading))
        heading.begin = 0;
    else if (reading.hasAngleColumn && reading.separator == TableSeparator::Blanks && cells.size() > width)
        heading.begin = cells.size() - (width - 1);
    for (std::size_t column = firstValue; column < width; ++column) {
        const std::size_t place = heading.begin + column - firstValue;
        const std::string_view cell = place < cells.size() ? cells[place] : "";
        if (const std::optional<TableAngle> angle = tableAngle(cell, reading)) {
            heading.columns.push_back(column);
            heading.angles.push_back(*angle);
        } else if (!cell.empty() && !isSummary(cell) && !heading.wrong) {
            heading.wrong = place;
        }
    }
    return heading;
}

}  // namespace penwright
