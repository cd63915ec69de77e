#include "grid/TableLines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "core/Ascii.h"
#include "core/LineEnds.h"

namespace penwright {
namespace {

constexpr std::size_t kSampleBytes = 40'000;
constexpr std::size_t kSampleLines = 300;
constexpr std::size_t kBytesBetweenQuestions = 1'000'000;

/// No cell in quotes is longer: a lone quote then costs no look at the rest of the text.
constexpr std::size_t kLongestQuoted = 2000;

/// What stands around a cell without being seen, the end of a printed page among it.
constexpr std::array<std::string_view, 10> kBlanks{" ",
                                                   "\t",
                                                   "\f",
                                                   "\xC2\xA0",
                                                   "\xE2\x80\xAF",
                                                   "\xE2\x80\x89",
                                                   "\xE2\x80\x8B",
                                                   "\xE2\x80\x8E",  // marks of direction
                                                   "\xE2\x80\x8F",
                                                   "\xEF\xBB\xBF"};

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// Whether a line is drawn of strokes, as text tables have them below headings and around.
bool isDrawn(const std::vector<std::string_view> &cells)
{
    const auto isStroke = [](std::string_view cell) {
        return cell.size() > 1 && cell.find_first_not_of("-=+_:|") == std::string_view::npos;
    };
    return !cells.empty() && std::all_of(cells.begin(), cells.end(), isStroke);
}

/// Puts words to the numbers behind them where the same one stands before several: "C 0  C 45" are two angles.
void joinWords(std::vector<std::string_view> &cells)
{
    const auto isWord = [&cells](std::size_t at) {
        return at + 1 < cells.size() && isDigit(cells[at + 1].front()) && !isDigit(cells[at].front()) &&
               cells[at].find_first_of("0123456789.+-") == std::string_view::npos;
    };
    std::size_t first = 0;
    while (first < cells.size() && !isWord(first))
        ++first;
    std::size_t second = first + 1;
    while (second < cells.size() && !(isWord(second) && cells[second] == cells[first]))
        ++second;
    if (second >= cells.size())
        return;
    const std::string_view word = cells[first];
    std::vector<std::string_view> joined;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        const char *begin = cells[at].data();
        if (isWord(at) && cells[at] == word)
            ++at;
        joined.emplace_back(begin, static_cast<std::size_t>(cells[at].data() + cells[at].size() - begin));
    }
    cells = std::move(joined);
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isNumberBefore(std::string_view text)
{
    return !text.empty() && isDigit(text.back()) && std::none_of(text.begin(), text.end(), isLetter);
}

/// The cell without the unit of intensities behind its number.
std::string_view withoutUnit(std::string_view cell)
{
    static constexpr std::string_view kUnits[]{"cd", "candela", "candelas", "cd/klm", "cd/1000lm", "cd/1000 lm"};
    if (cell.empty() || !isLetter(cell.back()) || !(isDigit(cell.front()) || cell.front() == '-'))
        return cell;
    const std::string letters = lowerCase(cell);
    for (const std::string_view unit : kUnits)
        if (letters.ends_with(unit))
            if (const auto number = withoutCellBlanks(cell.substr(0, cell.size() - unit.size()));
                isNumberBefore(number))
                return number;
    return cell;
}

/// Leaves units behind numbers out, in their cells and, between blanks, in cells of their own.
void dropUnits(std::vector<std::string_view> &cells)
{
    const auto isUnit = [](std::string_view cell) {
        return !cell.empty() && (cell.front() == 'c' || cell.front() == 'C') &&
               withoutUnit("0" + std::string(cell)) == "0";
    };
    std::size_t kept = 0;
    for (const std::string_view cell : cells) {
        cells[kept] = withoutUnit(cell);
        const bool isLeftOut = kept > 0 && isNumberBefore(cells[kept - 1]) && isUnit(cells[kept]);
        kept += isLeftOut ? 0 : 1;
    }
    cells.resize(kept);
}

/// Whether a cell is a line's number, or a word over those.
bool isCount(std::string_view cell)
{
    static constexpr std::string_view kWords[]{"#",   "no",   "no.",   "nr",  "nr.",  "n",    "i",
                                               "pos", "pos.", "index", "row", "line", "zeile"};
    return std::all_of(cell.begin(), cell.end(), isDigit) ||
           std::find(std::begin(kWords), std::end(kWords), lowerCase(cell)) != std::end(kWords);
}

}  // namespace

bool eachLine(TableLines &lines, std::size_t size, const std::function<bool(double)> &goOn,
              const std::function<bool(const TableLine &)> &read)
{
    std::size_t asked = 0;
    for (TableLine line; lines.next(line);) {
        if (goOn && lines.bytesRead() > asked + kBytesBetweenQuestions) {
            asked = lines.bytesRead();
            if (!goOn(static_cast<double>(asked) / static_cast<double>(size)))
                return false;
        }
        if (!read(line))
            return false;
    }
    return true;
}

std::string_view sampleText(std::string_view text)
{
    std::string_view sample = text.substr(0, kSampleBytes);
    if (const std::size_t end = sample.find_last_of("\r\n"); sample.size() < text.size() && end != sample.npos)
        sample = sample.substr(0, end);
    std::size_t at = 0;
    for (std::size_t lines = 0; lines < kSampleLines && at < sample.size(); ++lines)
        at = std::min(sample.find_first_of("\r\n", at), sample.size() - 1) + 1;
    return sample.substr(0, at);
}

std::string_view withoutCellBlanks(std::string_view cell)
{
    const auto shorten = [&cell](std::string_view blank) {
        const std::size_t before = cell.size();
        if (cell.starts_with(blank))
            cell.remove_prefix(blank.size());
        if (cell.ends_with(blank))
            cell.remove_suffix(blank.size());
        return cell.size() < before;
    };
    while (std::any_of(kBlanks.begin(), kBlanks.end(), shorten)) {
    }
    return cell;
}

TableLines::TableLines(std::string_view text, TableSeparator separator, const TableFrame &frame)
    : m_text(text), m_separator(separator), m_blankColumns(blankColumns()), m_frame(frame)
{
}

bool TableLines::next(TableLine &line)
{
    line.cells.clear();
    while (line.cells.empty() && m_at < m_text.size()) {
        line.number = m_number;
        if (m_separator == TableSeparator::Blanks)
            skipBlanks();
        while (!isAtLineEnd())
            line.cells.push_back(nextCell());
        passLineEnd();
        while (!line.cells.empty() && line.cells.back().empty())
            line.cells.pop_back();
        if (isDrawn(line.cells))
            line.cells.clear();
    }
    dropUnits(line.cells);
    if (m_separator == TableSeparator::Blanks)
        joinWords(line.cells);
    line.before = 0;
    while (line.before < std::min(m_blankColumns, line.cells.size()) && line.cells[line.before].empty())
        ++line.before;
    line.cells.erase(line.cells.begin(), line.cells.begin() + static_cast<std::ptrdiff_t>(line.before));
    leaveOutFrame(line);
    return !line.cells.empty();
}

void TableLines::leaveOutFrame(TableLine &line)
{
    if (line.cells.size() < 2)
        return;
    // Between blanks nothing need stand over the lines' numbers, and a line may lack a value but not its number.
    const std::string_view front = line.cells.front();
    const bool isOverCounts = m_separator != TableSeparator::Blanks || isNextCount(front) ||
                              (line.cells.size() == m_frame.width && isCount(front));
    if (m_frame.hasCounts && isOverCounts) {
        m_lastCount = front;
        line.cells.erase(line.cells.begin());
        ++line.before;
    }
    if (m_frame.repeatsAngles && line.cells.size() > 2 && line.cells.back() == line.cells.front())
        line.cells.pop_back();
}

/// Whether a cell is the number behind that of the line before.
bool TableLines::isNextCount(std::string_view cell) const
{
    const auto numberOf = [](std::string_view text) {
        long number = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        return read.ec == std::errc() && read.ptr == text.data() + text.size() ? std::optional(number) : std::nullopt;
    };
    const auto last = numberOf(m_lastCount);
    return last && numberOf(cell) == *last + 1;
}

std::string_view TableLines::nextCell()
{
    const std::size_t quoted = quotedLength();
    std::string_view cell;
    if (quoted > 0) {
        cell = withoutCellBlanks(m_text.substr(m_at, quoted));
        cell = cell.substr(1, cell.size() - 2);
        for (std::size_t end = m_at + quoted; m_at < end;)
            isAtLineEnd() ? passLineEnd() : static_cast<void>(++m_at);
    } else {
        const std::size_t begin = m_at;
        while (!isAtLineEnd() && !isSeparator(m_text[m_at]))
            ++m_at;
        cell = m_text.substr(begin, m_at - begin);
    }
    if (m_separator == TableSeparator::Blanks)
        skipBlanks();
    else if (!isAtLineEnd())
        ++m_at;
    return withoutCellBlanks(cell);
}

/// How many blank cells each of the first lines begins with.
std::size_t TableLines::blankColumns() const
{
    if (m_separator == TableSeparator::Blanks)
        return 0;
    std::size_t least = std::string_view::npos;
    std::size_t blank = 0;
    bool isBlankLine = true;
    for (const char c : sampleText(m_text)) {
        if (c == '\n' || c == '\r') {
            blank = 0;
            isBlankLine = true;
        } else if (isBlankLine && isSeparator(c)) {
            ++blank;
        } else if (isBlankLine && !isBlank(c)) {
            isBlankLine = false;
            least = std::min(least, blank);
        }
    }
    return least == std::string_view::npos ? 0 : least;
}

/// The length of the cell in quotes that stands here, with them and the blanks around them; 0 for any other cell.
std::size_t TableLines::quotedLength() const
{
    const std::string_view here = m_text.substr(m_at, kLongestQuoted);
    const std::size_t begin = here.find_first_not_of(' ');
    if (begin == std::string_view::npos || here[begin] != '"')
        return 0;
    std::size_t at = here.find('"', begin + 1);
    while (at != std::string_view::npos && here.substr(at, 2) == "\"\"")
        at = here.find('"', at + 2);
    if (at == std::string_view::npos)
        return 0;
    std::size_t length = at + 1;
    while (m_separator != TableSeparator::Blanks && length < here.size() && here[length] == ' ')
        ++length;
    const bool isWhole = m_at + length == m_text.size() || isSeparator(m_text[m_at + length]) ||
                         lineEndLength(m_text.substr(m_at + length, 2)) > 0;
    return isWhole ? length : 0;
}

bool TableLines::isSeparator(char c) const
{
    switch (m_separator) {
        case TableSeparator::Tab:
            return c == '\t';
        case TableSeparator::Semicolon:
            return c == ';';
        case TableSeparator::Comma:
            return c == ',';
        case TableSeparator::Blanks:
            break;
    }
    return isBlank(c) || c == '|';
}

void TableLines::skipBlanks()
{
    while (m_at < m_text.size() && isSeparator(m_text[m_at]))
        ++m_at;
}

bool TableLines::isAtLineEnd() const
{
    return m_at >= m_text.size() || m_text[m_at] == '\n' || m_text[m_at] == '\r';
}

void TableLines::passLineEnd()
{
    if (m_at >= m_text.size())
        return;
    m_at += lineEndLength(m_text.substr(m_at, 2));
    ++m_number;
}

}  // namespace penwright
