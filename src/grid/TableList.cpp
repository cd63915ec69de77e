#include "grid/TableList.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "core/Counted.h"
#include "core/NumberText.h"
#include "core/TextBytes.h"
#include "grid/TableAngle.h"
#include "grid/TableFrame.h"
#include "grid/TableLines.h"
#include "grid/TableNumber.h"
#include "grid/TablePairs.h"

namespace penwright {
namespace {

constexpr std::size_t kCells = 3;

/// A list while it is read. The first fault stays and ends the reading.
class ListReading {
public:
    ListReading(std::string_view text, const TableReading &reading)
        : m_text(text), m_reading(reading), m_lines(text, reading.separator, tableFrame(text, reading.separator))
    {
    }

    std::variant<TableContent, TableFault> run(const std::function<bool(double)> &goOn);

private:
    void readLine(const TableLine &line);
    bool isRemark(const TableLine &line) const;
    bool isLeftOut(const TableLine &line);
    void readDirection(const TableLine &line);
    void refuse(const TableLine &line, std::size_t place, const std::string &wrong);

    std::string_view m_text;
    TableReading m_reading;
    TableLines m_lines;
    TablePairs m_pairs;
    std::optional<TableFault> m_remark;  ///< the first line without numbers, above the values or behind them
    std::optional<TableFault> m_fault;
};

std::variant<TableContent, TableFault> ListReading::run(const std::function<bool(double)> &goOn)
{
    const bool isWhole = eachLine(m_lines, m_text.size(), goOn, [this](const TableLine &line) {
        if (line.number > static_cast<std::size_t>(std::max(m_reading.linesToSkip, 0)))
            readLine(line);
        return !m_fault;
    });
    if (!isWhole && !m_fault)
        return TableFault();
    if (!m_fault && m_pairs.size() == 0)
        m_fault = faultOfNothing(m_remark);
    if (!m_fault)
        m_fault = m_pairs.fault(m_reading.verticalDown);
    if (m_fault)
        return *m_fault;
    return m_pairs.content(m_reading.verticalDown);
}

void ListReading::readLine(const TableLine &line)
{
    if (isLeftOut(line))
        return;
    if (m_remark && m_pairs.size() > 0)
        m_fault = m_remark;
    else
        readDirection(line);
}

/// Whether a line says something instead of holding a direction: it begins with a word, and has hardly a number.
bool ListReading::isRemark(const TableLine &line) const
{
    const auto isAngle = [this](std::string_view cell) { return tableAngle(cell, m_reading).has_value(); };
    const auto angles = std::count_if(line.cells.begin(), line.cells.end(), isAngle);
    if (angles == 0)
        return true;
    const std::string_view first = line.cells.front();
    return angles == 1 && !first.empty() && first.find_first_of("0123456789") == std::string_view::npos;
}

/// Whether a line holds no values: a sum, or a remark, which may be over some that follow if it names angles.
bool ListReading::isLeftOut(const TableLine &line)
{
    const std::string_view first = line.cells.front();
    if (isSummary(first) && !tableAngle(first, m_reading))
        return true;
    if (!isRemark(line))
        return false;
    if (!m_remark && angleWord(line.cells.front()) == AngleWord::None) {
        refuse(line, 0, shownWord(line.cells.front()) + " is no angle.");
        m_remark = std::exchange(m_fault, std::nullopt);
    }
    return true;
}

void ListReading::readDirection(const TableLine &line)
{
    if (m_pairs.size() == 0)
        m_remark.reset();
    double angles[2]{};
    for (std::size_t place = 0; place < std::min(line.cells.size(), std::size(angles)); ++place) {
        const auto angle = tableAngle(line.cells[place], m_reading);
        if (!angle)
            return refuse(line, place, shownWord(line.cells[place]) + " is no angle.");
        angles[place] = angle->degrees;
    }
    if (line.cells.size() != kCells)
        return refuse(line, std::string::npos,
                      counted(line.cells.size(), "cell") + " where a list has 3: two angles and a value.");
    const std::optional<double> value = tableNumber(line.cells.back(), m_reading);
    if (!value)
        return refuse(line, kCells - 1, shownWord(line.cells.back()) + " is no number.");
    if (!m_pairs.add(angles[0], angles[1], *value, line))
        refuse(line, std::string::npos, "a table has 1 to 32767 lines and columns of values.");
}

/// A fault of a cell of the line, or without a place of all of it.
void ListReading::refuse(const TableLine &line, std::size_t place, const std::string &wrong)
{
    m_fault = faultAt(line.number, place == std::string::npos ? 0 : line.before + place + 1, wrong);
    if (m_pairs.size() > 0)
        m_fault->text += " Read before it: " + counted(m_pairs.size(), "line") + ".";
}

}  // namespace

std::variant<TableContent, TableFault> readList(std::string_view text, const TableReading &reading,
                                                const std::function<bool(double)> &goOn)
{
    return ListReading(text, reading).run(goOn);
}

}  // namespace penwright
