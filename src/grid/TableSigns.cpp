#include "grid/TableSigns.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "core/Ascii.h"
#include "grid/TableAngle.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

/// What the cells of a table say of one sign, a point or a comma.
struct SignUse {
    bool isDecimal = false;    ///< some cell has it as no sign between thousands could stand
    bool isThousands = false;  ///< some cell has it as no decimal sign could stand
    bool isThere = false;      ///< some number has it
};

/// Whether the cell is a number with the sign between its thousands alone.
bool isGrouped(std::string_view cell, char sign)
{
    TableReading reading;
    reading.decimalSign = sign == '.' ? ',' : '.';
    reading.thousandsSign = sign;
    return tableAngle(cell, reading).has_value();
}

bool isDecimal(std::string_view cell, char sign, char thousands)
{
    TableReading reading;
    reading.decimalSign = sign;
    reading.thousandsSign = thousands;
    return tableAngle(cell, reading).has_value();
}

void note(SignUse &use, std::string_view cell, char sign, char otherThousands)
{
    if (cell.find(sign) == std::string_view::npos)
        return;
    const bool canBeDecimal = isDecimal(cell, sign, kNoSign) || isDecimal(cell, sign, sign == '.' ? ',' : '.') ||
                              isDecimal(cell, sign, otherThousands);
    const bool canBeThousands = isGrouped(cell, sign);
    use.isThere |= canBeDecimal || canBeThousands;
    use.isDecimal |= canBeDecimal && !canBeThousands;
    use.isThousands |= canBeThousands && !canBeDecimal;
}

/// The cells of the table, and of the lines above it where its angles may stand.
template <typename Use>
void eachCell(const TableSample &sample, const Use &use)
{
    for (std::size_t at = sample.first - std::min(sample.first, kLinesAbove); at < sample.lines.size(); ++at)
        if (sample.lines[at].cells.size() + 1 >= sample.width)
            for (const std::string_view cell : sample.lines[at].cells)
                use(cell);
}

/// An apostrophe or a blank between digits, which is no decimal sign anywhere.
char plainThousands(const TableSample &sample)
{
    char found = kNoSign;
    eachCell(sample, [&found](std::string_view cell) {
        for (const char sign : {'\'', ' '})
            for (const char decimal : {'.', ','}) {
                TableReading reading;
                reading.decimalSign = decimal;
                const bool isPlain = tableNumber(cell, reading).has_value();
                reading.thousandsSign = sign;
                if (!isPlain && tableNumber(cell, reading))
                    found = sign;
            }
    });
    return found;
}

/// The lines of the table without their first cells, which may be angles.
std::vector<std::vector<std::string_view>> valueCells(const TableSample &sample)
{
    std::vector<std::vector<std::string_view>> lines;
    for (std::size_t at = sample.first; at < sample.lines.size(); ++at) {
        const auto &cells = sample.lines[at].cells;
        if (cells.size() == sample.width)
            lines.emplace_back(cells.begin() + (sample.width > 1 ? 1 : 0), cells.end());
    }
    return lines;
}

/// How much the values jump from cell to cell, down and across, in factors.
double roughness(const std::vector<std::vector<std::string_view>> &lines, const TableReading &reading)
{
    double sum = 0;
    std::vector<double> above;
    for (const auto &line : lines) {
        std::vector<double> here;
        for (const std::string_view cell : line) {
            const double value = tableNumber(cell, reading).value_or(0);
            for (const double other : {here.empty() ? 0 : here.back(), above.empty() ? 0 : above[here.size()]})
                sum += value > 0 && other > 0 ? std::fabs(std::log(value / other)) : 0;
            here.push_back(value);
        }
        above = here;
    }
    return sum;
}

/// Whether the only sign of a table, which could be either, stands between thousands: beside whole numbers of up to
/// three digits without it, none of four, and with less of a jump between them; or beside zeros without it alone.
bool fitsThousands(const TableSample &sample, char sign)
{
    const auto lines = valueCells(sample);
    std::size_t plain = 0;
    std::size_t longest = 0;
    bool hasZero = false;
    bool hasRound = false;
    for (const auto &line : lines)
        for (const std::string_view cell : line) {
            const bool isWhole = !cell.empty() && std::all_of(cell.begin(), cell.end(), isDigit);
            hasZero |= cell == "0";
            hasRound |= !isWhole && cell.ends_with('0');
            if (isWhole && cell != "0") {
                ++plain;
                longest = std::max(longest, cell.size());
            }
        }
    // Decimals that end with 0 are written with all their digits, and so would be a zero among them.
    if (plain == 0)
        return hasZero && hasRound;
    if (longest > 3)
        return false;
    TableReading decimal;
    decimal.decimalSign = sign;
    TableReading thousands;
    thousands.decimalSign = sign == '.' ? ',' : '.';
    thousands.thousandsSign = sign;
    return roughness(lines, thousands) < roughness(lines, decimal);
}

}  // namespace

void findSigns(const TableSample &sample, TableReading &reading)
{
    reading.thousandsSign = plainThousands(sample);
    SignUse point;
    SignUse comma;
    eachCell(sample, [&](std::string_view cell) {
        note(point, cell, '.', reading.thousandsSign);
        note(comma, cell, ',', reading.thousandsSign);
    });
    const bool hasOther = reading.thousandsSign != kNoSign;
    const auto isBetweenThousands = [&](const SignUse &use, const SignUse &other, char sign) {
        if (!use.isThere || use.isDecimal || hasOther)
            return false;
        return use.isThousands || other.isDecimal || (!other.isThere && fitsThousands(sample, sign));
    };
    if (isBetweenThousands(point, comma, '.')) {
        reading.decimalSign = ',';
        reading.thousandsSign = '.';
    } else if (isBetweenThousands(comma, point, ',')) {
        reading.decimalSign = '.';
        reading.thousandsSign = ',';
    } else {
        reading.decimalSign = comma.isThere && !point.isDecimal ? ',' : '.';
    }
}

}  // namespace penwright
