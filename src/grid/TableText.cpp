#include "grid/TableText.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/Counted.h"
#include "core/NumberText.h"
#include "core/TextBytes.h"
#include "grid/TableAngle.h"
#include "grid/TableBody.h"
#include "grid/TableFrame.h"
#include "grid/TableHeading.h"
#include "grid/TableLines.h"
#include "grid/TableList.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

/// Whether a number is there, and letters behind a blank.
bool isNumberWithUnit(std::string_view cell)
{
    const std::size_t blank = cell.rfind(' ');
    return blank != std::string_view::npos && isLikeNumber(cell.substr(0, blank)) &&
           !isLikeNumber(cell.substr(blank + 1));
}

/// A text while it is read. The first fault stays and ends the reading.
class TableTextReading {
public:
    TableTextReading(std::string_view text, const TableReading &reading)
        : m_text(text), m_reading(reading), m_lines(text, reading.separator, tableFrame(text, reading.separator))
    {
    }

    std::variant<TableContent, TableFault> run(const std::function<bool(double)> &goOn);

private:
    void readLine(const TableLine &line);
    void begin(const TableLine &line);
    bool goesOn(const TableLine &line);
    void beginPart(const TableLine &line, const TableHeading &heading);
    void endPart(std::size_t line);
    void readRow(const TableLine &line);
    void readAngle(const TableLine &line);
    bool hasNumbers(const TableLine &line) const;
    bool isRemark(const TableLine &line) const;
    std::size_t firstNoNumber(const TableLine &line) const;
    void refuse(std::size_t line, std::size_t cell, const std::string &wrong);
    void refuseCell(const TableLine &line, std::size_t place);
    void refuseWidth(const TableLine &line, std::size_t above);
    void refuseTurn(std::size_t line, std::size_t cell, double angle, double before);
    void refuseOther(const TableLine &line);
    bool beginsAgain(const TableLine &line) const;

    std::string_view m_text;
    TableReading m_reading;
    TableLines m_lines;
    std::optional<TableLine> m_heading;            ///< the line of angles over the values
    std::vector<std::string_view> m_aboveHeading;  ///< the last line that is skipped
    std::size_t m_width = 0;                       ///< cells of a whole line, 0 before the first line of values
    std::size_t m_least = 0;                       ///< cells of a line that lacks averages and sums
    std::vector<std::size_t> m_columns;            ///< cells with values
    TableBody m_body;                              ///< its last part is read
    std::size_t m_rows = 0;                        ///< of the first part
    std::size_t m_rowsAbovePage = 0;               ///< above the line of angles that came again last
    std::size_t m_lastLine = 0;
    std::optional<TableFault> m_remarkAbove;  ///< the first line without numbers above the values
    std::optional<TableFault> m_remark;       ///< a remark behind the values, which is a fault when more values follow
    std::optional<TableFault> m_fault;
};

std::variant<TableContent, TableFault> TableTextReading::run(const std::function<bool(double)> &goOn)
{
    const bool isWhole = eachLine(m_lines, m_text.size(), goOn, [this](const TableLine &line) {
        m_lastLine = line.number;
        if (line.number > static_cast<std::size_t>(std::max(m_reading.linesToSkip, 0)))
            readLine(line);
        else
            m_aboveHeading = line.cells;
        return !m_fault;
    });
    if (!isWhole && !m_fault)
        return TableFault();
    if (!m_fault && m_rows == 0)
        m_fault = faultOfNothing(m_remarkAbove);
    if (!m_fault)
        endPart(m_lastLine);
    if (m_fault)
        return *m_fault;
    return m_body.content(m_reading.verticalDown);
}

void TableTextReading::readLine(const TableLine &line)
{
    if (m_reading.hasAngleRow && !m_heading) {
        m_heading = line;
        return;
    }
    const bool isNamedSummary = m_reading.hasAngleColumn && isSummary(line.cells.front());
    if (isNamedSummary || (m_rows > 0 && goesOn(line)) || (m_remark && isRemark(line)))
        return;
    if (isRemark(line)) {
        const bool isUnderNewAngles = m_body.parts.size() > 1 && m_body.parts.back().rows == 0;
        if (isUnderNewAngles && !hasNumbers(line))
            return;
        std::optional<TableFault> &remark = m_rows > 0 ? m_remark : m_remarkAbove;
        if (!remark) {
            refuseCell(line, firstNoNumber(line));
            remark = std::exchange(m_fault, std::nullopt);
        }
        return;
    }
    if (beginsAgain(line))
        refuseOther(line);
    else if (m_remark)
        m_fault = m_remark;
    else
        readRow(line);
}

/// Whether a line of values begins with the table's first angle once more.
bool TableTextReading::beginsAgain(const TableLine &line) const
{
    if (!m_reading.hasAngleColumn || m_body.parts.back().rows < 2)
        return false;
    const std::optional<TableAngle> angle = tableAngle(line.cells.front(), m_reading);
    return angle && angle->degrees == m_body.down.front() && m_body.down.back() != m_body.down.front();
}

