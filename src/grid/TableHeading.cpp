#include "grid/TableHeading.h"

#include <algorithm>
#include <string>

#include "core/Ascii.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

/// Where the line of a cell begins in a text.
const char *lineBegin(std::string_view text, std::string_view cell)
{
    const auto place = static_cast<std::size_t>(cell.data() - text.data());
    const std::size_t lineEnd = text.substr(0, place).find_last_of("\r\n");
    return text.data() + (lineEnd == std::string_view::npos ? 0 : lineEnd + 1);
}

/// How many bytes of its line, which begins there, stand up to the end of a cell.
std::size_t bytesUpTo(const char *begin, std::string_view cell)
{
    return static_cast<std::size_t>(cell.data() + cell.size() - begin);
}

/// Whether a word is one of the unit of intensities, which "klm" is a word of between blanks: "cd per klm".
bool isOfUnit(std::string_view word)
{
    static constexpr std::string_view kWords[]{"cd", "candela", "klm", "kilolumen"};
    const std::string letters = lowerCase(word);
    return std::any_of(std::begin(kWords), std::end(kWords),
                       [&letters](std::string_view unit) { return letters.find(unit) != std::string::npos; });
}

/// Whether the words that end a line, one blank between them, speak of the unit of intensities.
bool endsWithUnit(const std::vector<std::string_view> &cells)
{
    for (std::size_t at = cells.size(); at > 0; --at) {
        const std::string_view word = cells[at - 1];
        if (isOfUnit(word))
            return true;
        if (at > 1 && cells[at - 2].data() + cells[at - 2].size() + 1 < word.data())
            return false;
    }
    return false;
}

/// The names that a line ends with, of one or several words each, if they begin behind a number of bytes.
std::vector<std::string_view> namesBehind(const std::vector<std::string_view> &cells, const char *begin,
                                          std::size_t bytes)
{
    std::vector<std::string_view> names;
    const char *end = nullptr;
    for (std::size_t at = cells.size() - namedAtEnd(cells); at < cells.size(); ++at) {
        const std::string_view word = cells[at];
        if (bytesUpTo(begin, word.substr(0, 0)) < bytes)
            return {};
        if (end == nullptr || word.data() > end + 1)
            names.push_back(word);
        end = word.data() + word.size();
    }
    return names;
}

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

void takeNamesAbove(std::vector<std::string_view> &angles, const std::vector<std::string_view> &above,
                    std::string_view text, TableSeparator separator)
{
    if (angles.empty() || namedAtEnd(above) == 0 || namedAtEnd(angles) > 0)
        return;
    // Units stand over values: "deg", "cd", "lm".
    if (angleWord(above.front()) == AngleWord::Any || std::any_of(above.begin(), above.end(), isLikeNumber))
        return;
    if (separator == TableSeparator::Blanks) {
        // Names are often not quite over their columns.
        const char *line = lineBegin(text, angles.front());
        const char *lineAbove = lineBegin(text, above.front());
        const std::string_view *last = &angles.back();
        const std::size_t begin = angles.size() > 1 ? bytesUpTo(line, last[-1]) : 0;
        if (bytesUpTo(lineAbove, above.back()) < bytesUpTo(line, *last) || endsWithUnit(above))
            return;
        const std::vector<std::string_view> names = namesBehind(above, lineAbove, begin);
        angles.insert(angles.end(), names.begin(), names.end());
    } else if (above.size() > angles.size()) {
        const auto behind = above.begin() + static_cast<std::ptrdiff_t>(angles.size());
        const auto isName = [](std::string_view cell) { return cell.empty() || (isSummary(cell) && !isOfUnit(cell)); };
        if (std::all_of(behind, above.end(), isName))
            angles.insert(angles.end(), behind, above.end());
    }
}

std::size_t headedWidth(const std::vector<std::string_view> &cells, std::size_t width, const TableReading &reading)
{
    const std::size_t named = namedAtEnd(cells);
    if (reading.hasAngleColumn && reading.separator == TableSeparator::Blanks && named > 0 && named < cells.size()) {
        // Several words may stand over the column: the angles are counted from the names.
        std::size_t angles = 0;
        while (angles + named < cells.size() && tableAngle(cells[cells.size() - named - angles - 1], reading))
            ++angles;
        if (angles > 0 && angles + named < cells.size() && width > angles && width <= angles + 1 + named)
            return angles + 1 + named;
    }
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
