#pragma once

#include <QPointer>
#include <QTableView>

#include "grid/GridSource.h"
#include "platform/Dialogs.h"

namespace penwright {

class GridDelegate;
class GridModel;
class GridRefusal;

/// A grid that types, moves and pastes like a spreadsheet over a GridSource. Typing replaces a cell's text, F2 and a
/// double click edit it, Enter commits and moves down, or along the only row, Tab commits and walks, Escape gives the
/// old text back, Delete clears the selected cells, Ctrl+C and Ctrl+V copy and paste tab-delimited text. Alt+Down opens
/// the list of a cell that has choices. Ctrl+Tab and Ctrl+Shift+Tab leave the grid.
///
/// A text that the source refuses is told in one message once the event that committed it is over; the cell keeps its
/// old text and becomes the current one again. An editor stays open while another window has the focus.
class GridView : public QTableView {
    Q_OBJECT

public:
    /// What Tab does: walks along the row and on to the next one, or down the column. At the end it leaves the grid.
    enum class TabWay { AlongRow, DownColumn };

    explicit GridView(QWidget *parent = nullptr);
    ~GridView() override;

    /// Serves `source`, and tells refusals through `dialogs`, which outlives the grid. The source may be a member of
    /// the page: a grid whose source has ended is empty.
    void setSource(GridSource &source, Dialogs &dialogs);

    void setTabWay(TabWay way) { m_tabWay = way; }

    /// How the cells' texts stand, in editors too; left unless told.
    void setTextAlignment(Qt::Alignment alignment);

    /// Reads everything anew: row count, captions, cells. Drops an open editor; keeps the current cell where it is
    /// still there.
    void refresh();

    /// The one routine that takes what stands in an open editor. An editor left unchanged is not a new value. False
    /// when the text was refused, now or at the focus change just before; the message follows.
    bool commitEdit();

    /// Takes the text of an open editor when it is valid and drops it without a message when it is not.
    void commitEditIfValid();

    /// Closes an open editor; its text is lost.
    void dropEdit();

    /// Makes a cell (row from 1, column from 0) the current one, scrolls to it and takes the focus.
    void goTo(int row, int column);

    /// The current cell, row from 1; row 0 when there is none.
    int currentRow() const;
    int currentColumn() const;

    /// Whether a cell is being edited.
    bool isEditing() const { return !m_editor.isNull(); }

signals:
    /// A new text has been taken for one cell, by typing, clearing or pasting.
    void cellTaken(int row, int column);

    /// Another cell has become the current one; row 0 when none is.
    void currentCellChanged(int row, int column);

protected:
    /// Puts the selected block on the clipboard, a line for each row.
    virtual void copy();

    /// Pastes a block from the top left cell of the selection on, which is the current cell when only one is selected:
    /// the whole block or, with one message, nothing of it. Rows are appended where they can be.
    virtual void paste(std::string_view text);

    /// Has columns begin 600 twips wide and never become narrower.
    void useGrowingColumns();

    /// Gives such columns, those that stay too, the width that they begin with.
    void narrowColumns();

    /// Widens a column to `width` logical pixels where it is narrower.
    void growColumn(int column, double width);

    /// Has the refusal of a cell's text told once the event is over.
    void tellRefusal(int row, int column, const MessageBox &box);

    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

protected slots:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    /// A block of cells, rows from 1 and columns from 0, both ends included.
    struct Block {
        int firstRow, firstColumn, lastRow, lastColumn;
    };

    Block selectedBlock() const;
    void clearSelected();
    void pasteClipboard();
    bool fits(const Block &block, std::size_t rows, std::size_t columns);

    bool gridKey(const QKeyEvent &event);
    bool editorKey(QKeyEvent &event);
    void step(int rows);
    void walk(bool forward);
    void leave(bool forward);
    QModelIndex tabTarget(bool forward) const;
    QModelIndex alongRow(bool forward) const;
    void moveTo(const QModelIndex &cell);
    void announceCurrent();

    void begin(QWidget *editor, EditTrigger trigger);
    void endAfterFocusChange(const QWidget *now);
    bool openList();
    bool isOnArrow(const QPoint &place) const;
    void setHeaderSizes();

    static constexpr int kColumnWidth = 40;  ///< logical pixels, 600 twips

    GridModel *m_model;
    GridDelegate *m_delegate;
    GridRefusal *m_refusal;
    TabWay m_tabWay = TabWay::AlongRow;
    QPointer<QWidget> m_editor;
    Qt::FocusReason m_leftBy = Qt::OtherFocusReason;  ///< how the open editor lost the focus last
    bool m_movesItself = false;                       ///< a move of the grid's own selects one cell, whatever is held
    bool m_pressedArrow = false;
    QPoint m_announced{-1, 0};  ///< column and row that currentCellChanged told last
};

}  // namespace penwright