/// Whether a line below values is one of angles again: the same, as on a new page, or those of further planes.
bool TableTextReading::goesOn(const TableLine &line)
{
    if (!m_heading || !m_reading.hasAngleColumn)
        return false;
    if (line.cells == m_heading->cells) {
        m_rowsAbovePage = m_body.parts.back().rows;
        m_remark.reset();
        return true;
    }
    const std::optional<TableAngle> first = tableAngle(line.cells.front(), m_reading);
    const std::string_view corner = line.cells.front();
    const bool isCorner = corner.empty() || corner == m_heading->cells.front() || angleWord(corner) != AngleWord::None;
    if (m_body.across.empty() || (first ? first->word == AngleWord::None : !isCorner))
        return false;
    const TableHeading heading = tableHeading(line.cells, line.cells.size() + (first ? 1 : 0), m_reading);
    const auto isBare = [](const TableAngle &angle) { return angle.word == AngleWord::None; };
    if (first && std::any_of(heading.angles.begin(), heading.angles.end(), isBare))
        return false;  // a line of values under an angle in words: "G5"
    double last = m_body.across.back();
    for (const TableAngle &angle : heading.angles) {
        if (angle.degrees == last || turnsBack(m_body.across.front(), last, angle.degrees) || angle.degrees > 360)
            return false;
        last = angle.degrees;
    }
    if (heading.wrong || heading.angles.empty())
        return false;
    beginPart(line, heading);
    return true;
}

void TableTextReading::beginPart(const TableLine &line, const TableHeading &heading)
{
    endPart(line.number);
    m_remark.reset();
    m_heading = line;
    m_columns = heading.columns;
    m_least = heading.columns.back() + 1;
    m_width = std::max(m_least, line.cells.size());
    if (m_reading.separator == TableSeparator::Blanks)
        m_least = m_width;  // which value a shorter line lacks cannot be told
    for (const TableAngle &angle : heading.angles)
        m_body.across.push_back(angle.degrees);
    m_body.parts.emplace_back();
}

/// Each part has all the lines of the first.
void TableTextReading::endPart(std::size_t line)
{
    if (m_body.parts.back().rows != m_rows)
        refuse(line, 0,
               "the planes above have " + counted(m_body.parts.back().rows, "line") + ", those before them " +
                   std::to_string(m_rows) + ".");
}

bool TableTextReading::hasNumbers(const TableLine &line) const
{
    return std::any_of(line.cells.begin(), line.cells.end(),
                       [this](std::string_view cell) { return tableNumber(cell, m_reading).has_value(); });
}

/// Whether a line says something instead of holding values: it begins with a word, and has hardly a number.
bool TableTextReading::isRemark(const TableLine &line) const
{
    const auto isNumber = [this](std::string_view cell) { return tableNumber(cell, m_reading).has_value(); };
    const std::string_view first = line.cells.front();
    const bool beginsWithAngle = m_reading.hasAngleColumn && tableAngle(first, m_reading);
    if (!beginsWithAngle && !hasNumbers(line))
        return true;
    const bool beginsWithWord = !first.empty() && first.find_first_of("0123456789") != 0 && !isNumber(first);
    if (beginsWithAngle || !beginsWithWord)
        return false;
    const auto numbers = static_cast<std::size_t>(std::count_if(line.cells.begin(), line.cells.end(), isNumber));
    return 2 * numbers <= std::max(m_width, line.cells.size());
}

std::size_t TableTextReading::firstNoNumber(const TableLine &line) const
{
    const auto isNone = [this](std::string_view cell) { return !tableNumber(cell, m_reading); };
    const auto cell = std::find_if(line.cells.begin(), line.cells.end(), isNone);
    return static_cast<std::size_t>(cell - line.cells.begin());
}

/// Settles by the first line of values which cells hold them.
void TableTextReading::begin(const TableLine &line)
{
    m_width = m_least = line.cells.size();
    const std::size_t firstValue = m_reading.hasAngleColumn ? 1 : 0;
    if (!m_heading) {
        for (std::size_t i = firstValue; i < m_width; ++i)
            m_columns.push_back(i);
        return;
    }
    std::vector<std::string_view> angles = m_heading->cells;
    takeNamesAbove(angles, m_aboveHeading, m_text, m_reading.separator);
    const bool areCellsCut = m_reading.separator != TableSeparator::Blanks;
    for (std::size_t place = m_width; areCellsCut && place < angles.size(); ++place)
        if (tableAngle(angles[place], m_reading))
            return refuseWidth(line, angles.size());
    // One column more may be an unnamed average, which one plane has none of; else numbers are cut in two, at their
    // decimal commas or at blanks.
    const bool isOnePlane = m_reading.hasAngleColumn && angles.size() == 2 && !tableAngle(angles.front(), m_reading);
    if (m_width > angles.size() + (isOnePlane ? 0 : 1))
        return refuseWidth(line, angles.size());
    m_width = headedWidth(angles, m_width, m_reading);
    const TableHeading heading = tableHeading(angles, m_width, m_reading);
    if (heading.wrong)
        return refuse(m_heading->number, m_heading->before + *heading.wrong + 1,
                      shownWord(angles[*heading.wrong]) + " is no angle.");
    m_columns = heading.columns;
    // Between blanks a cell that is missing may be any: only where the first line lacks some others may.
    if (areCellsCut && !m_columns.empty())
        m_least = m_columns.back() + 1;
    for (std::size_t i = 0; i < heading.angles.size(); ++i) {
        const double angle = heading.angles[i].degrees;
        if (!m_body.across.empty() && turnsBack(m_body.across.front(), m_body.across.back(), angle))
            refuseTurn(m_heading->number, m_heading->before + heading.begin + heading.columns[i] - firstValue + 1,
                       angle, m_body.across.back());
        m_body.across.push_back(angle);
    }
}

