#pragma once

#include <QTableView>

#include <memory>
#include <optional>

#include "grid/GridSource.h"
#include "grid/GridSteering.h"
#include "platform/Dialogs.h"

class QMenu;

namespace penwright {

class GridCellEditor;
class GridDelegate;
class GridModel;
class GridRefusal;

/// A grid that types, moves and pastes like a spreadsheet over a GridSource. Typing replaces a cell's text, F2 and a
/// double click edit it, Enter commits and moves down, or along the only row, Tab commits and walks, Escape gives the
/// old text back, Delete clears the selected cells, Ctrl+C and Ctrl+V copy and paste tab-delimited text. F4 and
/// Alt+Down open the list of a cell that has choices. Ctrl+Shift+Up and Ctrl+Shift+Down extend the selection to the
/// first and the last row. Ctrl+Tab and Ctrl+Shift+Tab leave the grid. A menu, `mnuGrid`, copies, pastes and takes
/// steps back.
///
/// A text that the source refuses is told in one message once the event that committed it is over; the cell keeps its
/// old text and becomes the current one again. An editor stays open while another window has the focus.
class GridView : public QTableView {
    Q_OBJECT

public:
    explicit GridView(QWidget *parent = nullptr);
    ~GridView() override;

    /// Serves `source`, and tells refusals through `dialogs`, which outlives the grid.
    void setSource(std::shared_ptr<GridSource> source, Dialogs &dialogs);

    GridSource &source() const;

    /// Through which every change goes.
    GridModel &changes() const { return *m_model; }

    /// The entries for undo and redo in the menu of the grid, which has one to copy and one to paste as well.
    virtual void setStepActions(QAction *undo, QAction *redo);

    /// From here on the menu and Ctrl+Shift+V ask for a table to be pasted that is yet to be understood.
    void offerTablePaste();

    void setTabWay(TabWay way) { m_steering.setTabWay(way); }

    /// How the cells' texts stand, in editors too; left unless told.
    void setTextAlignment(Qt::Alignment alignment);

    /// Makes a change of the source, as GridModel::apply does. One of rows and columns drops an open editor and keeps
    /// the current cell where it is still there.
    bool apply(GridEdit edit);

    /// The one routine that commits what stands in an open editor. An editor left unchanged is not a new value, nor is
    /// a text edited back to what it was. False when the text was refused, now or at the focus change just before; the
    /// message follows.
    bool commitEdit();

    /// Commits the text of an open editor when it is valid and drops it without a message when it is not.
    void commitEditIfValid();

    /// Closes an open editor; its text is lost.
    void dropEdit();

    /// Makes a cell (row from 1, column from 0) the current one, scrolls to it and takes the focus.
    void goTo(int row, int column);

    /// Makes a cell the current one and selects it alone; the focus stays where it is.
    void makeCurrent(int row, int column);

    /// The current cell, row from 1; row 0 when there is none.
    int currentRow() const;
    int currentColumn() const;

    /// Whether a cell is being edited.
    bool isEditing() const;

    /// The cell that is being edited with the text in its editor; nothing while none is.
    std::optional<GridText> halfTyped() const;

    /// Opens a cell's editor with a text in it, to be edited on. A cell that is not there, or that takes no text,
    /// changes nothing.
    void resumeTyping(const GridText &cell);

    const GridCellEditor &editor() const { return *m_editor; }

signals:
    /// A table is to be pasted that is yet to be understood; the event that asks for it is over.
    void tablePasteAsked();

    /// The text in an open editor has changed; no cell holds it yet.
    void halfTypedChanged();

    /// A text that was typed into a cell's editor has been given up with Escape.
    void givenUp(const penwright::GridText &cell);

    /// A new text has been written into one cell, by typing, clearing or pasting.
    void cellWritten(int row, int column);

    /// Every value may have changed at once, in the rows and columns that there were.
    void valuesReplaced();

    /// What is said of the latest change, under the grid; "" for nothing.
    void hinted(const QString &hint);

    /// Rows, columns and captions have been read anew.
    void rebuilt();

    /// Another cell has become the current one; row 0 when none is.
    void currentCellChanged(int row, int column);

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

    /// Where a menu opens that an event asks for: at the current cell when it is asked for by key.
    QPoint menuPlace(const QContextMenuEvent &event) const;

protected slots:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    bool follow(KeyUse use, QKeyEvent &event);
    void giveUpEdit();
    bool asksForTable(const QKeyEvent &event) const;
    void askForTable();
    void announceCurrent();
    void showRebuilt();
    void showRefused(int row, int column);
    void tellRefusal(const RefusedEdit &refused);
    void setHeaderSizes();
    QAction *addMenuAction(const char *name, const QString &text, const QKeySequence &key);

    GridModel *m_model;
    GridDelegate *m_delegate;
    GridRefusal *m_refusal;
    std::unique_ptr<GridCellEditor> m_editor;
    GridSteering m_steering;
    QMenu *m_menu;
    bool m_takesTables = false;
    GridCell m_before;            ///< the current cell while rows and columns are read anew
    GridCell m_announced{0, -1};  ///< what currentCellChanged told last
};

}  // namespace penwright
