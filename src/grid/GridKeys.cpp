// How keys and the mouse move in the grid and out of it.
#include <algorithm>
#include <QKeyEvent>

#include "grid/GridModel.h"
#include "grid/GridView.h"

namespace penwright {
namespace {

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isTab(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) && !(event.modifiers() & Qt::AltModifier);
}

bool isForward(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Tab && !(event.modifiers() & Qt::ShiftModifier);
}

bool opensList(const QKeyEvent &event)
{
    return event.key() == Qt::Key_F4 || (event.key() == Qt::Key_Down && (event.modifiers() & Qt::AltModifier));
}

/// The keys that a line of text has no use for: they commit and go on to move in the grid.
bool movesRows(const QKeyEvent &event)
{
    const bool isRowKey = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down || event.key() == Qt::Key_PageUp ||
                          event.key() == Qt::Key_PageDown;
    return isRowKey && !(event.modifiers() & Qt::AltModifier);
}

}  // namespace

void GridView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        event->ignore();  // the window asks the cancel question
    else if (gridKey(*event))
        event->accept();
    else
        QTableView::keyPressEvent(event);
}

bool GridView::gridKey(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Copy))
        copy();
    else if (event.matches(QKeySequence::Paste))
        pasteClipboard();
    else if (event.key() == Qt::Key_Delete && !(event.modifiers() & ~Qt::KeypadModifier))
        clearSelected();
    else if (isEnter(event))
        step(event.modifiers() & Qt::ShiftModifier ? -1 : 1);
    else if (isTab(event))  // with Ctrl held: without it the key comes as a change of focus
        leave(isForward(event));
    else
        return opensList(event) && openList();
    return true;
}

bool GridView::editorKey(QKeyEvent &event)
{
    if (event.key() == Qt::Key_Escape) {
        dropEdit();
    } else if (isEnter(event)) {
        if (commitEdit())
            step(event.modifiers() & Qt::ShiftModifier ? -1 : 1);
    } else if (isTab(event)) {
        if (commitEdit())
            event.modifiers() & Qt::ControlModifier ? leave(isForward(event)) : walk(isForward(event));
    } else if (movesRows(event)) {
        if (commitEdit())
            QTableView::keyPressEvent(&event);
    } else if (event.matches(QKeySequence::Paste)) {
        pasteClipboard();
    } else {
        return false;
    }
    return true;
}

void GridView::step(int rows)
{
    const QModelIndex current = currentIndex();
    if (m_model->rowCount() == 1) {
        if (const QModelIndex next = alongRow(rows > 0); next.isValid())
            moveTo(next);
        return;
    }
    moveTo(current.siblingAtRow(std::clamp(current.row() + rows, 0, std::max(0, m_model->rowCount() - 1))));
}

void GridView::walk(bool forward)
{
    const QModelIndex target = tabTarget(forward);
    if (target.isValid())
        moveTo(target);
    else
        leave(forward);
}

void GridView::leave(bool forward)
{
    QTableView::focusNextPrevChild(forward);
}

bool GridView::focusNextPrevChild(bool next)
{
    const QModelIndex target = tabTarget(next);
    if (!hasFocus() || !isEnabled() || !isVisible() || !target.isValid())
        return QTableView::focusNextPrevChild(next);
    moveTo(target);
    return true;
}

QModelIndex GridView::tabTarget(bool forward) const
{
    if (m_tabWay == TabWay::AlongRow)
        return alongRow(forward);
    return currentIndex().siblingAtRow(currentIndex().row() + (forward ? 1 : -1));
}

/// The next cell that can be edited; from no current cell on the first one.
QModelIndex GridView::alongRow(bool forward) const
{
    const int columns = m_model->columnCount();
    const auto leavesRow = [&](int column) { return column < 0 || column >= columns; };
    int row = std::max(0, currentIndex().row());
    int column = currentIndex().isValid() ? currentIndex().column() : -1;
    const int width = forward ? 1 : -1;
    for (int looked = 0; looked <= columns; ++looked) {
        column += width;
        if (leavesRow(column)) {
            row += width;
            column = forward ? 0 : columns - 1;
        }
        const QModelIndex cell = m_model->index(row, column);
        if (!cell.isValid() || (cell.flags() & Qt::ItemIsEditable))
            return cell;
    }
    return {};
}

void GridView::mousePressEvent(QMouseEvent *event)
{
    m_pressedArrow = event->button() == Qt::LeftButton && isOnArrow(event->position().toPoint());
    if (!m_pressedArrow)
        QTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_pressedArrow = event->button() == Qt::LeftButton && isOnArrow(event->position().toPoint());
    if (!m_pressedArrow)
        QTableView::mouseDoubleClickEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!std::exchange(m_pressedArrow, false))
        QTableView::mouseReleaseEvent(event);
    else if (isOnArrow(event->position().toPoint()))
        openList();
}

}  // namespace penwright
