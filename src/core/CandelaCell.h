#pragma once

#include <optional>
#include <string>
#include <variant>

namespace penwright {

/// One cell of the candela table: blank, a single as typed or pasted, or a double kept from before.
using CandelaCell = std::variant<std::monostate, float, double>;

/// The cell's value, a single widened; nothing when it is blank.
std::optional<double> numberOf(const CandelaCell &cell);

/// The general form of what the cell is: 7 digits for a single, 15 for a double. A blank cell is one blank.
std::string textOf(const CandelaCell &cell);

/// Appends textOf without making a text of its own.
void appendTextOf(std::string &text, const CandelaCell &cell);

}  // namespace penwright
