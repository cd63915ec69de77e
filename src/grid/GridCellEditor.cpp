#include "grid/GridCellEditor.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <utility>

#include "grid/GridDelegate.h"
#include "grid/GridRefusal.h"

namespace penwright {
namespace {

/// Has a line's text edited, not replaced: brought back to what it was it is no new value.
void editText(QLineEdit &line)
{
    line.end(false);
    QObject::connect(&line, &QLineEdit::textEdited, &line,
                     [&line, before = line.text()](const QString &text) { line.setModified(text != before); });
}

/// Whether a widget is part of an editor; its list and its menu are windows of their own.
bool belongsTo(const QWidget *widget, const QWidget *editor)
{
    while (widget && widget != editor)
        widget = widget->parentWidget();
    return widget != nullptr;
}

}  // namespace

GridCellEditor::GridCellEditor(QAbstractItemView &view, GridDelegate &delegate, GridRefusal &refusal)
    : m_view(view), m_delegate(delegate), m_refusal(refusal)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { endAfterFocusChange(now); });
}

QLineEdit *GridCellEditor::line() const
{
    return editorLine(m_editor);
}

void GridCellEditor::begin(QWidget *editor, QAbstractItemView::EditTrigger trigger)
{
    m_editor = editor;
    m_leftBy = Qt::OtherFocusReason;
    editor->installEventFilter(this);
    if (trigger == QAbstractItemView::EditKeyPressed || trigger == QAbstractItemView::DoubleClicked)
        editText(*line());
    if (auto *box = qobject_cast<QComboBox *>(editor))
        connect(box, &QComboBox::activated, this, &GridCellEditor::commit);
}

bool GridCellEditor::commit()
{
    if (const QPointer<QWidget> editor = m_editor) {
        emit m_delegate.commitData(editor);
        if (editor && editor == m_editor)
            emit m_delegate.closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    return !m_refusal.isPending();
}

void GridCellEditor::commitIfValid()
{
    commit();
    m_refusal.forget();
}

void GridCellEditor::drop()
{
    if (m_editor)
        emit m_delegate.closeEditor(m_editor, QAbstractItemDelegate::RevertModelCache);
}

void GridCellEditor::openList()
{
    if (auto *box = qobject_cast<QComboBox *>(m_editor))
        box->showPopup();
}

bool GridCellEditor::wasLeftByMouse()
{
    return std::exchange(m_leftBy, Qt::OtherFocusReason) == Qt::MouseFocusReason;
}

bool GridCellEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor && event->type() == QEvent::FocusOut)
        m_leftBy = static_cast<QFocusEvent *>(event)->reason();
    return QObject::eventFilter(watched, event);
}

void GridCellEditor::endAfterFocusChange(const QWidget *now)
{
    // Another window may be looked into while a cell is edited.
    if (!m_editor || !now || now->window() != m_view.window() || belongsTo(now, m_editor))
        return;
    if (m_editor->isVisible())
        commit();
    else
        drop();
}

}  // namespace penwright
