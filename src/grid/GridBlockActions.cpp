#include "grid/GridBlockActions.h"

#include <QLineEdit>
#include <QTableView>

#include "controls/ClipboardText.h"
#include "grid/GridCellEditor.h"
#include "grid/GridModel.h"
#include "grid/SourceEdits.h"
#include "platform/qt/QtText.h"

namespace penwright {

GridBlock GridBlockActions::selected() const
{
    const QItemSelection selection = m_view.selectionModel()->selection();
    if (selection.isEmpty()) {
        const GridCell cell = cellOf(m_view.currentIndex());
        return {cell.row, cell.column, cell.row, cell.column};
    }
    const QItemSelectionRange &range = selection.first();  // the one that a contiguous selection has
    return {range.top() + 1, range.left(), range.bottom() + 1, range.right()};
}

void GridBlockActions::copy() const
{
    if (const auto text = m_model.source().copy(selected()))
        writeClipboardText(*text);
}

void GridBlockActions::paste() const
{
    const std::string title = m_view.window()->windowTitle().toStdString();
    try {
        const std::string text = readClipboardText();  // once: its owner may take long to answer
        if (m_editor.isOpen())
            if (const auto cell = textOfOneCell(text))
                return m_editor.line()->insert(toQString(*cell));
        if (m_editor.isOpen() && m_model.isTaken(m_model.source().paste(selected(), text, title)))
            commitFirst();
        m_model.apply(m_model.source().paste(selected(), text, title));
    } catch (const std::exception &error) {
        m_model.apply({.name = "Paste", .refused = RefusedEdit{.box = {.text = error.what(), .title = title}}});
    }
}

/// Takes what is being typed as an act of its own: a block that comes over it can be undone without it.
void GridBlockActions::commitFirst() const
{
    m_editor.commitIfValid();
    m_model.endAct();
}

void GridBlockActions::clear() const
{
    m_model.apply(clearingEdit(m_model.source(), selected()));
}

}  // namespace penwright
