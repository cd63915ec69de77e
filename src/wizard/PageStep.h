#pragma once

#include <QString>
#include <QUndoCommand>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "grid/GridBlock.h"
#include "grid/GridWalk.h"

class QWidget;

namespace penwright {

class GridView;
struct GridEdit;
struct StepPair;

/// A box that an act of the user has changed.
struct ChangedBox {
    QWidget *box;
    QString before;
    QString after;
};

/// A grid's change that an act of the user has made.
struct ChangedGrid {
    GridView *grid;
    std::shared_ptr<GridEdit> edit;
    GridCell before;  ///< the current cell
    GridCell after;
};

/// One act of the user on a page, which can be undone and redone: the boxes that it has changed and the changes of
/// grids in their order.
class PageStep : public QUndoCommand {
public:
    /// `total` is the memory of all steps of the page, in bytes, and outlives the step. A step of one go of typing has
    /// its number, any other 0. `focus` is the box that had the focus.
    PageStep(std::vector<ChangedBox> boxes, std::vector<ChangedGrid> grids, QWidget *focus, int go, std::size_t &total);

    /// One of an act beside boxes and grids, which `change` undoes and makes again.
    PageStep(std::function<void(bool isUndo)> change, std::size_t &total);

    ~PageStep() override;

    /// Puts back what stood in boxes and grids, from the last change to the first. The caller shows what follows.
    void undo() override;

    /// Makes the changes again; does nothing the first time, when they have just been made.
    void redo() override;

    int id() const override;

    /// Takes a step of the same go of typing along.
    bool mergeWith(const QUndoCommand *later) override;

    /// Gives the content up; there is no way back over it then.
    void forget() const;
    bool isForgotten() const { return m_content->isForgotten; }

    /// Whether it is of boxes and grids.
    bool isOnPage() const { return !m_content->change; }

    /// Makes it half of a pair, the other half of which is on another page.
    void pairUp(std::shared_ptr<StepPair> pair) const { m_content->pair = std::move(pair); }

    /// The pair that it is half of, if it is.
    const StepPair *pair() const { return m_content->pair.get(); }

    /// Whether it is made, as long as it is asked; false while it is undone and once it is gone with that.
    std::shared_ptr<const bool> stands() const;

    /// Whether it can be undone, or redone, on its own page.
    bool isInReach(bool isUndo) const;

    /// Puts the focus on what it has changed and goes to the cells, once it has been undone or redone.
    void goThere(bool isUndone) const;

private:
    struct Content {
        std::vector<ChangedBox> boxes;
        std::vector<ChangedGrid> grids;
        std::function<void(bool isUndo)> change;  ///< beside them
        std::shared_ptr<StepPair> pair;
        std::shared_ptr<bool> stands;  ///< where somebody has asked
        std::size_t bytes = 0;
        bool isForgotten = false;
    };

    void measure() const;
    void tellWhetherItStands(bool stands) const;
    QWidget *changedBox() const;
    bool isOfCountTypedAgain() const;

    const std::unique_ptr<Content> m_content;  ///< also given up through the stack, which shows its steps as constants
    QWidget *m_focus = nullptr;
    int m_go = 0;
    bool m_isMade = true;
    std::size_t &m_total;
};

}  // namespace penwright
