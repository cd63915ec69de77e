#include "grid/GridWalk.h"

#include <algorithm>

#include "grid/GridSource.h"

namespace penwright {
namespace {

int shownRows(const GridSource &source)
{
    return source.rowCount() + (source.canAppend() ? 1 : 0);
}

std::optional<GridCell> alongRow(const GridSource &source, const GridCell &from, bool forward)
{
    const int columns = source.columnCount();
    const int width = forward ? 1 : -1;
    GridCell cell = from.row < 1 ? GridCell{1, -1} : from;
    for (int looked = 0; looked <= columns; ++looked) {
        cell.column += width;
        if (cell.column < 0 || cell.column >= columns) {
            cell.row += width;
            cell.column = forward ? 0 : columns - 1;
        }
        if (cell.row < 1 || cell.row > shownRows(source) || cell.column < 0 || columns == 0)
            return std::nullopt;
        if (!source.isReadOnly(cell.column))
            return cell;
    }
    return std::nullopt;
}

std::optional<GridCell> downColumn(const GridSource &source, const GridCell &from, bool forward)
{
    const GridCell cell{from.row + (forward ? 1 : -1), from.column};
    const bool isThere = from.row >= 1 && cell.row >= 1 && cell.row <= shownRows(source);
    return isThere ? std::optional(cell) : std::nullopt;
}

std::optional<GridCell> afterEnter(const GridSource &source, const GridCell &from, bool forward)
{
    const auto cell = shownRows(source) == 1 ? alongRow(source, from, forward) : downColumn(source, from, forward);
    return cell || from.row < 1 ? cell : from;
}

}  // namespace

std::optional<GridCell> nextCell(const GridSource &source, const GridCell &from, GridKey key, bool forward, TabWay way)
{
    switch (key) {
        case GridKey::Enter:
            return afterEnter(source, from, forward);
        case GridKey::Tab:
            return way == TabWay::AlongRow ? alongRow(source, from, forward) : downColumn(source, from, forward);
        case GridKey::CtrlTab:
            break;
    }
    return std::nullopt;
}

}  // namespace penwright
