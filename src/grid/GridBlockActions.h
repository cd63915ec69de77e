#pragma once

#include "grid/GridBlock.h"

namespace penwright {

class GridView;

/// What a grid does with its selected block of cells.
class GridBlockActions {
public:
    explicit GridBlockActions(GridView &grid) : m_grid(grid) {}

    /// Puts on the clipboard what the source makes of the block.
    void copy() const;

    /// Pastes the clipboard as the source has it pasted. One cell goes into the text of an open editor, whatever line
    /// end stands behind it; anything else drops the editor.
    void paste() const;

    /// Empties the block's cells.
    void clear() const;

private:
    GridBlock selected() const;

    GridView &m_grid;
};

}  // namespace penwright
