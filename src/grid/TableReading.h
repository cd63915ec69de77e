#pragma once

namespace penwright {

enum class TableSeparator { Tab, Semicolon, Comma, Blanks };

/// What the values of a table are. Per kilolumen: candela for 1000 lm of the lamps. Other: the text names a unit that
/// is none of these, and nobody can choose that.
enum class ValueUnit { Candela, PerKilolumen, Kilocandela, Millicandela, Other };

/// Stands for the sign between thousands where there is none.
inline constexpr char kNoSign = '\0';

/// How a text with a table of intensities is read: all that a user can choose.
struct TableReading {
    TableSeparator separator = TableSeparator::Tab;
    char decimalSign = '.';        ///< '.' or ','
    char thousandsSign = kNoSign;  ///< '.', ',', '\'' or ' ', each with its typographic kin, or kNoSign
    int linesToSkip = 0;           ///< lines of the text before the table, blank ones counted
    bool hasAngleRow = false;      ///< the table's first line holds angles
    bool hasAngleColumn = false;   ///< each line begins with an angle
    bool verticalDown = true;      ///< vertical angles change from line to line, horizontal ones within a line
    bool isList = false;           ///< each line is two angles, the vertical one first where verticalDown, and a value
    ValueUnit unit = ValueUnit::Candela;

    bool operator==(const TableReading &) const = default;
};

}  // namespace penwright
