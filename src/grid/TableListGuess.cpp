#include "grid/TableListGuess.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "grid/AngleLook.h"
#include "grid/TableAngle.h"
#include "grid/TableBody.h"
#include "grid/TableLines.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

constexpr std::size_t kListWidth = 3;
constexpr double kHalfRound = 180;

std::vector<double> different(std::vector<double> angles)
{
    std::sort(angles.begin(), angles.end());
    angles.erase(std::unique(angles.begin(), angles.end()), angles.end());
    return angles;
}

bool isOneSide(AngleWord word)
{
    return word == AngleWord::Vertical || word == AngleWord::Horizontal;
}

/// The lines of a sample as directions, if they are.
class ListSample {
public:
    ListSample(const TableSample &sample, std::string_view text, const TableReading &reading);

    bool isList() const;
    bool isVerticalFirst() const;
    std::size_t firstLine() const { return m_sample.lines[m_first].number; }

private:
    using Cells = std::vector<std::string_view>;

    void readLine(const Cells &cells);
    void readNames();
    void readNamesOf(const Cells &cells);
    std::size_t lines() const { return m_values.size(); }
    std::size_t pairs() const;
    double linesOfText() const;
    bool hasFurtherPlanes() const;
    bool isOneDirection(std::size_t column) const;

    const TableSample &m_sample;
    std::string_view m_text;
    const TableReading &m_reading;
    std::size_t m_first = 0;          ///< place of the first line
    std::vector<double> m_angles[2];  ///< by column, line by line
    std::vector<double> m_list[2];    ///< by column, each once, rising
    std::vector<double> m_values;
    AngleWord m_words[2]{AngleWord::None, AngleWord::None};
    std::size_t m_others = 0;  ///< lines of three numbers that are no direction
};

ListSample::ListSample(const TableSample &sample, std::string_view text, const TableReading &reading)
    : m_sample(sample), m_text(text), m_reading(reading)
{
    const auto isLine = [](const SampleLine &line) { return line.isFull && line.cells.size() == kListWidth; };
    m_first =
        static_cast<std::size_t>(std::find_if(sample.lines.begin(), sample.lines.end(), isLine) - sample.lines.begin());
    for (std::size_t at = m_first; at < sample.lines.size(); ++at)
        if (isLine(sample.lines[at]))
            readLine(sample.lines[at].cells);
    for (const std::size_t column : {0, 1}) {
        m_angles[column] = withoutDashes(std::move(m_angles[column]));
        m_list[column] = different(m_angles[column]);
    }
    readNames();
}

void ListSample::readLine(const Cells &cells)
{
    const auto first = tableAngle(cells[0], m_reading);
    const auto second = tableAngle(cells[1], m_reading);
    const auto value = tableNumber(cells[2], m_reading);
    if (!first || !second || !value || !areInRange({first->degrees, second->degrees})) {
        ++m_others;
        return;
    }
    m_angles[0].push_back(first->degrees);
    m_angles[1].push_back(second->degrees);
    m_values.push_back(*value);
    for (const auto &[angle, column] : {std::pair(first, 0), std::pair(second, 1)})
        if (isOneSide(angle->word))
            m_words[column] = angle->word;
}

void ListSample::readNames()
{
    for (std::size_t up = 1; up <= std::min(m_first, kLinesAbove); ++up)
        if (m_words[0] == AngleWord::None && m_words[1] == AngleWord::None)
            readNamesOf(m_sample.lines[m_first - up].cells);
    for (const std::size_t column : {0, 1})
        if (m_words[column] == AngleWord::Any && isOneSide(m_words[1 - column]))
            m_words[column] = m_words[1 - column] == AngleWord::Vertical ? AngleWord::Horizontal : AngleWord::Vertical;
    if (!isOneSide(m_words[0]) || !isOneSide(m_words[1]) || m_words[0] == m_words[1])
        m_words[0] = m_words[1] = AngleWord::None;
}

/// Between blanks a name may be several cells: "Plane C", "Gamma angle".
void ListSample::readNamesOf(const Cells &cells)
{
    if (m_reading.separator != TableSeparator::Blanks) {
        if (cells.size() >= 2 && cells.size() <= kListWidth)
            std::transform(cells.begin(), cells.begin() + 2, m_words, angleWord);
        return;
    }
    std::vector<AngleWord> words;
    for (const std::string_view cell : cells)
        if (const AngleWord word = angleWord(cell); isOneSide(word) && (words.empty() || words.back() != word))
            words.push_back(word);
    if (words.size() == 2)
        std::copy(words.begin(), words.end(), m_words);
}

