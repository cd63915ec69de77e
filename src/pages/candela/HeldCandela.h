#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/CandelaCell.h"
#include "core/OneBased.h"

namespace penwright {

/// The text of cells by (horizontal index, vertical index), exact to the last bit: a line for each vertical angle, a
/// cell for each horizontal one. A blank is an empty cell, a double has a "d" behind it.
std::string heldCells(const OneBasedTable<CandelaCell> &cells);

/// The cells of such a text, as many as it has; nothing for one with lines of unequal length, or with something else in
/// a cell. Takes memory in proportion to the text.
std::optional<OneBasedTable<CandelaCell>> cellsFromHeld(std::string_view text);

}  // namespace penwright
