#include "grid/TableAxes.h"

#include <algorithm>
#include <optional>
#include <string>

#include "grid/AngleLook.h"
#include "grid/TableAngle.h"
#include "grid/TableHeading.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

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

/// The first axis of a corner like "Gamma \ C", or its only one.
AngleWord cornerWord(std::string_view corner)
{
    return angleWord(corner.substr(0, corner.find_first_of("\\/|")));
}

/// What a line of angles stands beside: nothing, so that it is over values alone, or a column of angles.
enum class Beside { Nothing, Column };

/// What makes a line of angles of a line of numbers: that they look like angles, or a word, a sign or an open corner
/// too.
enum class Proof { Look, Any };

/// A line of angles over the values.
struct AngleRow {
    std::size_t line = 0;         ///< its place
    std::size_t firstValues = 0;  ///< place of the first line of values
    Beside beside = Beside::Nothing;
    Axis axis;
    AngleWord corner = AngleWord::None;
    std::vector<std::size_t> columns;  ///< cells that hold values
};

/// The table of the sample as it is found out.
class TableAxes {
public:
    TableAxes(const TableSample &sample, TableReading &reading) : m_sample(sample), m_reading(reading)
    {
        m_row.firstValues = sample.first;
        m_least = sample.width;
    }

    void find();

private:
    using Cells = std::vector<std::string_view>;

    const Cells &cellsAt(std::size_t line) const { return m_sample.lines[line].cells; }
    bool isOfTheTable(const Cells &cells) const { return cells.size() <= m_sample.width && cells.size() >= m_least; }
    std::size_t firstBelow() const { return m_reading.hasAngleRow ? m_row.line + 1 : m_row.firstValues; }
    Axis columnFrom(std::size_t line) const;
    bool isColumnNamed() const;
    std::optional<AngleRow> rowFound() const;
    std::optional<AngleRow> rowOfNumbers() const;
    std::optional<AngleRow> rowAt(std::size_t line, Beside beside, Proof proof) const;
    bool isVerticalDown() const;
    bool isConstantDown() const;
    bool isConstantAcross() const;

    const TableSample &m_sample;
    TableReading &m_reading;
    AngleRow m_row;  ///< without a line of angles, where the values stand
    Axis m_column;
    std::size_t m_least = 0;  ///< cells of a line that lacks averages and sums
};

void TableAxes::find()
{
    m_column = columnFrom(m_sample.first);
    m_reading.hasAngleColumn = m_sample.width > 1 && (m_column.isMarked || looksLikeAngles(m_column.degrees));
    if (std::optional<AngleRow> row = rowFound()) {
        m_row = *std::move(row);
        m_reading.hasAngleRow = true;
        m_reading.hasAngleColumn = m_row.beside == Beside::Column;
        if (!m_row.columns.empty())
            m_least = m_row.columns.back() + 1;
        m_column = columnFrom(firstBelow());
    } else {
        m_reading.hasAngleColumn = m_reading.hasAngleColumn || isColumnNamed();
        for (std::size_t i = m_reading.hasAngleColumn ? 1 : 0; i < m_sample.width; ++i)
            m_row.columns.push_back(i);
    }
    const std::size_t first = m_reading.hasAngleRow ? m_row.line : m_row.firstValues;
    m_reading.linesToSkip = static_cast<int>(m_sample.lines[first].number) - 1;
    m_reading.verticalDown = isVerticalDown();
}

/// The angles of the first column from a line on, up to where they begin again.
Axis TableAxes::columnFrom(std::size_t line) const
{
    Axis column;
    for (; line < m_sample.lines.size(); ++line)
        if (isOfTheTable(cellsAt(line)))
            if (const std::optional<TableAngle> angle = tableAngle(cellsAt(line).front(), m_reading)) {
                if (column.degrees.size() >= 3 && angle->degrees == column.degrees.front())
                    break;
                add(column, *angle);
            }
    return column;
}

/// Whether a line of names above the values names angles over the first column, so that they need not look like a list.
bool TableAxes::isColumnNamed() const
{
    if (m_sample.width < 2 || !isMonotone(m_column.degrees))
        return false;
    for (std::size_t up = 1; up <= std::min(m_sample.first, kLinesAbove); ++up)
        if (const Cells &names = cellsAt(m_sample.first - up);
            names.size() == m_sample.width && cornerWord(names.front()) != AngleWord::None)
            return true;
    return false;
}

std::optional<AngleRow> TableAxes::rowFound() const
{
    const std::size_t first = m_sample.first;
    for (std::size_t up = 1; up <= std::min(first, kLinesAbove); ++up)
        for (const Beside beside : {Beside::Nothing, Beside::Column})
            if (std::optional<AngleRow> row = rowAt(first - up, beside, Proof::Any))
                return row;
    return rowOfNumbers();
}

