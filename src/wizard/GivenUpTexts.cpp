#include "wizard/GivenUpTexts.h"

#include <QLineEdit>

#include "grid/GridCellEditor.h"
#include "grid/GridView.h"
#include "wizard/PageFields.h"
#include "wizard/PageSteps.h"

namespace penwright {

GivenUpTexts::GivenUpTexts(QObject &page, const PageFields &fields, PageSteps &steps) : QObject(&page), m_steps(steps)
{
    for (GridView *grid : fields.grids())
        connect(grid, &GridView::givenUp, this, [this, grid](const GridText &cell) { giveUp(*grid, cell); });
}

void GivenUpTexts::giveUp(GridView &grid, const GridText &cell)
{
    m_steps.endAct();
    if (const auto act = actToRedo(); act && &act->grid == &grid) {
        act->cell = cell;
        m_steps.redo();
    } else if (!m_steps.canRedo()) {
        const auto made = std::make_shared<Act>(Act{grid, cell, m_steps.count()});
        m_steps.addAct("Escape", [this, made](bool isUndo) { step(made, isUndo); });
    }
}

void GivenUpTexts::step(const std::shared_ptr<Act> &act, bool isUndo)
{
    m_undone = act;
    if (isUndo && act->grid.isVisible())  // in a hidden grid nobody would see what the next page turn commits
        act->grid.resumeTyping(act->cell);
}

/// The act that redo would make again.
std::shared_ptr<GivenUpTexts::Act> GivenUpTexts::actToRedo() const
{
    const auto act = m_undone.lock();
    return act && m_steps.canRedo() && m_steps.count() == act->place ? act : nullptr;
}

bool GivenUpTexts::isBackIn(const GridView &grid) const
{
    const auto act = actToRedo();
    return act && &act->grid == &grid && grid.isEditing() && !grid.editor().line()->isUndoAvailable() &&
           !grid.editor().line()->isRedoAvailable();
}

}  // namespace penwright
