#pragma once

#include <optional>

namespace penwright {

class GridSource;

/// A cell of a grid, row from 1 and column from 0; row 0 where there is none.
struct GridCell {
    int row = 0;
    int column = 0;

    bool operator==(const GridCell &) const = default;
};

/// What Tab does: walks along the row and on to the next one, or down the column. At the end it leaves the grid.
enum class TabWay { AlongRow, DownColumn };

/// The keys that go on to another cell; each with Shift goes back.
enum class GridKey { Tab, CtrlTab, Enter };

/// The cell that a key goes to from a cell; nothing where it leaves the grid. Tab passes over the columns that are read
/// only and, along the row, comes from no cell to the first one. Enter stays in the column, or in the only row, and at
/// its end in the cell.
std::optional<GridCell> nextCell(const GridSource &source, const GridCell &from, GridKey key, bool forward, TabWay way);

}  // namespace penwright
