#include "grid/TableHeading.h"

namespace penwright {

namespace {

/// Whether a line of angles beside a column of them begins with its first angle, nothing standing over the column.
bool hasNoCorner(const std::vector<std::string_view> &cells, const TableReading &reading)
{
    if (!reading.hasAngleColumn || reading.separator != TableSeparator::Blanks || cells.size() < 2)
        return false;
    const std::optional<TableAngle> first = tableAngle(cells[0], reading);
    const std::optional<TableAngle> second = tableAngle(cells[1], reading);
    return first && second && first->degrees < second->degrees;
}

}  // namespace

std::size_t namedAtEnd(const std::vector<std::string_view> &cells)
{
    std::size_t named = 0;
    while (named < cells.size() && isSummary(cells[cells.size() - named - 1]))
        ++named;
    return named;
}

std::size_t headedWidth(const std::vector<std::string_view> &cells, std::size_t width, const TableReading &reading)
{
    const std::size_t named = namedAtEnd(cells);
    const std::size_t whole = cells.size() + (hasNoCorner(cells, reading) ? 1 : 0);
    return width < whole && width + named >= whole ? whole : width;
}

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