bool ListSample::isList() const
{
    const std::size_t first = m_list[0].size();
    const std::size_t second = m_list[1].size();
    if (m_sample.width != kListWidth || lines() == 0)
        return false;
    const bool isFilled = first * second < 2 * lines();
    if (isOneSide(m_words[0]))
        return 2 * m_others <= lines() && (isFilled || first + second <= lines());
    if (m_others > 0 || lines() < 4)
        return false;
    if (first > 1 && second > 1)
        return isFilled && looksLikeAngles(m_list[0]) && looksLikeAngles(m_list[1]) && 2 * pairs() >= lines();
    return hasFurtherPlanes();
}

/// How many different pairs of angles there are: few where values are taken for angles.
std::size_t ListSample::pairs() const
{
    std::set<std::pair<double, double>> pairs;
    for (std::size_t at = 0; at < lines(); ++at)
        pairs.emplace(m_angles[0][at], m_angles[1][at]);
    return pairs.size();
}

/// How many lines a text has, about.
double ListSample::linesOfText() const
{
    const auto bytes = static_cast<double>(sampleText(m_text).size());
    return static_cast<double>(m_text.size()) / bytes * static_cast<double>(m_sample.lines.size());
}

/// Whether lines that all have one angle go on with another, far behind the sample.
bool ListSample::hasFurtherPlanes() const
{
    constexpr std::size_t kTail = 1000;
    const std::size_t slow = m_list[0].size() == 1 ? 0 : 1;
    const std::vector<double> &fast = m_list[1 - slow];
    if (m_list[slow].size() > 1 || fast.size() != lines() || !looksLikeAngles(fast) || m_text.size() < 2 * kTail)
        return false;
    std::string_view tail = m_text.substr(m_text.size() - kTail);
    tail.remove_prefix(std::min(tail.find_first_of("\r\n"), tail.size()));
    std::optional<TableAngle> last[2];
    TableLines ends(tail, m_reading.separator);
    for (TableLine line; ends.next(line);)
        if (line.cells.size() == kListWidth && tableNumber(line.cells[2], m_reading))
            for (const std::size_t column : {0, 1})
                last[column] = tableAngle(line.cells[column], m_reading);
    if (!last[0] || !last[1] || !areInRange({last[0]->degrees, last[1]->degrees}))
        return false;
    // One list of angles to the end of the text has far more of them than there are lines, if it is none.
    const double step = (fast.back() - fast.front()) / static_cast<double>(fast.size() - 1);
    const double inOnePlane = std::fabs(last[1 - slow]->degrees - m_angles[1 - slow].front()) / step + 1;
    return last[slow]->degrees != m_list[slow].front() && linesOfText() > 1.5 * inOnePlane;
}

/// Whether the lines with 0 or 180 in a column have one value throughout, as they are one direction when the angle is
/// vertical.
bool ListSample::isOneDirection(std::size_t column) const
{
    for (const double pole : {0.0, kHalfRound}) {
        std::vector<double> values;
        for (std::size_t at = 0; at < lines(); ++at)
            if (m_angles[column][at] == pole)
                values.push_back(m_values[at]);
        if (areEqual(values))
            return true;
    }
    return false;
}

bool ListSample::isVerticalFirst() const
{
    if (isOneSide(m_words[0]))
        return m_words[0] == AngleWord::Vertical;
    const bool isFirstRound = m_list[0].back() > kHalfRound;
    if (isFirstRound != (m_list[1].back() > kHalfRound))
        return !isFirstRound;
    const bool isFirstPole = isOneDirection(0);
    if (isFirstPole != isOneDirection(1))
        return isFirstPole;
    // There are mostly more vertical angles. Those that stay the same from line to line are not all in the sample.
    const bool isFirstFast = lines() > 1 && m_angles[0][0] != m_angles[0][1];
    const auto fast = static_cast<double>(m_list[isFirstFast ? 0 : 1].size());
    const double slow = linesOfText() / fast;
    return isFirstFast ? fast > slow : slow > fast;
}

}  // namespace

bool findList(const TableSample &sample, std::string_view text, TableReading &reading)
{
    const ListSample list(sample, text, reading);
    if (!list.isList())
        return false;
    reading.isList = true;
    reading.verticalDown = list.isVerticalFirst();
    reading.linesToSkip = static_cast<int>(list.firstLine()) - 1;
    return true;
}

}  // namespace penwright
