#include "grid/TableAxes.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "grid/TableAngle.h"
#include "grid/TableHeading.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

/// How far above the first line of numbers the line of angles stands at most, with lines of units between them.
constexpr std::size_t kLinesAbove = 3;

/// The angles of a row or a column, and what words say of them.
struct Axis {
    std::vector<double> degrees;
    AngleWord word = AngleWord::None;
    bool isMarked = false;
};

void add(Axis &axis, const TableAngle &angle)
{
    axis.degrees.push_back(angle.degrees);
    axis.isMarked |= angle.isMarked;
    if (angle.word == AngleWord::Vertical || angle.word == AngleWord::Horizontal)
        axis.word = angle.word;
}

bool areInRange(const std::vector<double> &numbers)
{
    return std::none_of(numbers.begin(), numbers.end(), [](double number) { return std::fabs(number) > 360; });
}

/// Whether all numbers rise, or all fall, between -360 and 360.
bool isMonotone(const std::vector<double> &numbers)
{
    const bool rises = std::adjacent_find(numbers.begin(), numbers.end(), std::greater_equal<>()) == numbers.end();
    const bool falls = std::adjacent_find(numbers.begin(), numbers.end(), std::less_equal<>()) == numbers.end();
    return !numbers.empty() && (rises || falls) && areInRange(numbers);
}

/// Whether numbers without a word look like a list of angles: few steps, and a beginning or end as lists have it.
bool looksLikeAngles(const std::vector<double> &numbers)
{
    if (numbers.size() < 2 || !isMonotone(numbers))
        return false;
    std::vector<long> steps;
    for (std::size_t i = 1; i < numbers.size(); ++i)
        steps.push_back(std::lround(1000 * std::fabs(numbers[i] - numbers[i - 1])));
    const long firstStep = numbers.front() < numbers.back() ? steps.front() : steps.back();
    std::sort(steps.begin(), steps.end());
    const auto distinct = std::unique(steps.begin(), steps.end()) - steps.begin();
    const double least = std::min(numbers.front(), numbers.back());
    const bool isHalfAStep = std::lround(2000 * least) == firstStep;
    static constexpr double kUsual[]{-180, -90, -85, -80, -75, -60, -45, -30, 0, 30, 45, 60, 90, 180, 270};
    const bool isUsual = std::find(std::begin(kUsual), std::end(kUsual), least) != std::end(kUsual);
    return (isUsual || isHalfAStep) && distinct <= 2 + static_cast<std::ptrdiff_t>(numbers.size()) / 4;
}

/// The first axis of a corner like "Gamma \ C", or its only one.
AngleWord cornerWord(std::string_view corner)
{
    return angleWord(corner.substr(0, corner.find_first_of("\\/|")));
}

/// The table of the sample as it is found out.
class TableAxes {
public:
    TableAxes(const TableSample &sample, TableReading &reading)
        : m_sample(sample), m_reading(reading), m_firstRow(sample.first)
    {
    }

    void find();

private:
    using Cells = std::vector<std::string_view>;

    const Cells &cellsAt(std::size_t line) const { return m_sample.lines[line].cells; }
    void findRow();
    bool isRowAbove(std::size_t line);
    bool isRowOfNumbers();
    bool isRow(const Cells &cells, bool hasColumn, bool needsLook);
    void readColumn();
    bool isVerticalDown() const;
    bool isConstantDown() const;
    bool isConstantAcross() const;

    const TableSample &m_sample;
    TableReading &m_reading;
    std::size_t m_firstRow;       ///< place of the first line of values
    std::size_t m_angleLine = 0;  ///< place of the line of angles
    Axis m_row;
    Axis m_column;
    AngleWord m_corner = AngleWord::None;
    std::vector<std::size_t> m_columns;  ///< cells that hold values
};

void TableAxes::find()
{
    readColumn();
    m_reading.hasAngleColumn = m_sample.width > 1 && (m_column.isMarked || looksLikeAngles(m_column.degrees));
    findRow();
    if (!m_reading.hasAngleRow)
        for (std::size_t i = m_reading.hasAngleColumn ? 1 : 0; i < m_sample.width; ++i)
            m_columns.push_back(i);
    readColumn();
    const std::size_t first = m_reading.hasAngleRow ? m_angleLine : m_firstRow;
    m_reading.linesToSkip = static_cast<int>(m_sample.lines[first].number) - 1;
    m_reading.verticalDown = isVerticalDown();
}

/// The angles of the first column from the first line of values on.
void TableAxes::readColumn()
{
    m_column = Axis();
    for (std::size_t line = m_firstRow; line < m_sample.lines.size(); ++line)
        if (cellsAt(line).size() == m_sample.width)
            if (const std::optional<TableAngle> angle = tableAngle(cellsAt(line).front(), m_reading))
                add(m_column, *angle);
}

void TableAxes::findRow()
{
    const std::size_t first = m_sample.first;
    for (std::size_t up = 1; up <= std::min(first, kLinesAbove) && !m_reading.hasAngleRow; ++up)
        m_reading.hasAngleRow = isRowAbove(first - up);
    if (!m_reading.hasAngleRow)
        m_reading.hasAngleRow = isRowOfNumbers();
}

bool TableAxes::isRowAbove(std::size_t line)
{
    const Cells &cells = cellsAt(line);
    m_angleLine = line;
    return isRow(cells, false, false) || isRow(cells, true, false);
}

