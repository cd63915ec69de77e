#include "grid/TableFrame.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>

#include "core/Ascii.h"
#include "grid/TableAngle.h"

namespace penwright {
namespace {

constexpr std::size_t kFewestLines = 3;

using Cells = std::vector<std::string_view>;

bool isWhole(std::string_view cell)
{
    return !cell.empty() && cell.size() <= 5 && std::all_of(cell.begin(), cell.end(), isDigit);
}

std::optional<TableAngle> angleOf(std::string_view cell)
{
    TableReading reading;
    if (auto angle = tableAngle(cell, reading))
        return angle;
    reading.decimalSign = ',';
    return tableAngle(cell, reading);
}

/// The angles in one column of lines, nothing where a cell is none or they do not rise.
struct AngleColumn {
    std::vector<double> degrees;
    bool isMarked = false;
};

std::optional<AngleColumn> anglesIn(const std::vector<Cells> &lines, std::size_t column)
{
    AngleColumn angles;
    for (const Cells &cells : lines) {
        const auto angle = angleOf(cells[column]);
        if (!angle || std::fabs(angle->degrees) > 360 ||
            (!angles.degrees.empty() && angle->degrees <= angles.degrees.back()))
            return std::nullopt;
        angles.degrees.push_back(angle->degrees);
        angles.isMarked |= angle->isMarked;
    }
    return angles;
}

/// Whether angles that nothing names are a list of them beyond doubt: from a usual beginning, in two steps at most.
bool areSurelyAngles(const std::vector<double> &degrees)
{
    static constexpr double kBeginnings[]{-180, -90, 0, 90};
    if (std::find(std::begin(kBeginnings), std::end(kBeginnings), degrees.front()) == std::end(kBeginnings))
        return false;
    std::vector<long> steps;
    for (std::size_t i = 1; i < degrees.size(); ++i)
        steps.push_back(std::lround(1000 * (degrees[i] - degrees[i - 1])));
    std::sort(steps.begin(), steps.end());
    return std::unique(steps.begin(), steps.end()) - steps.begin() <= 2;
}

/// The lines of numbers of a sample, and the line above the first of them.
struct SampleOfLines {
    std::vector<Cells> lines;
    Cells above;
};

/// Whether a line begins with a number or an angle and names none behind it, as a line of angles does.
bool isLineOfValues(const Cells &cells)
{
    const auto isNamed = [](std::string_view cell) {
        const auto angle = angleOf(cell);
        return angle && angle->word != AngleWord::None;
    };
    return cells.size() >= 3 && angleOf(cells.front()) && std::none_of(cells.begin() + 1, cells.end(), isNamed);
}

/// The lines of values that have as many cells as most of them.
SampleOfLines sampleOf(std::string_view text, TableSeparator separator)
{
    std::vector<Cells> all;
    std::map<std::size_t, std::size_t> linesOfWidth;
    TableLines lines(sampleText(text), separator);
    for (TableLine line; lines.next(line); all.push_back(line.cells))
        if (isLineOfValues(line.cells))
            ++linesOfWidth[line.cells.size()];
    SampleOfLines sample;
    const auto width = std::max_element(linesOfWidth.begin(), linesOfWidth.end(),
                                        [](const auto &one, const auto &other) { return one.second < other.second; });
    for (std::size_t at = 0; width != linesOfWidth.end() && at < all.size(); ++at) {
        if (all[at].size() != width->first || !isLineOfValues(all[at]))
            continue;
        if (sample.lines.empty() && at > 0)
            sample.above = all[at - 1];
        sample.lines.push_back(all[at]);
    }
    return sample;
}

/// Whether each line begins with its number, and goes on with an angle.
bool hasCounts(const SampleOfLines &sample)
{
    for (std::size_t at = 0; at < sample.lines.size(); ++at) {
        const std::string_view cell = sample.lines[at].front();
        if (!isWhole(cell) ||
            (at > 0 && std::stoul(std::string(cell)) != std::stoul(std::string(sample.lines[at - 1].front())) + 1))
            return false;
    }
    const auto angles = anglesIn(sample.lines, 1);
    if (!angles)
        return false;
    const Cells &above = sample.above;
    if (!above.empty() && angleWord(above.front()) != AngleWord::None)
        return false;
    const bool isNamed = above.size() > 1 && angleWord(above[1]) != AngleWord::None;
    const bool isFromOne = sample.lines.front().front() == "1";
    return angles->isMarked || isNamed || (isFromOne && areSurelyAngles(angles->degrees));
}

/// Whether each line ends with the angle that it begins with, behind its number.
bool repeatsAngles(const SampleOfLines &sample, std::size_t first)
{
    const auto angles = anglesIn(sample.lines, first);
    const auto isRepeated = [first](const Cells &cells) {
        return cells.size() > first + 2 && cells.back() == cells[first];
    };
    return angles && std::all_of(sample.lines.begin(), sample.lines.end(), isRepeated) &&
           (angles->isMarked || areSurelyAngles(angles->degrees));
}

}  // namespace

TableFrame tableFrame(std::string_view text, TableSeparator separator)
{
    TableFrame frame;
    const SampleOfLines sample = sampleOf(text, separator);
    if (sample.lines.size() < kFewestLines)
        return frame;
    frame.width = sample.lines.front().size();
    frame.hasCounts = hasCounts(sample);
    frame.repeatsAngles = repeatsAngles(sample, frame.hasCounts ? 1 : 0);
    return frame;
}

}  // namespace penwright
