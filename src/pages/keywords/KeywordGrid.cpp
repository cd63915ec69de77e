#include "pages/keywords/KeywordGrid.h"

#include <algorithm>
#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

#include "core/Blanks.h"
#include "grid/GridCellEditor.h"
#include "grid/GridDelegate.h"
#include "grid/GridKeys.h"
#include "pages/keywords/KeywordTable.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

int widestKey(const QFontMetrics &metrics)
{
    int widest = 0;
    const auto look = [&](const KeywordEntry &entry) {
        widest = std::max(widest, metrics.horizontalAdvance(toQString(entry.keyword)));
    };
    std::for_each(kStandardKeywords.begin(), kStandardKeywords.end(), look);
    std::for_each(kVersionLines.begin(), kVersionLines.end(), look);
    return widest;
}

/// The keys that move rows.
bool isRowKey(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down) && (event.modifiers() & Qt::AltModifier);
}

}  // namespace

KeywordGrid::KeywordGrid(QWidget *parent) : GridView(parent), m_menu(new QMenu(this))
{
    m_menu->setObjectName("mnuRows");
    // Where + needs Shift, the key without Shift does it as well.
    addRowAction("insertRow", "&Insert Row Above", {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")},
                 &KeywordGrid::insertRow);
    m_delete = addRowAction("deleteRow", "&Delete Row", {QKeySequence("Ctrl+-")}, &KeywordGrid::deleteRows);
    m_menu->addSeparator();
    m_up = addRowAction("moveRowUp", "Move Row &Up", {QKeySequence("Alt+Up")}, &KeywordGrid::moveRowsUp);
    m_down = addRowAction("moveRowDown", "Move Row Do&wn", {QKeySequence("Alt+Down")}, &KeywordGrid::moveRowsDown);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(verticalHeader(), &QHeaderView::customContextMenuRequested, this, &KeywordGrid::headerMenu);
    connect(this, &GridView::rebuilt, this, &KeywordGrid::lineChanged);
    connect(this, &GridView::currentCellChanged, this, &KeywordGrid::lineChanged);
    connect(model(), &QAbstractItemModel::dataChanged, this, &KeywordGrid::lineChanged);
    connect(this, &KeywordGrid::lineChanged, this, &KeywordGrid::enableActions);
}

QAction *KeywordGrid::addRowAction(const char *name, const QString &text, const QList<QKeySequence> &keys,
                                   void (KeywordGrid::*act)())
{
    QAction *action = m_menu->addAction(text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, [this, act] {
        if (commitEdit())
            (this->*act)();
    });
    addAction(action);
    return action;
}

void KeywordGrid::setRows(std::shared_ptr<KeywordRows> rows, Dialogs &dialogs)
{
    m_rows = rows;
    setSource(std::move(rows), dialogs);
    setKeyWidth();
}

void KeywordGrid::setStepActions(QAction *undo, QAction *redo)
{
    m_menu->addSeparator();
    m_menu->addActions({undo, redo});
}

KeywordRow KeywordGrid::shownLine() const
{
    KeywordRow line;
    if (const int row = currentRow(); row >= 1 && row <= m_rows->rowCount())
        line = m_rows->rows()(row);
    if (m_line)
        (currentColumn() == KeywordRows::kKey ? line.key : line.value) =
            withoutOuterBlanks(m_line->text().toStdString());
    return line;
}

bool KeywordGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool isDone = GridView::edit(index, trigger, event);
    QLineEdit *line = isEditing() ? editorLine(indexWidget(index)) : nullptr;
    if (line && line != m_line) {
        m_line = line;
        connect(line, &QLineEdit::textChanged, this, &KeywordGrid::lineChanged);
        emit lineChanged();  // for the key that has opened the editor
    }
    return isDone;
}

void KeywordGrid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    m_line.clear();
    GridView::closeEditor(editor, hint);
    emit lineChanged();
}

void KeywordGrid::insertRow()
{
    const int row = std::max(1, currentRow());
    apply(m_rows->insertRow(row));
    goTo(row, KeywordRows::kKey);
}

void KeywordGrid::deleteRows()
{
    const Span rows = selectedRows();
    const int column = currentColumn();
    if (auto edit = m_rows->deleteRows(rows.first, rows.last))
        apply(*std::move(edit));
    goTo(rows.first, column);
}

void KeywordGrid::moveRowsUp()
{
    const Span rows = selectedRows();
    if (auto edit = m_rows->moveUp(rows.first, rows.last))
        showMoved(*std::move(edit), {rows.first - 1, rows.last - 1});
}

void KeywordGrid::moveRowsDown()
{
    const Span rows = selectedRows();
    if (auto edit = m_rows->moveDown(rows.first, rows.last))
        showMoved(*std::move(edit), {rows.first + 1, rows.last + 1});
}

void KeywordGrid::showMoved(GridEdit edit, Span rows)
{
    const QItemSelection selection = selectionModel()->selection();
    const int column = currentColumn();
    const int left = selection.isEmpty() ? column : selection.first().left();
    const int right = selection.isEmpty() ? column : selection.first().right();
    apply(std::move(edit));
    goTo(rows.first, column);
    selectionModel()->select({model()->index(rows.first - 1, left), model()->index(rows.last - 1, right)},
                             QItemSelectionModel::ClearAndSelect);
}

KeywordGrid::Span KeywordGrid::selectedRows() const
{
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty())
        return {currentRow(), currentRow()};
    return {selection.first().top() + 1, selection.first().bottom() + 1};
}

void KeywordGrid::enableActions()
{
    const int row = currentRow();
    // What is being typed behind the last row will be a row by the time that it is moved or deleted.
    const int count = isEditing() ? std::max(row, m_rows->rowCount()) : m_rows->rowCount();
    m_delete->setEnabled(row >= 1 && row <= count);
    m_up->setEnabled(row > 1 && row <= count);
    m_down->setEnabled(row >= 1 && row < count);
}

bool KeywordGrid::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    const bool isKey = isOverride || event->type() == QEvent::KeyPress;
    if (!isKey || !editor().is(watched) || !isRowKey(*static_cast<QKeyEvent *>(event)))
        return GridView::eventFilter(watched, event);
    const bool isForList = qobject_cast<QComboBox *>(watched) && opensList(*static_cast<QKeyEvent *>(event));
    if (isOverride && isForList)
        event->accept();  // in an open editor with a list the key is the list's, as in any other
    else if (!isOverride && !isForList)
        commitEdit();  // the row can go no further
    return !isOverride && !isForList;
}

void KeywordGrid::keyPressEvent(QKeyEvent *event)
{
    if (isRowKey(*event))
        event->accept();
    else
        GridView::keyPressEvent(event);
}

void KeywordGrid::contextMenuEvent(QContextMenuEvent *event)
{
    m_menu->popup(menuPlace(*event));
}

void KeywordGrid::headerMenu(const QPoint &place)
{
    const int row = verticalHeader()->logicalIndexAt(place) + 1;
    const Span selected = selectedRows();
    if (row < selected.first || row > selected.last)
        goTo(row, currentColumn());
    m_menu->popup(verticalHeader()->mapToGlobal(place));
}

void KeywordGrid::changeEvent(QEvent *event)
{
    GridView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setKeyWidth();
}

void KeywordGrid::setKeyWidth()
{
    constexpr int kArrowAndMargins = 40;
    if (m_rows)
        setColumnWidth(KeywordRows::kKey, widestKey(fontMetrics()) + kArrowAndMargins);
}

}  // namespace penwright