/// The first line of numbers where it holds angles: with nothing over the column, or where both look like angles. It is
/// the table itself when no other line of numbers stands behind it.
std::optional<AngleRow> TableAxes::rowOfNumbers() const
{
    const std::size_t first = m_sample.first;
    const auto behind = m_sample.lines.begin() + static_cast<std::ptrdiff_t>(first) + 1;
    const auto isOfTheTable = [this](const SampleLine &line) {
        return line.isFull && line.cells.size() == m_sample.width;
    };
    if (std::none_of(behind, m_sample.lines.end(), isOfTheTable))
        return std::nullopt;
    const Cells &cells = cellsAt(first);
    if (cells.front().empty())
        return rowAt(first, Beside::Column, Proof::Any);
    const Axis column = columnFrom(first + 1);
    if (looksLikeAngles(column.degrees) || column.isMarked)
        return rowAt(first, Beside::Column, Proof::Look);
    return cells.size() > 2 ? rowAt(first, Beside::Nothing, Proof::Look) : std::nullopt;
}

/// The line as one of angles, nothing where it is none.
std::optional<AngleRow> TableAxes::rowAt(std::size_t line, Beside beside, Proof proof) const
{
    const Cells &cells = cellsAt(line);
    const bool hasColumn = beside == Beside::Column;
    if (!hasColumn && (cells.size() != m_sample.width || m_reading.hasAngleColumn))
        return std::nullopt;
    TableReading reading = m_reading;
    reading.hasAngleColumn = hasColumn;
    const TableHeading heading = tableHeading(cells, headedWidth(cells, m_sample.width, reading), reading);
    Axis axis;
    for (const TableAngle &angle : heading.angles)
        add(axis, angle);
    const std::size_t values = m_sample.width - (hasColumn ? 1 : 0);
    const bool hasCorner = heading.begin > 0;
    const AngleWord corner = hasCorner ? cornerWord(cells.front()) : AngleWord::None;
    const bool isNamed = axis.isMarked || corner != AngleWord::None || (hasCorner && cells.front().empty());
    const bool hasLook = looksLikeAngles(axis.degrees);
    // Without a word, a sign or an open corner numbers must look like angles: others may stand in a title. With one, a
    // slip among them is for the user to be told of.
    const bool isPlain = !heading.wrong && isMonotone(axis.degrees) && (isNamed || hasLook);
    const bool hasSlip = hasColumn && isNamed && axis.degrees.size() > 1 && 2 * axis.degrees.size() >= values &&
                         areInRange(axis.degrees);
    if (values == 0 || !(isPlain || hasSlip) || (proof == Proof::Look && !hasLook))
        return std::nullopt;
    return AngleRow{line, std::max(line + 1, m_sample.first), beside, axis, corner, heading.columns};
}

bool TableAxes::isVerticalDown() const
{
    if (m_row.axis.word != AngleWord::None || m_column.word != AngleWord::None)
        return m_row.axis.word == AngleWord::Horizontal || m_column.word == AngleWord::Vertical;
    // A word between the angles and the values names the column, whatever stands in the corner.
    for (std::size_t line = m_row.line + 1; m_reading.hasAngleRow && line < m_row.firstValues; ++line)
        if (const AngleWord word = cornerWord(cellsAt(line).front()); word == AngleWord::Vertical)
            return true;
    const auto isRound = [](const Axis &axis) {
        return std::any_of(axis.degrees.begin(), axis.degrees.end(), [](double angle) { return angle > 180; });
    };
    if (m_reading.hasAngleRow && isRound(m_row.axis))
        return true;
    if (m_reading.hasAngleColumn && isRound(m_column))
        return false;
    if (const bool down = isConstantDown(); m_reading.hasAngleRow && down != isConstantAcross())
        return down;
    if (m_row.corner == AngleWord::Vertical || m_row.corner == AngleWord::Horizontal)
        return m_row.corner == AngleWord::Vertical;
    if (m_reading.hasAngleRow && m_reading.hasAngleColumn)
        return m_column.degrees.size() >= m_row.axis.degrees.size();
    return !m_reading.hasAngleRow;
}

/// Whether the line at angle 0 or 180 has one value throughout, as it is one direction when the line's angle is
/// vertical.
bool TableAxes::isConstantDown() const
{
    for (std::size_t line = firstBelow(); line < m_sample.lines.size() && m_reading.hasAngleColumn; ++line) {
        const Cells &cells = cellsAt(line);
        const std::optional<TableAngle> angle = tableAngle(cells.front(), m_reading);
        if (!isOfTheTable(cells) || !angle || (angle->degrees != 0 && angle->degrees != 180))
            continue;
        std::vector<double> values;
        for (const std::size_t column : m_row.columns)
            values.push_back(tableNumber(cells[column], m_reading).value_or(0));
        if (areEqual(values))
            return true;
    }
    return false;
}

/// The same of the columns.
bool TableAxes::isConstantAcross() const
{
    for (std::size_t i = 0; i < m_row.axis.degrees.size(); ++i) {
        if (m_row.axis.degrees[i] != 0 && m_row.axis.degrees[i] != 180)
            continue;
        std::vector<double> values;
        for (std::size_t line = firstBelow(); line < m_sample.lines.size(); ++line)
            if (isOfTheTable(cellsAt(line)))
                values.push_back(tableNumber(cellsAt(line)[m_row.columns[i]], m_reading).value_or(0));
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
