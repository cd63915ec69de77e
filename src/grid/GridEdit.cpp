#include "grid/GridEdit.h"

#include <algorithm>
#include <utility>

#include "core/Counted.h"
#include "core/LineEnds.h"
#include "grid/GridSource.h"

namespace penwright {
namespace {

/// Why a block of rows and columns finds no room from its first cell on; nothing when it does.
std::optional<std::string> lackOfRoom(const GridSource &source, const GridBlock &block, std::size_t rows,
                                      std::size_t columns)
{
    const auto rowsLeft = static_cast<std::size_t>(source.rowCount() - block.firstRow + 1);
    const auto columnsLeft = static_cast<std::size_t>(source.columnCount() - block.firstColumn);
    if (columns <= columnsLeft && (source.canAppend() || rows <= rowsLeft))
        return std::nullopt;
    std::string size = counted(columns, "column");
    std::string room = counted(columnsLeft, "column");
    if (!source.canAppend()) {
        size = counted(rows, "row") + " and " + size;
        room = counted(rowsLeft, "row") + " and " + room;
    }
    return "The copied block has " + size + ". From here on there is room for " + room + ".";
}

/// Why a text cannot go into a column that is never edited; any but the cell's own is refused.
std::optional<MessageBox> refusalOfReadOnly(const GridSource &source, int row, int column, const std::string &title)
{
    if (!source.isReadOnly(column))
        return std::nullopt;
    return MessageBox{.text = "Row " + std::to_string(row) + ": the column \"" + source.columnCaption(column) +
                              "\" cannot be changed.",
                      .title = title};
}

std::string shownText(const GridSource &source, int row, int column)
{
    return row <= source.rowCount() ? source.read(row, column) : std::string();
}

/// Leaves out the last lines of a block of which nothing would be kept: they would append empty rows.
void dropUnkeptLines(const GridSource &source, int firstRow, GridLines &lines)
{
    const auto isKept = [&](const std::string &cell) { return !source.kept(cell).empty(); };
    const auto rowsThere = static_cast<std::size_t>(std::max(0, source.rowCount() - firstRow + 1));
    while (lines.size() > rowsThere && std::none_of(lines.back().begin(), lines.back().end(), isKept))
        lines.pop_back();
}

GridEdit refusedPaste(const GridBlock &block, MessageBox box)
{
    return {.name = "Paste", .block = block, .refused = RefusedEdit{block.firstRow, block.firstColumn, std::move(box)}};
}

}  // namespace

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

GridEdit pastedEdit(const GridSource &source, const GridBlock &block, std::string_view text, const std::string &title)
{
    GridLines lines = splitGridBlock(text);
    GridEdit edit{.name = "Paste", .block = block};
    if (source.canAppend())
        dropUnkeptLines(source, block.firstRow, lines);
    if (lines.empty())
        return edit;
    if (block.firstRow < 1)
        return pasteWithoutCell(source);
    if (const auto lack = lackOfRoom(source, block, lines.size(), widestLine(lines)))
        return refusedPaste(block, {.text = *lack, .title = title});
    edit.rows = block.firstRow + static_cast<int>(lines.size()) - 1;
    for (int row = block.firstRow; auto &line : lines) {
        for (int column = block.firstColumn; std::string & cell : line) {
            if (cell != shownText(source, row, column)) {
                if (auto box = refusalOfReadOnly(source, row, column, title))
                    return refusedPaste(block, *std::move(box));
                edit.texts.push_back({row, column, std::move(cell)});
            }
            ++column;
        }
        ++row;
    }
    return edit;
}

GridEdit pasteWithoutCell(const GridSource &source)
{
    const bool hasCells = source.columnCount() > 0 && (source.rowCount() > 0 || source.canAppend());
    return {.name = "Paste", .hint = hasCells ? "Select a cell first, then paste again." : source.stepBeforeCells()};
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
        if (box && !refused)
            refused = {cell.row, cell.column, *std::move(box)};
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
