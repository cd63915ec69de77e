#include "grid/TableWords.h"

#include <algorithm>
#include <utility>

#include "core/Counted.h"
#include "core/NumberText.h"
#include "grid/TableFrame.h"
#include "grid/TableLines.h"

namespace penwright {
namespace {

constexpr std::size_t kFirstBytes = 200'000;
constexpr std::size_t kCutLines = 200;
constexpr std::size_t kLinesAround = 20;
constexpr std::size_t kMostCells = 1000;
constexpr std::size_t kLongestCell = 1000;     // bytes of it that are shown
constexpr std::size_t kMostBytes = 1'000'000;  // that are cut, however long the lines are

std::string separatorWords(TableSeparator separator)
{
    switch (separator) {
        case TableSeparator::Tab:
            return "Tabs between cells";
        case TableSeparator::Semicolon:
            return "Semicolons between cells";
        case TableSeparator::Comma:
            return "Commas between cells";
        default:
            return "Blanks between cells";
    }
}

std::string thousandsWords(char sign)
{
    switch (sign) {
        case '.':
            return "points between thousands";
        case ',':
            return "commas between thousands";
        case '\'':
            return "apostrophes between thousands";
        case ' ':
            return "blanks between thousands";
        default:
            return "no sign between thousands";
    }
}

struct AxisWords {
    std::string name;
    std::string way;
    bool falls;
};

/// Where angles stand; "" in a list, whose columns are chosen.
std::string wayWords(bool isList, bool isDown)
{
    if (isList)
        return {};
    return isDown ? " down the text" : " across the text";
}

std::string anglesWords(const OneBased<double> &angles, int count, const AxisWords &axis)
{
    if (angles.empty())
        return "no " + axis.name + "s, but " + counted(count, "value") + axis.way;
    std::string words = counted(angles.size(), axis.name) + " from " + generalText(angles(1));
    if (angles.size() > 1)
        words += " to " + generalText(angles(angles.size()));
    return words + (axis.falls ? ", falling" : "") + axis.way;
}

/// Where a line begins, lines counted from 1.
std::size_t placeOfLine(std::string_view text, std::size_t line)
{
    const char end = text.find('\n') == std::string_view::npos ? '\r' : '\n';
    std::size_t place = 0;
    for (std::size_t at = 1; at < line; ++at) {
        const std::size_t found = text.find(end, place);
        if (found == std::string_view::npos)
            return text.size();
        place = found + 1;
    }
    return place;
}

struct LineSpan {
    std::size_t first;
    std::size_t last;
};

struct TableCut {
    TableSeparator separator;
    TableFrame frame;
};

/// Appends the lines of a span, of a text that `before` lines stand before.
void appendLines(std::vector<CutLine> &cut, std::string_view text, const TableCut &how, std::size_t before,
                 const LineSpan &span)
{
    const std::size_t first = placeOfLine(text, span.first - before);
    TableLines lines(text.substr(0, first + kMostBytes), how.separator, how.frame);
    for (TableLine next; lines.next(next) && before + next.number <= span.last;) {
        if (before + next.number < span.first)
            continue;
        CutLine shown{before + next.number, std::vector<std::string>(next.before)};
        for (const std::string_view cell : next.cells)
            if (shown.cells.size() < kMostCells)
                shown.cells.emplace_back(cell.substr(0, kLongestCell));
        cut.push_back(std::move(shown));
    }
}

}  // namespace

std::string readingWords(const TableReading &reading)
{
    std::string words = separatorWords(reading.separator) +
                        (reading.decimalSign == ',' ? ", decimal comma, " : ", decimal point, ") +
                        thousandsWords(reading.thousandsSign);
    if (reading.linesToSkip > 0)
        words += ", " + counted(reading.linesToSkip, "line") + " skipped";
    return words + ".";
}

std::string contentWords(const TableContent &table, const TableReading &reading)
{
    const AxisWords vertical{"vertical angle", wayWords(reading.isList, reading.verticalDown), table.verticalFalls};
    const AxisWords horizontal{"horizontal angle", wayWords(reading.isList, !reading.verticalDown),
                               table.horizontalFalls};
    return "Read: " + anglesWords(table.vertical, table.values.columns(), vertical) + "; " +
           anglesWords(table.horizontal, table.values.rows(), horizontal) + ".";
}

std::string_view firstPart(std::string_view text)
{
    if (text.size() <= kFirstBytes)
        return text;
    const std::size_t end = text.find_last_of("\r\n", kFirstBytes);
    return text.substr(0, end == std::string_view::npos ? kFirstBytes : end);
}

std::vector<CutLine> cutLines(std::string_view text, const TableReading &reading, std::size_t line)
{
    std::vector<CutLine> cut;
    const auto skipped = static_cast<std::size_t>(std::max(reading.linesToSkip, 0));
    const TableCut how{reading.separator, tableFrame(text, reading.separator)};
    appendLines(cut, text, how, 0, {skipped + 1, skipped + kCutLines});
    const std::size_t shown = cut.empty() ? skipped : cut.back().number;
    if (line > shown) {
        const std::size_t first = std::max(shown + 1, line > kLinesAround ? line - kLinesAround : 1);
        appendLines(cut, text.substr(placeOfLine(text, first)), how, first - 1, {first, line + kLinesAround});
    }
    return cut;
}

}  // namespace penwright
