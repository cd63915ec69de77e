#include "grid/GridView.h"

#include <algorithm>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <utility>

#include "controls/InView.h"
#include "controls/ScreenReader.h"
#include "grid/GridCellEditor.h"
#include "grid/GridDelegate.h"
#include "grid/GridKeys.h"
#include "grid/GridLinesStyle.h"
#include "grid/GridModel.h"
#include "grid/GridRefusal.h"

namespace penwright {
namespace {

constexpr QKeyCombination kTablePaste = Qt::CTRL | Qt::SHIFT | Qt::Key_V;

}  // namespace

GridView::GridView(QWidget *parent)
    : QTableView(parent),
      m_model(new GridModel(this)),
      m_delegate(new GridDelegate(this)),
      m_refusal(new GridRefusal(this)),
      m_editor(std::make_unique<GridCellEditor>(*this, *m_delegate, *m_refusal)),
      m_steering(*this, *m_model, *m_editor),
      m_menu(new QMenu(this))
{
    auto *lines = new GridLinesStyle;
    lines->setParent(this);
    setStyle(lines);
    setModel(m_model);
    setItemDelegate(m_delegate);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);  // Tab is the grid's own, and must be able to leave it
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    setHeaderSizes();
    m_menu->setObjectName("mnuGrid");
    QAction *copy = addMenuAction("copyBlock", "&Copy", QKeySequence::Copy);
    QAction *paste = addMenuAction("pasteBlock", "&Paste", QKeySequence::Paste);
    connect(copy, &QAction::triggered, this, [this] { m_steering.copy(); });
    connect(paste, &QAction::triggered, this, [this] { m_steering.paste(); });
    connect(m_model, &GridModel::cellWritten, this, &GridView::cellWritten);
    connect(m_model, &GridModel::valuesReplaced, this, &GridView::valuesReplaced);
    connect(m_model, &GridModel::hinted, this, &GridView::hinted);
    connect(m_model, &GridModel::refused, this, &GridView::tellRefusal);
    connect(m_model, &GridModel::modelAboutToBeReset, this, [this] {
        dropEdit();
        m_before = cellOf(currentIndex());
    });
    connect(m_model, &GridModel::modelReset, this, &GridView::showRebuilt);
    connect(m_refusal, &GridRefusal::told, this, &GridView::showRefused);
}

GridView::~GridView() = default;

void GridView::setSource(std::shared_ptr<GridSource> source, Dialogs &dialogs)
{
    m_refusal->setDialogs(dialogs);
    m_model->setSource(std::move(source));
}

GridSource &GridView::source() const
{
    return m_model->source();
}

QAction *GridView::addMenuAction(const char *name, const QString &text, const QKeySequence &key)
{
    QAction *action = m_menu->addAction(text);
    action->setObjectName(name);
    action->setShortcut(key);  // shown alone: the key itself is the grid's
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    return action;
}

void GridView::offerTablePaste()
{
    m_takesTables = true;
    QAction *action = addMenuAction("pasteTable", "Paste &Table...", kTablePaste);
    connect(action, &QAction::triggered, this, &GridView::askForTable);
}

bool GridView::asksForTable(const QKeyEvent &event) const
{
    return m_takesTables && event.keyCombination() == kTablePaste;
}

/// Commits what is being typed first: it is not lost when a table comes in its place.
void GridView::askForTable()
{
    if (commitEdit())
        QMetaObject::invokeMethod(this, &GridView::tablePasteAsked, Qt::QueuedConnection);
}

void GridView::setStepActions(QAction *undo, QAction *redo)
{
    QAction *copy = m_menu->actions().value(0);
    m_menu->insertActions(copy, {undo, redo});
    m_menu->insertSeparator(copy);
}

void GridView::setTextAlignment(Qt::Alignment alignment)
{
    m_delegate->setTextAlignment(alignment);
}

bool GridView::apply(GridEdit edit)
{
    return m_model->apply(std::move(edit));
}

