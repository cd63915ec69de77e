#include "grid/SourceEdits.h"

#include <algorithm>
#include <utility>

#include "core/LineEnds.h"

namespace penwright {

GridEdit typedEdit(const GridSource &source, int row, int column, std::string_view text)
{
    GridEdit edit{.name = "Typing", .block = {row, column, row, column}};
    if (row <= source.rowCount() || !source.kept(text).empty()) {
        edit.texts.push_back({row, column, inOneLine(text)});
        edit.rows = row;
    }
    return edit;
}

GridEdit clearingEdit(const GridSource &source, const GridBlock &block)
{
    GridEdit edit{.name = "Clear", .block = block, .isWhole = false};
    for (int row = std::max(1, block.firstRow); row <= std::min(block.lastRow, source.rowCount()); ++row)
        for (int column = block.firstColumn; column <= block.lastColumn; ++column) {
            std::string text = source.emptied(row, column);
            if (!source.isReadOnly(column) && text != source.read(row, column))
                edit.texts.push_back({row, column, std::move(text)});
        }
    return edit;
}

std::optional<RefusedEdit> prepareEdit(GridEdit &edit, GridSource &source)
{
    if (edit.content || edit.refused)
        return std::move(edit.refused);
    std::optional<RefusedEdit> refused;
    const auto isRefused = [&](const GridText &cell) {
        if (refused && edit.isWhole)
            return true;
        auto box = source.check(cell.row, cell.column, cell.text);
        if (box && !refused) {
            refused = {cell.row, cell.column, *std::move(box)};
            edit.hint = source.hintOfRefused(cell.text);
        }
        return box.has_value();
    };
    std::erase_if(edit.texts, isRefused);
    if (refused && edit.isWhole) {
        // Nothing was written: the corrected texts are to go where these should have gone.
        refused->row = edit.block.firstRow;
        refused->column = edit.block.firstColumn;
        return refused;
    }
    if (!edit.texts.empty() || edit.rows > source.rowCount())
        edit.content = source.contentAfter(edit);
    return refused;
}

}  // namespace penwright
