#include "grid/GridSteering.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTableView>
#include <utility>

#include "controls/EnterKey.h"
#include "grid/GridCellEditor.h"
#include "grid/GridDelegate.h"
#include "grid/GridKeys.h"
#include "grid/GridModel.h"

namespace penwright {

GridSteering::GridSteering(QTableView &view, GridModel &model, GridCellEditor &editor)
    : m_view(view), m_model(model), m_editor(editor), m_block(view, model, editor)
{
}

KeyUse GridSteering::gridKey(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Copy))
        m_block.copy();
    else if (event.matches(QKeySequence::Paste))
        m_block.paste();
    else if (event.key() == Qt::Key_Delete && !(event.modifiers() & ~Qt::KeypadModifier))
        m_block.clear();
    else if (isEnter(event))
        walk(GridKey::Enter, isForward(event));
    else if (isTab(event))  // with Ctrl held: without it the key comes as a change of focus
        return walk(GridKey::CtrlTab, isForward(event)) ? KeyUse::Done : KeyUse::Leaves;
    else if (!opensList(event) || !openList())
        return KeyUse::None;
    return KeyUse::Done;
}

KeyUse GridSteering::editorKey(const QKeyEvent &event)
{
    if (isEnter(event)) {
        if (m_editor.commit())
            walk(GridKey::Enter, isForward(event));
    } else if (isTab(event)) {
        const GridKey key = event.modifiers() & Qt::ControlModifier ? GridKey::CtrlTab : GridKey::Tab;
        if (m_editor.commit() && !walk(key, isForward(event)))
            return KeyUse::Leaves;
    } else if (movesRows(event)) {
        if (m_editor.commit())
            return KeyUse::MovesRows;
    } else if (event.matches(QKeySequence::Paste)) {
        m_block.paste();
    } else {
        return KeyUse::None;
    }
    return KeyUse::Done;
}

bool GridSteering::walkOn(bool forward)
{
    return walk(GridKey::Tab, forward);
}

bool GridSteering::walk(GridKey key, bool forward)
{
    const auto cell = nextCell(m_model.source(), cellOf(m_view.currentIndex()), key, forward, m_tabWay);
    if (cell)
        moveTo(*cell);
    return cell.has_value();
}

void GridSteering::goToFirst()
{
    moveTo(nextCell(m_model.source(), {}, GridKey::Tab, true, TabWay::AlongRow).value_or(GridCell()));
}

void GridSteering::moveTo(const GridCell &cell)
{
    const QModelIndex index = m_model.indexOf(cell);
    if (!index.isValid())
        return;
    const QScopedValueRollback<bool> moving(m_isMoving, true);
    m_view.setCurrentIndex(index);
}

bool GridSteering::openList()
{
    const QModelIndex cell = m_view.currentIndex();
    if (m_model.choices(cell).empty())
        return false;
    m_view.edit(cell);
    m_editor.openList();
    return true;
}

bool GridSteering::isOnArrow(const QMouseEvent &event) const
{
    const QModelIndex cell = m_view.currentIndex();
    return cell.isValid() && GridDelegate::arrowRect(m_view.visualRect(cell)).contains(event.position().toPoint()) &&
           !m_model.choices(cell).empty();
}

bool GridSteering::pressArrow(const QMouseEvent &event)
{
    m_pressedArrow = event.button() == Qt::LeftButton && isOnArrow(event);
    return m_pressedArrow;
}

bool GridSteering::releaseArrow(const QMouseEvent &event)
{
    const bool isArrows = std::exchange(m_pressedArrow, false);
    if (isArrows && isOnArrow(event))
        openList();
    return isArrows;
}

}  // namespace penwright
