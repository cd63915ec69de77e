#include "grid/TableBody.h"

#include <algorithm>
#include <cmath>

namespace penwright {
namespace {

/// Whether a dash stands before each number, as in "C-0" and "C-90": nobody writes a minus before 0.
bool haveDashes(const std::vector<double> &angles)
{
    const bool beginsWithDash = !angles.empty() && angles.front() == 0 && std::signbit(angles.front());
    return beginsWithDash && std::all_of(angles.begin(), angles.end(), [](double angle) { return angle <= 0; });
}

/// The angles of an axis, and their places in it from those in the text, both counted from 1.
class TurnedAxis {
public:
    TurnedAxis(const std::vector<double> &angles, std::size_t size)
        : m_size(static_cast<int>(size)), m_falls(!angles.empty() && angles.back() < angles.front())
    {
        if (m_falls)
            m_angles.assign(angles.rbegin(), angles.rend());
        else
            m_angles.assign(angles.begin(), angles.end());
    }

    int size() const { return m_size; }
    bool falls() const { return m_falls; }
    int placeOf(int inText) const { return m_falls ? m_size + 1 - inText : inText; }

    void appendTo(OneBased<double> &list) const
    {
        for (const double angle : m_angles)
            list.append(angle);
    }

private:
    std::vector<double> m_angles;
    int m_size;
    bool m_falls;
};

void putValues(const std::vector<TablePart> &parts, const TurnedAxis &down, const TurnedAxis &across, bool verticalDown,
               OneBasedTable<double> &values)
{
    int before = 0;
    for (const TablePart &part : parts) {
        const auto end = before + static_cast<int>(part.columns);
        auto value = part.values.begin();
        for (int line = 1; line <= down.size(); ++line)
            for (int cell = before + 1; cell <= end; ++cell, ++value) {
                const int row = down.placeOf(line);
                const int column = across.placeOf(cell);
                (verticalDown ? values(column, row) : values(row, column)) = *value;
            }
        before = end;
    }
}

}  // namespace

TableContent TableBody::content(bool verticalDown) const
{
    std::size_t columns = 0;
    for (const TablePart &part : parts)
        columns += part.columns;
    const TurnedAxis lines(withoutDashes(down), parts.front().rows);
    const TurnedAxis cells(withoutDashes(across), columns);
    const TurnedAxis &vertical = verticalDown ? lines : cells;
    const TurnedAxis &horizontal = verticalDown ? cells : lines;
    TableContent content;
    vertical.appendTo(content.vertical);
    horizontal.appendTo(content.horizontal);
    content.verticalFalls = vertical.falls();
    content.horizontalFalls = horizontal.falls();
    content.values.reset(horizontal.size(), vertical.size());
    putValues(parts, lines, cells, verticalDown, content.values);
    return content;
}

std::vector<double> withoutDashes(std::vector<double> angles)
{
    if (haveDashes(angles))
        std::transform(angles.begin(), angles.end(), angles.begin(), [](double angle) { return std::fabs(angle); });
    return angles;
}

bool turnsBack(double first, double last, double next)
{
    return (last > first && next < last) || (last < first && next > last);
}

}  // namespace penwright
