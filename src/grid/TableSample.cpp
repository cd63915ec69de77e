#include "grid/TableSample.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <utility>

#include "grid/TableAngle.h"
#include "grid/TableFrame.h"
#include "grid/TableHeading.h"
#include "grid/TableLines.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

std::size_t numbersIn(const std::vector<std::string_view> &cells)
{
    return static_cast<std::size_t>(std::count_if(cells.begin(), cells.end(), isLikeNumber));
}

bool isFull(const std::vector<std::string_view> &cells)
{
    if (cells.empty() || !(cells.front().empty() || isLikeAngle(cells.front()) || isLikeNumber(cells.front())))
        return false;
    const bool hasNumbers = cells.size() > 1 || isLikeNumber(cells.front());
    // A list of directions has a second angle in its lines of three.
    const std::size_t numbers = cells.size() == 3 && isLikeAngle(cells[1]) ? 2 : 1;
    return hasNumbers && std::all_of(cells.begin() + static_cast<std::ptrdiff_t>(numbers), cells.end(), isLikeNumber);
}

/// Whether a line may be one of angles: nothing or a word or an angle, and angles behind it.
bool isLineOfAngles(const std::vector<std::string_view> &cells)
{
    return cells.size() > 1 && std::all_of(cells.begin() + 1, cells.end(), isLikeAngle);
}

/// Whether a line of values begins there, by the next one, which has as many.
bool opensValues(const std::vector<SampleLine> &lines, std::size_t at)
{
    return at + 1 < lines.size() && lines[at].isFull && !lines[at].cells.front().empty() && lines[at + 1].isFull &&
           lines[at + 1].cells.size() == lines[at].cells.size();
}

/// Whether a line goes on with the table, if not without a fault.
bool isNearlyFull(const SampleLine &line, std::size_t width)
{
    return line.cells.size() == width && (line.isFull || 2 * numbersIn(line.cells) >= width);
}

/// The width that has the most numbers in full lines.
void findWidth(TableSample &sample)
{
    std::map<std::size_t, std::size_t> linesOfWidth;
    for (const SampleLine &line : sample.lines)
        if (line.isFull)
            ++linesOfWidth[line.cells.size()];
    for (const auto &[width, lines] : linesOfWidth)
        if (width * lines >= sample.width * sample.fullLines) {
            sample.width = width;
            sample.fullLines = lines;
        }
}

/// The first line of the longest run of lines of that width.
void findFirst(TableSample &sample)
{
    std::size_t longest = 0;
    for (std::size_t at = 0; at < sample.lines.size();) {
        std::size_t end = at;
        if (sample.lines[at].isFull && sample.lines[at].cells.size() == sample.width)
            while (end < sample.lines.size() && isNearlyFull(sample.lines[end], sample.width))
                ++end;
        if (end - at > longest) {
            longest = end - at;
            sample.first = at;
        }
        at = std::max(end, at + 1);
    }
}

/// Whether two lines begin with the same angle.
bool haveSameAngle(const TableSample &sample, std::size_t one, std::size_t other)
{
    const SampleLine &line = sample.lines[one];
    return line.isFull && line.cells.size() > 1 && isLikeAngle(line.cells.front()) &&
           line.cells.front() == sample.lines[other].cells.front();
}

/// Whether further planes of one table begin at the sample's first line, which may be more than those of its beginning:
/// the lines from `at` on have the same angles in their first columns.
bool goesOnWithPlanes(const TableSample &sample, std::size_t at)
{
    constexpr std::size_t kFewest = 3;
    std::size_t length = 0;
    while (at + length < sample.first && sample.first + length < sample.lines.size() &&
           haveSameAngle(sample, at + length, sample.first + length))
        ++length;
    return length >= kFewest;
}

/// Whether a table goes on there as on a new page: under the line of angles that stands over the lines from `at` on.
bool goesOnAsOnANewPage(const TableSample &sample, std::size_t at)
{
    return at > 0 && sample.lines[at].isFull && !sample.lines[at - 1].isFull &&
           sample.lines[at].cells.size() == sample.width && sample.lines[at - 1].cells.size() + 1 >= sample.width &&
           sample.lines[at - 1].cells == sample.lines[sample.first - 1].cells;
}

/// Goes to the beginning of a table that is broken into several.
void findFirstOfSeveral(TableSample &sample)
{
    for (std::size_t at = 0; at < sample.first; ++at)
        if (goesOnWithPlanes(sample, at) || goesOnAsOnANewPage(sample, at)) {
            sample.first = at;
            sample.width = sample.lines[at].cells.size();
            return;
        }
}

TableSample cutAt(std::string_view text, TableSeparator separator)
{
    TableSample sample;
    sample.separator = separator;
    TableLines lines(text, separator, tableFrame(text, separator));
    for (TableLine line; lines.next(line);)
        sample.lines.push_back({line.number, line.cells, isFull(line.cells)});
    for (std::size_t at = 1; at < sample.lines.size(); ++at)
        if (isLineOfAngles(sample.lines[at].cells) && !opensValues(sample.lines, at))
            takeNamesAbove(sample.lines[at].cells, sample.lines[at - 1].cells, text, separator);
    findWidth(sample);
    if (sample.width > 0)
        findFirst(sample);
    findFirstOfSeveral(sample);
    return sample;
}

/// Whether the first of two columns is a list of angles, so that "0,2480" is no decimal.
bool risesInFirstColumn(const TableSample &sample)
{
    double last = -std::numeric_limits<double>::infinity();
    for (const SampleLine &line : sample.lines) {
        if (!line.isFull || line.cells.size() != sample.width || line.cells.front().empty())
            continue;
        const auto angle = tableAngle(line.cells.front(), TableReading());
        if (!angle || angle->degrees <= last || angle->degrees > 360)
            return false;
        last = angle->degrees;
    }
    return true;
}

}  // namespace

TableSample tableSample(std::string_view sample)
{
    TableSample tabs = cutAt(sample, TableSeparator::Tab);
    TableSample semicolons = cutAt(sample, TableSeparator::Semicolon);
    TableSample commas = cutAt(sample, TableSeparator::Comma);
    TableSample blanks = cutAt(sample, TableSeparator::Blanks);
    const std::size_t most = std::max({tabs.fullLines, semicolons.fullLines, commas.fullLines, blanks.fullLines});
    for (TableSample *plain : {&tabs, &semicolons})
        if (plain->width > 1 && 2 * plain->fullLines >= most)
            return std::move(*plain);
    const bool isDecimals = commas.width == 2 && blanks.width == 1 && !risesInFirstColumn(commas);
    if (commas.width > 1 && !isDecimals && commas.width * commas.fullLines > blanks.width * blanks.fullLines)
        return commas;
    return blanks.width > 1 ? blanks : tabs;
}

}  // namespace penwright
