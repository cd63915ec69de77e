#include "grid/GridBlockActions.h"

#include <QLineEdit>

#include "controls/ClipboardText.h"
#include "grid/GridCellEditor.h"
#include "grid/GridView.h"
#include "platform/qt/QtText.h"

namespace penwright {

GridBlock GridBlockActions::selected() const
{
    const QItemSelection selection = m_grid.selectionModel()->selection();
    if (selection.isEmpty())
        return {m_grid.currentRow(), m_grid.currentColumn(), m_grid.currentRow(), m_grid.currentColumn()};
    const QItemSelectionRange &range = selection.first();  // the one that a contiguous selection has
    return {range.top() + 1, range.left(), range.bottom() + 1, range.right()};
}

void GridBlockActions::copy() const
{
    if (const auto text = m_grid.source().copy(selected()))
        writeClipboardText(*text);
}

void GridBlockActions::paste() const
{
    const std::string title = m_grid.window()->windowTitle().toStdString();
    try {
        const std::string text = readClipboardText();  // once: its owner may take long to answer
        if (m_grid.editor().isOpen())
            if (const auto cell = textOfOneCell(text))
                return m_grid.editor().line()->insert(toQString(*cell));
        m_grid.dropEdit();
        m_grid.apply(m_grid.source().paste(selected(), text, title));
    } catch (const std::exception &error) {
        m_grid.apply({.name = "Paste", .refused = RefusedEdit{.box = {.text = error.what(), .title = title}}});
    }
}

void GridBlockActions::clear() const
{
    m_grid.apply(clearingEdit(m_grid.source(), selected()));
}

}  // namespace penwright
