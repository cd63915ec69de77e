#pragma once

#include <optional>
#include <string_view>

#include "grid/TableReading.h"

namespace penwright {

/// Which angles a word speaks of.
enum class AngleWord { None, Any, Vertical, Horizontal };

/// An angle as a cell has it, and what it says besides the number.
struct TableAngle {
    double degrees;
    AngleWord word;  ///< of the letters before it: "C90" is horizontal, "G10" vertical, "10" has none
    bool isMarked;   ///< with letters before it or a sign for degrees behind it
};

/// The angle that a cell is: a number, perhaps with "C", "Gamma" or the like before it and "deg" or its sign behind it,
/// and behind that the unit of the intensities. Two planes in one, "C0-C180", are the first of them.
std::optional<TableAngle> tableAngle(std::string_view cell, const TableReading &reading);

/// Whether a cell is an angle with whatever signs.
bool isLikeAngle(std::string_view cell);

/// The angles that a heading names: "Gamma", "C-plane", "Vertical angle".
AngleWord angleWord(std::string_view heading);

/// Whether a heading names what is made of a table, not measured: average, mean, sum, largest, in some languages.
bool isSummary(std::string_view heading);

}  // namespace penwright
