#include "grid/GridSource.h"

#include <algorithm>
#include <utility>

#include "core/Counted.h"
#include "core/NumberText.h"

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

int rowAtDistance(std::string_view start, int fromNowhere, int offset)
{
    const double from = start.empty() ? fromNowhere : toInt32(start);
    return toInt32(from + offset);
}

GridEdit GridSource::paste(const GridBlock &block, std::string_view text, const std::string &title)
{
    GridLines lines = splitGridBlock(text);
    GridEdit edit{.name = "Paste", .block = block};
    if (canAppend())
        dropUnkeptLines(*this, block.firstRow, lines);
    if (lines.empty())
        return edit;
    if (block.firstRow < 1)
        return pasteWithoutCell();
    if (const auto lack = lackOfRoom(*this, block, lines.size(), widestLine(lines)))
        return refusedPaste(block, {.text = *lack, .title = title});
    edit.rows = block.firstRow + static_cast<int>(lines.size()) - 1;
    for (int row = block.firstRow; auto &line : lines) {
        for (int column = block.firstColumn; std::string & cell : line) {
            if (cell != shownText(*this, row, column)) {
                if (auto box = refusalOfReadOnly(*this, row, column, title))
                    return refusedPaste(block, *std::move(box));
                edit.texts.push_back({row, column, std::move(cell)});
            }
            ++column;
        }
        ++row;
    }
    return edit;
}

GridEdit GridSource::pasteWithoutCell() const
{
    const bool hasCells = columnCount() > 0 && (rowCount() > 0 || canAppend());
    return {.name = "Paste", .hint = hasCells ? "Select a cell first, then paste again." : stepBeforeCells()};
}

std::optional<std::string> GridSource::copy(const GridBlock &block) const
{
    const int first = std::max(1, block.firstRow);
    const int last = std::min(block.lastRow, rowCount());
    if (first > last)
        return std::nullopt;
    std::string text;
    for (int row = first; row <= last; ++row) {
        if (row > first)
            text += '\n';
        for (int column = block.firstColumn; column <= block.lastColumn; ++column) {
            if (column > block.firstColumn)
                text += '\t';
            text += read(row, column);
        }
    }
    return text;
}

}  // namespace penwright
