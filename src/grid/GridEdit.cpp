// How a cell's editor opens, commits and closes.
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>

#include "grid/GridDelegate.h"
#include "grid/GridModel.h"
#include "grid/GridRefusal.h"
#include "grid/GridView.h"

namespace penwright {
namespace {

/// Whether a widget is part of an editor; its list and its menu are windows of their own.
bool belongsTo(const QWidget *widget, const QWidget *editor)
{
    while (widget && widget != editor)
        widget = widget->parentWidget();
    return widget != nullptr;
}

}  // namespace

bool GridView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool isDone = QTableView::edit(index, trigger, event);
    QWidget *editor = state() == EditingState ? indexWidget(index) : nullptr;
    if (editor && editor != m_editor)
        begin(editor, trigger);
    return isDone;
}

void GridView::begin(QWidget *editor, EditTrigger trigger)
{
    m_editor = editor;
    m_leftBy = Qt::OtherFocusReason;
    editor->installEventFilter(this);
    if (trigger == EditKeyPressed || trigger == DoubleClicked)
        editorLine(editor)->end(false);  // to edit the text, not to replace it
    if (auto *box = qobject_cast<QComboBox *>(editor))
        connect(box, &QComboBox::activated, this, &GridView::commitEdit);
}

bool GridView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor) {
        if (event->type() == QEvent::KeyPress && editorKey(*static_cast<QKeyEvent *>(event)))
            return true;
        if (event->type() == QEvent::FocusOut)
            m_leftBy = static_cast<QFocusEvent *>(event)->reason();
    }
    return QTableView::eventFilter(watched, event);
}

void GridView::endAfterFocusChange(const QWidget *now)
{
    // Another window may be looked into while a cell is edited.
    if (!m_editor || !now || now->window() != window() || belongsTo(now, m_editor))
        return;
    if (m_editor->isVisible())
        commitEdit();
    else
        dropEdit();
}

bool GridView::commitEdit()
{
    if (const QPointer<QWidget> editor = m_editor) {
        commitData(editor);
        if (editor && editor == m_editor)
            closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    return !m_refusal->isPending();
}

void GridView::commitEditIfValid()
{
    commitEdit();
    m_refusal->forget();
}

void GridView::dropEdit()
{
    if (m_editor)
        closeEditor(m_editor, QAbstractItemDelegate::RevertModelCache);
}

void GridView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // In a window that is not active, or while its list is open, the editor holds the focus without having it.
    const bool held = editor && window()->focusWidget() == editor;
    m_editor.clear();  // before the focus moves, which would commit
    QTableView::closeEditor(editor, hint);
    if (held)
        setFocus(Qt::OtherFocusReason);
}

void GridView::tellRefusal(int row, int column, const MessageBox &box)
{
    // A press on a header commits too, though it moves no focus.
    const bool isPressed = m_leftBy == Qt::MouseFocusReason || QApplication::mouseButtons() != Qt::NoButton;
    m_refusal->tell(row, column, box, isPressed);
    m_leftBy = Qt::OtherFocusReason;
}

bool GridView::openList()
{
    const QModelIndex cell = currentIndex();
    if (!cell.isValid() || m_model->choices(cell.row() + 1, cell.column()).empty())
        return false;
    QTableView::edit(cell);
    if (auto *box = qobject_cast<QComboBox *>(m_editor))
        box->showPopup();
    return true;
}

bool GridView::isOnArrow(const QPoint &place) const
{
    const QModelIndex cell = currentIndex();
    return cell.isValid() && GridDelegate::arrowRect(visualRect(cell)).contains(place) &&
           !m_model->choices(cell.row() + 1, cell.column()).empty();
}

}  // namespace penwright
