#include "grid/TablePairs.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <string>

#include "core/NumberText.h"
#include "grid/TableBody.h"

namespace penwright {
namespace {

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

TableFault faultOfPair(std::size_t line, std::size_t cell, const std::string &wrong)
{
    return faultAt(line, cell, wrong + "; a list has one line for each pair of angles.");
}

/// The places of angles in their rising list, counted from 1.
std::vector<int> placesOf(const std::vector<double> &angles)
{
    std::vector<std::size_t> order(angles.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&angles](std::size_t one, std::size_t other) { return angles[one] < angles[other]; });
    std::vector<int> places(angles.size());
    for (std::size_t at = 0; at < order.size(); ++at)
        places[order[at]] = static_cast<int>(at) + 1;
    return places;
}

void appendSorted(std::vector<double> angles, OneBased<double> &list)
{
    std::sort(angles.begin(), angles.end());
    for (const double angle : angles)
        list.append(angle);
}

}  // namespace

std::optional<std::uint16_t> ListedAngles::add(double angle)
{
    const auto [place, isNew] = m_numbers.try_emplace(angle, static_cast<std::uint16_t>(m_angles.size()));
    if (isNew && m_angles.size() == kMostTableAngles)
        return std::nullopt;
    if (isNew)
        m_angles.push_back(angle);
    return place->second;
}

bool TablePairs::add(double first, double second, double value, const TableLine &line)
{
    const auto one = m_angles[0].add(first);
    const auto other = m_angles[1].add(second);
    if (!one || !other)
        return false;
    if (m_pairs.empty())
        m_cellsBefore = line.before;
    m_pairs.push_back({{*one, *other}, static_cast<std::uint32_t>(line.number), value});
    return true;
}

std::optional<TableFault> TablePairs::fault(bool verticalFirst) const
{
    const bool isFirstSlow = m_pairs.size() < 2 || m_pairs[0].angles[0] == m_pairs[1].angles[0];
    const std::size_t slow = isFirstSlow ? 0 : 1;
    const std::vector<std::uint32_t> order = inGroups(slow);
    if (auto twice = faultOfTwice(order, slow, verticalFirst))
        return twice;
    if (m_pairs.size() == countOf(0) * countOf(1))
        return std::nullopt;
    const auto lone = faultOfLone();
    return lone ? lone : faultOfMissing(order, slow, verticalFirst);
}

/// The places of the pairs, those with one angle in a column behind each other.
std::vector<std::uint32_t> TablePairs::inGroups(std::size_t column) const
{
    std::vector<std::uint32_t> begins(countOf(column) + 1);
    for (const Pair &pair : m_pairs)
        ++begins[pair.angles[column] + std::size_t{1}];
    std::partial_sum(begins.begin(), begins.end(), begins.begin());
    std::vector<std::uint32_t> order(m_pairs.size());
    for (std::uint32_t at = 0; at < order.size(); ++at)
        order[begins[m_pairs[at].angles[column]]++] = at;
    return order;
}

/// The first line whose pair another one above it has.
std::optional<TableFault> TablePairs::faultOfTwice(const std::vector<std::uint32_t> &order, std::size_t slow,
                                                   bool verticalFirst) const
{
    std::vector<std::uint32_t> last(countOf(1 - slow), kNone);
    const Pair *twice = nullptr;
    const Pair *above = nullptr;
    for (const std::uint32_t at : order) {
        const Pair &pair = m_pairs[at];
        std::uint32_t &before = last[pair.angles[1 - slow]];
        const bool isSame = before != kNone && m_pairs[before].angles[slow] == pair.angles[slow];
        if (isSame && (twice == nullptr || pair.line < twice->line)) {
            twice = &pair;
            above = &m_pairs[before];
        }
        before = at;
    }
    if (twice == nullptr)
        return std::nullopt;
    return faultOfPair(twice->line, 0,
                       wordsOf(twice->angles[0], twice->angles[1], verticalFirst) + " stands in line " +
                           std::to_string(above->line) + ", too");
}

/// The first line with an angle that no other line has, as a slip makes one.
std::optional<TableFault> TablePairs::faultOfLone() const
{
    std::vector<std::uint32_t> lines[2];
    for (const std::size_t column : {0, 1}) {
        lines[column].resize(countOf(column));
        for (const Pair &pair : m_pairs)
            ++lines[column][pair.angles[column]];
    }
    for (const Pair &pair : m_pairs)
        for (const std::size_t column : {0, 1})
            if (lines[column][pair.angles[column]] == 1 && countOf(1 - column) > 2)
                return faultOfPair(pair.line, m_cellsBefore + column + 1,
                                   "angle " + generalText(m_angles[column].inOrder()[pair.angles[column]]) +
                                       " stands in no other line");
    return std::nullopt;
}

/// The first pair that no line has, by a line beside its place.
std::optional<TableFault> TablePairs::faultOfMissing(const std::vector<std::uint32_t> &order, std::size_t slow,
                                                     bool verticalFirst) const
{
    const std::size_t fast = 1 - slow;
    std::vector<std::uint32_t> last(countOf(fast), kNone);
    for (std::size_t begin = 0, end = 0; begin < order.size(); begin = end) {
        const std::uint16_t group = m_pairs[order[begin]].angles[slow];
        for (; end < order.size() && m_pairs[order[end]].angles[slow] == group; ++end)
            last[m_pairs[order[end]].angles[fast]] = order[end];
        if (end - begin == last.size())
            continue;
        const auto isOther = [&](std::uint32_t at) { return at == kNone || m_pairs[at].angles[slow] != group; };
        const auto missing = std::find_if(last.begin(), last.end(), isOther);
        const bool isFirst = missing == last.begin();
        const auto angle = static_cast<std::uint16_t>(missing - last.begin());
        const Pair &beside = m_pairs[isFirst ? order[begin] : *(missing - 1)];
        return faultOfPair(beside.line, 0,
                           wordsOf(slow == 0 ? group : angle, slow == 0 ? angle : group, verticalFirst) +
                               " is missing " + (isFirst ? "before" : "behind") + " it");
    }
    return std::nullopt;
}

std::string TablePairs::wordsOf(std::uint16_t first, std::uint16_t second, bool verticalFirst) const
{
    const double one = m_angles[0].inOrder()[first];
    const double other = m_angles[1].inOrder()[second];
    return "vertical angle " + generalText(verticalFirst ? one : other) + ", horizontal angle " +
           generalText(verticalFirst ? other : one);
}

TableContent TablePairs::content(bool verticalFirst) const
{
    const std::size_t vertical = verticalFirst ? 0 : 1;
    const std::size_t horizontal = 1 - vertical;
    TableContent content;
    const std::vector<double> down = withoutDashes(m_angles[vertical].inOrder());
    const std::vector<double> across = withoutDashes(m_angles[horizontal].inOrder());
    appendSorted(down, content.vertical);
    appendSorted(across, content.horizontal);
    const std::vector<int> rows = placesOf(down);
    const std::vector<int> columns = placesOf(across);
    content.values.reset(content.horizontal.size(), content.vertical.size());
    for (const Pair &pair : m_pairs)
        content.values(columns[pair.angles[horizontal]], rows[pair.angles[vertical]]) = pair.value;
    return content;
}

}  // namespace penwright
