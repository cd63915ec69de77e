// What the grid does with blocks of cells: clear, copy, paste.
#include <algorithm>
#include <QLineEdit>

#include "controls/ClipboardText.h"
#include "grid/GridBlock.h"
#include "grid/GridDelegate.h"
#include "grid/GridModel.h"
#include "grid/GridView.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

std::size_t widest(const GridLines &lines)
{
    std::size_t most = 0;
    for (const auto &line : lines)
        most = std::max(most, line.size());
    return most;
}

std::string counted(std::size_t number, const std::string &thing)
{
    return std::to_string(number) + " " + thing + (number == 1 ? "" : "s");
}

}  // namespace

void GridView::pasteClipboard()
{
    try {
        const std::string text = readClipboardText();  // once: its owner may take long to answer
        if (m_editor && !isGridBlock(text))
            return editorLine(m_editor)->insert(toQString(text));
        dropEdit();
        paste(text);
    } catch (const std::exception &error) {
        tellRefusal(currentRow(), currentColumn(),
                    {.text = error.what(), .title = window()->windowTitle().toStdString()});
    }
}

GridView::Block GridView::selectedBlock() const
{
    Block block{currentRow(), currentColumn(), currentRow(), currentColumn()};
    if (const QItemSelection selection = selectionModel()->selection(); !selection.isEmpty()) {
        const QItemSelectionRange &range = selection.first();  // the one that a contiguous selection has
        block = {range.top() + 1, range.left(), range.bottom() + 1, range.right()};
    }
    return block;
}

void GridView::clearSelected()
{
    const Block block = selectedBlock();
    const auto refusal = m_model->clearBlock(block.firstRow, block.firstColumn, block.lastRow, block.lastColumn);
    if (refusal)
        tellRefusal(refusal->row, refusal->column, refusal->box);
}

void GridView::copy()
{
    const Block block = selectedBlock();
    const int lastRow = std::min(block.lastRow, m_model->sourceRows());
    std::string text;
    for (int row = std::max(1, block.firstRow); row <= lastRow; ++row) {
        if (row > block.firstRow)
            text += '\n';
        for (int column = block.firstColumn; column <= block.lastColumn; ++column) {
            if (column > block.firstColumn)
                text += '\t';
            text += m_model->read(row, column);
        }
    }
    if (lastRow >= block.firstRow && lastRow >= 1)
        writeClipboardText(text);
}

void GridView::paste(std::string_view text)
{
    const GridLines lines = splitGridBlock(text);
    const Block block = selectedBlock();
    if (lines.empty() || block.firstRow < 1 || !fits(block, lines.size(), widest(lines)))
        return;
    const auto refusal =
        m_model->takeBlock(block.firstRow, block.firstColumn, lines, window()->windowTitle().toStdString());
    // Nothing was taken: the corrected block is to go where this one should have gone.
    if (refusal)
        tellRefusal(block.firstRow, block.firstColumn, refusal->box);
}

bool GridView::fits(const Block &block, std::size_t rows, std::size_t columns)
{
    const auto rowsLeft = static_cast<std::size_t>(m_model->rowCount() - block.firstRow + 1);
    const auto columnsLeft = static_cast<std::size_t>(m_model->columnCount() - block.firstColumn);
    std::string size = counted(columns, "column");
    std::string room = counted(columnsLeft, "column");
    if (!m_model->canAppend()) {
        size = counted(rows, "row") + " and " + size;
        room = counted(rowsLeft, "row") + " and " + room;
    }
    const bool fit = columns <= columnsLeft && (rows <= rowsLeft || m_model->canAppend());
    if (!fit)
        tellRefusal(block.firstRow, block.firstColumn,
                    {.text = "The copied block has " + size + ". From here on there is room for " + room + ".",
                     .title = window()->windowTitle().toStdString()});
    return fit;
}

}  // namespace penwright
