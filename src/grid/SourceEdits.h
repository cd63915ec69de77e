#pragma once

#include "grid/GridSource.h"

namespace penwright {

/// The change that a text typed into a cell is, in one line. Nothing, in the row to append, where nothing of it would
/// be kept.
GridEdit typedEdit(const GridSource &source, int row, int column, std::string_view text);

/// Delete over a block: empties the cells that can be edited, but for those that refuse it.
GridEdit clearingEdit(const GridSource &source, const GridBlock &block);

/// Checks the texts of an edit, each once, and gives it its content; none when nothing is to change.
/// What was refused: of a whole edit, for the first cell of its block.
std::optional<RefusedEdit> prepareEdit(GridEdit &edit, GridSource &source);

}  // namespace penwright
