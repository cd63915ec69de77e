#pragma once

#include "grid/GridBlock.h"

class QTableView;

namespace penwright {

class GridCellEditor;
class GridModel;

/// What a grid does with its selected block of cells.
class GridBlockActions {
public:
    /// All three outlive it.
    GridBlockActions(const QTableView &view, GridModel &model, GridCellEditor &editor)
        : m_view(view), m_model(model), m_editor(editor)
    {
    }

    /// Puts on the clipboard what the source makes of the block.
    void copy() const;

    /// Pastes the clipboard as the source has it pasted. One cell goes into the text of an open editor, whatever line
    /// end stands behind it; before anything else that text is committed when it is valid, and dropped when it is not.
    /// A paste that is refused leaves the editor open.
    void paste() const;

    /// Empties the block's cells.
    void clear() const;

private:
    GridBlock selected() const;
    void commitFirst() const;

    const QTableView &m_view;
    GridModel &m_model;
    GridCellEditor &m_editor;
};

}  // namespace penwright