void GridView::showRebuilt()
{
    m_steering.moveTo(m_before);
    announceCurrent();
    emit rebuilt();
}

void GridView::tellRefusal(const RefusedEdit &refused)
{
    // A press on a header commits too, though it moves no focus.
    const bool isPressed = m_editor->wasLeftByMouse() || QApplication::mouseButtons() != Qt::NoButton;
    const GridCell cell = refused.row > 0 ? GridCell{refused.row, refused.column} : cellOf(currentIndex());
    m_refusal->tell(cell.row, cell.column, refused.box, isPressed);
}

/// Goes to a cell, with what stands around it in sight: a paste may have ended there. An editor that is open was not
/// what was refused, and is typed into on.
void GridView::showRefused(int row, int column)
{
    if (isEditing())
        return m_editor->line()->setFocus(Qt::OtherFocusReason);
    if (!isVisible())
        return;  // the host has had another page shown meanwhile
    const QModelIndex cell = m_model->indexOf({row, column});
    const bool wasSeen = viewport()->rect().contains(visualRect(cell));
    goTo(row, column);
    if (!wasSeen && cell.isValid())
        scrollTo(cell, PositionAtCenter);
}

void GridView::goTo(int row, int column)
{
    const QModelIndex cell = m_model->indexOf({row, column});
    if (!cell.isValid())
        return;
    makeCurrent(row, column);
    scrollTo(cell);
    setFocus(Qt::OtherFocusReason);
    bringIntoView(*this);
}

void GridView::makeCurrent(int row, int column)
{
    m_steering.moveTo({row, column});
}

int GridView::currentRow() const
{
    return cellOf(currentIndex()).row;
}

int GridView::currentColumn() const
{
    return cellOf(currentIndex()).column;
}

QItemSelectionModel::SelectionFlags GridView::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    if (m_steering.isMoving())  // the toolkit would look at the keyboard, and Shift+Tab would select a block
        return QItemSelectionModel::ClearAndSelect;
    const bool isKey = event && event->type() == QEvent::KeyPress;
    return isKey && selectsToEnd(*static_cast<const QKeyEvent *>(event)) ? QItemSelectionModel::SelectCurrent
                                                                         : QTableView::selectionCommand(index, event);
}

void GridView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    // The table's own routine tells screen readers of the cell too. One that is come to with the grid is told behind
    // it.
    if (previous.isValid())
        QTableView::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous);
    viewport()->update();  // the arrow of a cell with choices shows in the current cell alone
    announceCurrent();
}

void GridView::announceCurrent()
{
    const GridCell now = cellOf(currentIndex());
    if (now == m_announced)
        return;
    m_announced = now;
    emit currentCellChanged(now.row, now.column);
}

bool GridView::isEditing() const
{
    return m_editor->isOpen();
}

bool GridView::commitEdit()
{
    return m_editor->commit();
}

void GridView::commitEditIfValid()
{
    m_editor->commitIfValid();
}

void GridView::dropEdit()
{
    m_editor->drop();
}

void GridView::giveUpEdit()
{
    const GridText cell = halfTyped().value();
    const bool isTyped = cell.text != currentIndex().data(Qt::EditRole).toString().toStdString();
    dropEdit();
    if (isTyped)
        emit givenUp(cell);
}

bool GridView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool isDone = QTableView::edit(index, trigger, event);
    QWidget *editor = state() == EditingState ? indexWidget(index) : nullptr;
    if (editor && !m_editor->is(editor)) {
        m_editor->begin(editor, trigger);
        editor->installEventFilter(this);
        connect(m_editor->line(), &QLineEdit::textChanged, this, &GridView::halfTypedChanged);
    }
    return isDone;
}

std::optional<GridText> GridView::halfTyped() const
{
    if (!isEditing())
        return std::nullopt;
    return GridText{currentRow(), currentColumn(), m_editor->line()->text().toStdString()};
}