void TableTextReading::readRow(const TableLine &line)
{
    if (m_width == 0)
        begin(line);
    if (line.cells.size() < m_least || line.cells.size() > m_width) {
        const std::size_t place = firstNoNumber(line);
        if (line.cells.size() > m_width && place < line.cells.size() && !(place == 0 && m_reading.hasAngleColumn))
            return refuseCell(line, place);
        return refuseWidth(line, m_width);
    }
    if (m_reading.hasAngleColumn)
        readAngle(line);
    for (const std::size_t column : m_columns) {
        const std::optional<double> value = tableNumber(line.cells[column], m_reading);
        if (!value)
            return refuseCell(line, column);
        m_body.parts.back().values.push_back(*value);
    }
    if (m_columns.empty() || m_rows == kMostTableAngles ||
        std::max(m_columns.size(), m_body.across.size()) > kMostTableAngles)
        return refuse(line.number, 0, "a table has 1 to 32767 lines and columns of values.");
    m_body.parts.back().columns = m_columns.size();
    ++m_body.parts.back().rows;
    m_rows += m_body.parts.size() == 1 ? 1 : 0;
}

void TableTextReading::readAngle(const TableLine &line)
{
    const std::optional<TableAngle> angle = tableAngle(line.cells.front(), m_reading);
    if (!angle)
        return refuse(line.number, line.before + 1, shownWord(line.cells.front()) + " is no angle.");
    if (m_body.parts.size() > 1) {
        const std::size_t row = m_body.parts.back().rows;
        if (row >= m_rows || angle->degrees != m_body.down[row])
            refuse(line.number, line.before + 1,
                   "angle " + generalText(angle->degrees) + " does not stand in that place of the planes above.");
        return;
    }
    const std::vector<double> &down = m_body.down;
    if (!down.empty() && turnsBack(down.front(), down.back(), angle->degrees)) {
        if (m_rowsAbovePage == m_rows)
            refuseOther(line);
        else
            refuseTurn(line.number, line.before + 1, angle->degrees, down.back());
    }
    m_body.down.push_back(angle->degrees);
}

void TableTextReading::refuse(std::size_t line, std::size_t cell, const std::string &wrong)
{
    if (m_fault)
        return;
    m_fault = faultAt(line, cell, wrong);
    if (m_rows > 0)
        m_fault->text +=
            " Read before it: " + counted(m_rows, "line") + " of " + counted(m_columns.size(), "value") + ".";
}

void TableTextReading::refuseCell(const TableLine &line, std::size_t place)
{
    const std::string_view cell = line.cells[std::min(place, line.cells.size() - 1)];
    refuse(line.number, line.before + place + 1,
           cell.empty()             ? "the cell is empty; a number belongs there."
           : isNumberWithUnit(cell) ? shownWord(cell) + " is no number: only cd or cd/klm may stand behind one."
                                    : shownWord(cell) + " is no number.");
}

void TableTextReading::refuseWidth(const TableLine &line, std::size_t above)
{
    refuse(line.number, 0,
           counted(line.cells.size(), "cell") + " where the lines above have " + std::to_string(above) + ".");
}

void TableTextReading::refuseTurn(std::size_t line, std::size_t cell, double angle, double before)
{
    refuse(line, cell,
           "angle " + generalText(angle) + " stands behind " + generalText(before) +
               (angle < before ? "; angles must rise." : "; those before it fall."));
}

void TableTextReading::refuseOther(const TableLine &line)
{
    refuse(line.number, line.before + 1, "another table begins here; copy one table alone.");
}

}  // namespace

std::optional<std::string> tableMisfit(const TableContent &table, int vertical, int horizontal)
{
    const int rows = table.values.columns();
    const int columns = table.values.rows();
    if (rows == vertical && columns == horizontal)
        return std::nullopt;
    return std::to_string(rows) + " x " + std::to_string(columns) + " values read; " + std::to_string(vertical) +
           " x " + std::to_string(horizontal) + " needed (vertical x horizontal angles).";
}

std::variant<TableContent, TableFault> readTable(std::string_view text, const TableReading &reading,
                                                 const std::function<bool(double)> &goOn)
{
    if (text.find('\0') != std::string_view::npos)
        return TableFault{"The text has characters with the code 0: it is no table.", 0, 0};
    return reading.isList ? readList(text, reading, goOn) : TableTextReading(text, reading).run(goOn);
}

}  // namespace penwright
