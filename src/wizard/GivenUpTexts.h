#pragma once

#include <QObject>

#include <memory>

#include "grid/GridEdit.h"

namespace penwright {

class GridView;
class PageFields;
class PageSteps;

/// Makes a step of each text that is given up in a cell's editor with Escape: undone, the editor opens again with it.
/// Where something else can be redone it is none, and the text is lost.
class GivenUpTexts : public QObject {
    Q_OBJECT

public:
    /// Lives as long as `page`; the others outlive it.
    GivenUpTexts(QObject &page, const PageFields &fields, PageSteps &steps);

    /// Whether a grid's open editor holds a text that undo has brought back, and nothing has been typed since.
    bool isBackIn(const GridView &grid) const;

private:
    /// One text that was given up; its step has it.
    struct Act {
        GridView &grid;
        GridText cell;
        int place;  ///< how many steps were made before it
    };

    void giveUp(GridView &grid, const GridText &cell);
    void step(const std::shared_ptr<Act> &act, bool isUndo);
    std::shared_ptr<Act> actToRedo() const;

    PageSteps &m_steps;
    std::weak_ptr<Act> m_undone;  ///< the latest; gone with its step
};

}  // namespace penwright