void GridView::resumeTyping(const GridText &cell)
{
    const QModelIndex index = model()->index(cell.row - 1, cell.column);
    if (!index.isValid())
        return;
    goTo(cell.row, cell.column);
    if (edit(index, EditKeyPressed, nullptr))
        m_editor->line()->setText(QString::fromStdString(cell.text));
}

void GridView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // In a window that is not active, or while its list is open, the editor holds the focus without having it.
    const bool held = editor && window()->focusWidget() == editor;
    m_editor->forget();  // before the focus moves, which would commit
    QTableView::closeEditor(editor, hint);
    if (held)
        setFocus(Qt::OtherFocusReason);
    emit halfTypedChanged();
}

bool GridView::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_editor->is(watched) || event->type() != QEvent::KeyPress)
        return QTableView::eventFilter(watched, event);
    auto &key = *static_cast<QKeyEvent *>(event);
    if (asksForTable(key))
        return askForTable(), true;
    if (key.key() == Qt::Key_Escape)
        return giveUpEdit(), true;
    return follow(m_steering.editorKey(key), key) || QTableView::eventFilter(watched, event);
}

void GridView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        event->ignore();  // the window asks the cancel question
    else if (asksForTable(*event))
        askForTable();
    else if (follow(m_steering.gridKey(*event), *event))
        event->accept();
    else
        QTableView::keyPressEvent(event);
}

QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const bool isToEnd = modifiers.testFlags(Qt::ControlModifier | Qt::ShiftModifier);
    const QModelIndex cell = currentIndex();
    if (isToEnd && cell.isValid() && action == MoveUp)
        return cell.siblingAtRow(0);
    if (isToEnd && cell.isValid() && action == MoveDown)
        return cell.siblingAtRow(std::max(cell.row(), source().rowCount() - 1));
    return QTableView::moveCursor(action, modifiers);
}

/// Does what is left to the view of a key; whether the key was the grid's.
bool GridView::follow(KeyUse use, QKeyEvent &event)
{
    if (use == KeyUse::Leaves)
        QTableView::focusNextPrevChild(isForward(event));
    else if (use == KeyUse::MovesRows)
        QTableView::keyPressEvent(&event);
    return use != KeyUse::None;
}

bool GridView::focusNextPrevChild(bool next)
{
    const bool isHere = hasFocus() && isEnabled() && isVisible();
    return (isHere && m_steering.walkOn(next)) || QTableView::focusNextPrevChild(next);
}

void GridView::focusInEvent(QFocusEvent *event)
{
    if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        m_steering.goToFirst();
    QTableView::focusInEvent(event);
    tellCurrentItem(*this);
}

void GridView::hideEvent(QHideEvent *event)
{
    // With its page, not with the whole window, which the host may hide for a while.
    if (!event->spontaneous() && window()->isVisible()) {
        dropEdit();
        m_refusal->forget();
    }
    QTableView::hideEvent(event);
}

void GridView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setHeaderSizes();
}

void GridView::mousePressEvent(QMouseEvent *event)
{
    if (!m_steering.pressArrow(*event))
        QTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!m_steering.pressArrow(*event))
        QTableView::mouseDoubleClickEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_steering.releaseArrow(*event))
        QTableView::mouseReleaseEvent(event);
}

void GridView::contextMenuEvent(QContextMenuEvent *event)
{
    m_menu->popup(menuPlace(*event));
}

QPoint GridView::menuPlace(const QContextMenuEvent &event) const
{
    const bool isByKey = event.reason() == QContextMenuEvent::Keyboard;
    return isByKey ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()) : event.globalPos();
}

void GridView::setHeaderSizes()
{
    constexpr int kPadding = 5;
    const int height = fontMetrics().height() + 2 * kPadding;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
    verticalHeader()->setMinimumWidth(fontMetrics().horizontalAdvance("0000") + 2 * kPadding);
    horizontalHeader()->setMinimumHeight(height);
}

}  // namespace penwright
