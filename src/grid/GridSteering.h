#pragma once

#include "grid/GridBlockActions.h"
#include "grid/GridWalk.h"

class QKeyEvent;
class QMouseEvent;
class QTableView;

namespace penwright {

class GridCellEditor;
class GridModel;

/// What a key pressed in a grid comes to.
enum class KeyUse {
    None,       ///< it is none of the grid's own
    Done,       ///< it has done its work
    Leaves,     ///< the focus is to go on from the grid
    MovesRows,  ///< the view is to move its current cell, as without an editor
};

/// What a grid's own keys and the arrow that opens a cell's choices do: where the current cell goes, what is copied,
/// pasted and cleared.
class GridSteering {
public:
    /// All three outlive it.
    GridSteering(QTableView &view, GridModel &model, GridCellEditor &editor);

    void setTabWay(TabWay way) { m_tabWay = way; }

    /// A key pressed in the grid, without an editor that has it.
    KeyUse gridKey(const QKeyEvent &event);

    /// A key pressed in the open editor. What leaves the cell commits it first, and stays where it is refused.
    KeyUse editorKey(const QKeyEvent &event);

    /// Copies the selected block, and pastes one, as the keys do.
    void copy() { m_block.copy(); }
    void paste() { m_block.paste(); }

    /// Goes on as Tab does from the current cell; false where that leaves the grid.
    bool walkOn(bool forward);

    /// Makes the first cell that can be edited the current one.
    void goToFirst();

    /// Makes a cell the current one and selects it alone, whatever keys are held; none that is not there.
    void moveTo(const GridCell &cell);

    /// Whether it moves the current cell itself just now.
    bool isMoving() const { return m_isMoving; }

    /// A button of the mouse pressed and released. Whether it is for the arrow, whose release opens the list.
    bool pressArrow(const QMouseEvent &event);
    bool releaseArrow(const QMouseEvent &event);

private:
    bool walk(GridKey key, bool forward);
    bool openList();
    bool isOnArrow(const QMouseEvent &event) const;

    QTableView &m_view;
    GridModel &m_model;
    GridCellEditor &m_editor;
    GridBlockActions m_block;
    TabWay m_tabWay = TabWay::AlongRow;
    bool m_isMoving = false;
    bool m_pressedArrow = false;
};

}  // namespace penwright
