#include "wizard/PageStep.h"

#include <QAbstractButton>

#include <algorithm>
#include <iterator>
#include <utility>

#include "controls/FieldFocus.h"
#include "controls/InView.h"
#include "grid/GridModel.h"
#include "grid/GridView.h"
#include "wizard/PageFields.h"
#include "wizard/StepPair.h"

namespace penwright {
namespace {

std::size_t bytesOf(const ChangedGrid &grid)
{
    return sizeof(ChangedGrid) + sizeof(GridEdit) + grid.edit->texts.capacity() * sizeof(GridText) +
           grid.edit->content->bytes();
}

std::size_t bytesOf(const ChangedBox &box)
{
    return sizeof(ChangedBox) + static_cast<std::size_t>(box.before.size() + box.after.size()) * sizeof(QChar);
}

bool takesFocus(const QWidget &box)
{
    return box.isVisible() && box.isEnabled();
}

/// Goes to a grid's block as it was changed, or to a cell where the change was not of one.
void goToBlock(GridView &grid, const GridBlock &block, const GridCell &cell)
{
    if (block.firstRow < 1)
        return grid.goTo(cell.row, cell.column);
    grid.goTo(block.firstRow, block.firstColumn);
    const QAbstractItemModel &model = *grid.model();
    const QModelIndex last =
        model.index(std::min(block.lastRow, model.rowCount()) - 1, std::min(block.lastColumn, model.columnCount() - 1));
    if (last.isValid() && last != grid.currentIndex())
        grid.selectionModel()->select({grid.currentIndex(), last}, QItemSelectionModel::ClearAndSelect);
}

}  // namespace

PageStep::PageStep(std::vector<ChangedBox> boxes, std::vector<ChangedGrid> grids, QWidget *focus, int go,
                   std::size_t &total)
    : m_content(std::make_unique<Content>()), m_focus(focus), m_go(go), m_total(total)
{
    m_content->boxes = std::move(boxes);
    m_content->grids = std::move(grids);
    measure();
}

PageStep::PageStep(std::function<void(bool isUndo)> change, std::size_t &total)
    : m_content(std::make_unique<Content>()), m_total(total)
{
    m_content->change = std::move(change);
    measure();
}

PageStep::~PageStep()
{
    m_total -= m_content->bytes;
    if (m_content->pair)
        m_content->pair->sideOf(*this).step = nullptr;
}

std::shared_ptr<const bool> PageStep::stands() const
{
    if (!m_content->stands)
        m_content->stands = std::make_shared<bool>(true);
    return m_content->stands;
}

void PageStep::tellWhetherItStands(bool stands) const
{
    if (m_content->stands)
        *m_content->stands = stands;
}

void PageStep::undo()
{
    tellWhetherItStands(false);
    if (m_content->change)
        m_content->change(true);
    for (const ChangedBox &changed : m_content->boxes)
        PageFields::put(*changed.box, changed.before);
    for (auto it = m_content->grids.rbegin(); it != m_content->grids.rend(); ++it)
        it->grid->changes().exchange(*it->edit);
    measure();
}

void PageStep::redo()
{
    if (std::exchange(m_isMade, false))
        return;
    tellWhetherItStands(true);
    if (m_content->change)
        m_content->change(false);
    for (const ChangedBox &changed : m_content->boxes)
        PageFields::put(*changed.box, changed.after);
    for (const ChangedGrid &changed : m_content->grids)
        changed.grid->changes().exchange(*changed.edit);
    measure();
}

int PageStep::id() const
{
    return m_go > 0 ? 1 : -1;
}

bool PageStep::mergeWith(const QUndoCommand *later)
{
    const auto &other = static_cast<const PageStep &>(*later);
    if (m_go != other.m_go || isForgotten())
        return false;
    for (ChangedBox &changed : other.m_content->boxes) {
        const auto own = std::find_if(m_content->boxes.begin(), m_content->boxes.end(),
                                      [&](const ChangedBox &box) { return box.box == changed.box; });
        if (own == m_content->boxes.end())
            m_content->boxes.push_back(changed);
        else
            own->after = changed.after;
    }
    std::erase_if(m_content->boxes, [](const ChangedBox &box) { return box.before == box.after; });
    std::move(other.m_content->grids.begin(), other.m_content->grids.end(), std::back_inserter(m_content->grids));
    other.m_content->grids.clear();
    setText(m_content->grids.empty() ? other.text() : QString::fromUtf8(m_content->grids.front().edit->name));
    setObsolete(m_content->boxes.empty() && m_content->grids.empty());
    measure();
    return true;
}

void PageStep::forget() const
{
    m_content->boxes.clear();
    m_content->grids.clear();
    m_content->isForgotten = true;
    measure();
}

bool PageStep::isInReach(bool isUndo) const
{
    if (isForgotten() || !m_content->pair)
        return !isForgotten();
    const PageStep *other = m_content->pair->sideBeside(*this).step;
    return other && !other->isForgotten() && (!isUndo || m_content->pair->sideOf(*this).isUndoneHere);
}

void PageStep::measure() const
{
    std::size_t bytes = sizeof(*this) + sizeof(Content);
    for (const ChangedBox &changed : m_content->boxes)
        bytes += bytesOf(changed);
    for (const ChangedGrid &changed : m_content->grids)
        bytes += bytesOf(changed);
    m_total = m_total - m_content->bytes + bytes;
    m_content->bytes = bytes;
}

void PageStep::goThere(bool isUndone) const
{
    const auto goBack = [isUndone](const ChangedGrid &changed) {
        const GridCell &cell = isUndone ? changed.before : changed.after;
        changed.grid->makeCurrent(cell.row, cell.column);
    };
    if (isUndone)
        std::for_each(m_content->grids.rbegin(), m_content->grids.rend(), goBack);
    else
        std::for_each(m_content->grids.begin(), m_content->grids.end(), goBack);
    QWidget *box = changedBox();
    if (!box && isOfCountTypedAgain())
        box = m_focus;
    if (box) {
        focusField(*box);
        bringIntoView(*box);
    } else if (m_content->boxes.empty() && !m_content->grids.empty()) {
        const ChangedGrid &changed = m_content->grids.front();
        goToBlock(*changed.grid, changed.edit->block, isUndone ? changed.before : changed.after);
    }
}

/// Whether it is of a grid alone, which a box has sized that holds the same text again.
bool PageStep::isOfCountTypedAgain() const
{
    return m_content->boxes.empty() && !m_content->grids.empty() && m_content->grids.front().edit->block.firstRow < 1 &&
           m_focus && takesFocus(*m_focus);
}

/// The box to be given the focus: the one that had it, of options the one that is chosen now.
QWidget *PageStep::changedBox() const
{
    QWidget *best = nullptr;
    for (const ChangedBox &changed : m_content->boxes) {
        const auto *button = qobject_cast<QAbstractButton *>(changed.box);
        const bool isChosen = button && button->isChecked() && button->autoExclusive();
        if (takesFocus(*changed.box) && (!best || isChosen || (changed.box == m_focus && !button)))
            best = changed.box;
    }
    return best;
}

}  // namespace penwright
