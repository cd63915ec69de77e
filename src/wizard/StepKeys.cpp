#include "wizard/StepKeys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>

#include "grid/GridCellEditor.h"
#include "grid/GridView.h"
#include "wizard/GivenUpTexts.h"
#include "wizard/PageFields.h"
#include "wizard/PageSteps.h"

namespace penwright {
namespace {

enum class StepKey { None, Undo, Redo };

StepKey stepKeyOf(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_Z && held == Qt::ControlModifier)
        return StepKey::Undo;
    const bool isRedo = (event.key() == Qt::Key_Z && held == (Qt::ControlModifier | Qt::ShiftModifier)) ||
                        (event.key() == Qt::Key_Y && held == Qt::ControlModifier);
    return isRedo ? StepKey::Redo : StepKey::None;
}

}  // namespace

StepKeys::StepKeys(QWidget &page, const PageFields &fields, PageSteps &steps, const GivenUpTexts &givenUp)
    : QObject(&page), m_page(page), m_fields(fields), m_steps(steps), m_givenUp(givenUp)
{
    qApp->installEventFilter(this);
}

bool StepKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    if (!isKey && event->type() != QEvent::ContextMenu)
        return false;
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || !m_page.isVisible() || !isOnPage(*widget))
        return false;
    return isKey ? press(*widget, *static_cast<QKeyEvent *>(event))
                 : openMenu(*widget, *static_cast<QContextMenuEvent *>(event));
}

bool StepKeys::isOnPage(const QWidget &widget) const
{
    return &widget == &m_page || m_page.isAncestorOf(&widget) || &widget == m_page.window();
}

/// Whether a key was one for undo or redo. From a cell's editor it goes no further.
bool StepKeys::press(const QWidget &widget, const QKeyEvent &event)
{
    const StepKey key = stepKeyOf(event);
    if (key == StepKey::None)
        return false;
    const bool isUndo = key == StepKey::Undo;
    if (const GridView *grid = gridOfEditor(widget); grid && !m_givenUp.isBackIn(*grid))
        isUndo ? grid->editor().line()->undo() : grid->editor().line()->redo();
    else
        isUndo ? m_steps.undo() : m_steps.redo();
    return true;
}

/// The grid in whose open editor a widget is.
GridView *StepKeys::gridOfEditor(const QWidget &widget) const
{
    for (GridView *grid : m_fields.grids())
        if (grid->isEditing() && grid->viewport()->isAncestorOf(&widget))
            return grid;
    return nullptr;
}

bool StepKeys::openMenu(const QWidget &widget, const QContextMenuEvent &event)
{
    const auto isOf = [&](QWidget *box) {
        const QLineEdit *line = PageFields::lineOf(box);
        return line && (box == &widget || line == &widget);
    };
    const auto box = std::find_if(m_fields.boxes().begin(), m_fields.boxes().end(), isOf);
    if (box == m_fields.boxes().end())
        return false;
    m_steps.endAct();
    QMenu *menu = PageFields::lineOf(*box)->createStandardContextMenu();
    const QList<QAction *> entries = menu->actions();
    menu->insertActions(entries.value(0), {m_steps.undoAction(), m_steps.redoAction()});
    for (QAction *own : entries.mid(0, 2))
        menu->removeAction(own);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event.globalPos());
    return true;
}

}  // namespace penwright