/// Whether the first line of numbers holds angles: with nothing over the column, or where both look like angles. It is
/// the table itself when no other line of numbers stands behind it.
bool TableAxes::isRowOfNumbers()
{
    const auto behind = m_sample.lines.begin() + static_cast<std::ptrdiff_t>(m_sample.first) + 1;
    const auto isOfTheTable = [this](const SampleLine &line) {
        return line.isFull && line.cells.size() == m_sample.width;
    };
    if (std::none_of(behind, m_sample.lines.end(), isOfTheTable))
        return false;
    const Cells &cells = cellsAt(m_sample.first);
    m_angleLine = m_sample.first;
    m_firstRow = m_sample.first + 1;
    readColumn();
    const bool isOverColumn = cells.front().empty() || looksLikeAngles(m_column.degrees) || m_column.isMarked;
    if (isOverColumn ? isRow(cells, true, !cells.front().empty()) : cells.size() > 2 && isRow(cells, false, true))
        return true;
    m_firstRow = m_sample.first;
    return false;
}

/// Whether the cells are a line of angles, beside a column of angles or not; notes what they say.
bool TableAxes::isRow(const Cells &cells, bool hasColumn, bool needsLook)
{
    TableReading reading = m_reading;
    reading.hasAngleColumn = hasColumn;
    const TableHeading heading = tableHeading(cells, m_sample.width, reading);
    Axis row;
    for (const TableAngle &angle : heading.angles)
        add(row, angle);
    const std::size_t values = m_sample.width - (hasColumn ? 1 : 0);
    const bool hasCorner = heading.begin > 0;
    const AngleWord corner = hasCorner ? cornerWord(cells.front()) : AngleWord::None;
    const bool isNamed = row.isMarked || corner != AngleWord::None || (hasCorner && cells.front().empty());
    // Without a word, a sign or an open corner numbers must look like angles: others may stand in a title. With one, a
    // slip among them is for the user to be told of.
    const bool isPlain = !heading.wrong && isMonotone(row.degrees) && (isNamed || looksLikeAngles(row.degrees));
    const bool hasSlip =
        hasColumn && isNamed && row.degrees.size() > 1 && 2 * row.degrees.size() >= values && areInRange(row.degrees);
    if (values == 0 || !(isPlain || hasSlip) || (needsLook && !looksLikeAngles(row.degrees)))
        return false;
    if (!hasColumn && (cells.size() != m_sample.width || m_reading.hasAngleColumn))
        return false;
    m_row = row;
    m_columns = heading.columns;
    m_corner = corner;
    m_reading.hasAngleColumn = hasColumn;
    return true;
}

bool TableAxes::isVerticalDown() const
{
    if (m_row.word != AngleWord::None || m_column.word != AngleWord::None)
        return m_row.word == AngleWord::Horizontal || m_column.word == AngleWord::Vertical;
    // A word between the angles and the values names the column, whatever stands in the corner.
    for (std::size_t line = m_angleLine + 1; m_reading.hasAngleRow && line < m_firstRow; ++line)
        if (const AngleWord word = cornerWord(cellsAt(line).front()); word == AngleWord::Vertical)
            return true;
    const auto isRound = [](const Axis &axis) {
        return std::any_of(axis.degrees.begin(), axis.degrees.end(), [](double angle) { return angle > 180; });
    };
    if (m_reading.hasAngleRow && isRound(m_row))
        return true;
    if (m_reading.hasAngleColumn && isRound(m_column))
        return false;
    if (const bool down = isConstantDown(); m_reading.hasAngleRow && down != isConstantAcross())
        return down;
    if (m_corner == AngleWord::Vertical || m_corner == AngleWord::Horizontal)
        return m_corner == AngleWord::Vertical;
    if (m_reading.hasAngleRow && m_reading.hasAngleColumn)
        return m_column.degrees.size() >= m_row.degrees.size();
    return !m_reading.hasAngleRow;
}

bool areEqual(const std::vector<double> &values)
{
    if (values.size() < 2)
        return false;
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return *most > 0 && *most - *least <= 0.002 * *most;
}

/// Whether the line at angle 0 or 180 has one value throughout, as it is one direction when the line's angle is
/// vertical.
bool TableAxes::isConstantDown() const
{
    for (std::size_t line = m_firstRow; line < m_sample.lines.size() && m_reading.hasAngleColumn; ++line) {
        const Cells &cells = cellsAt(line);
        const std::optional<TableAngle> angle = tableAngle(cells.front(), m_reading);
        if (cells.size() != m_sample.width || !angle || (angle->degrees != 0 && angle->degrees != 180))
            continue;
        std::vector<double> values;
        for (const std::size_t column : m_columns)
            values.push_back(tableNumber(cells[column], m_reading).value_or(0));
        if (areEqual(values))
            return true;
    }
    return false;
}

/// The same of the columns.
bool TableAxes::isConstantAcross() const
{
    for (std::size_t i = 0; i < m_row.degrees.size(); ++i) {
        if (m_row.degrees[i] != 0 && m_row.degrees[i] != 180)
            continue;
        std::vector<double> values;
        for (std::size_t line = m_firstRow; line < m_sample.lines.size(); ++line)
            if (cellsAt(line).size() == m_sample.width)
                values.push_back(tableNumber(cellsAt(line)[m_columns[i]], m_reading).value_or(0));
        if (areEqual(values))
            return true;
    }
    return false;
}

}  // namespace

void findAxes(const TableSample &sample, TableReading &reading)
{
    TableAxes(sample, reading).find();
}

}  // namespace penwright
