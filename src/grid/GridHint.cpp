#include "grid/GridHint.h"

#include "controls/ScreenReader.h"
#include "grid/GridView.h"

namespace penwright {

GridHint::GridHint(QWidget *parent) : QuietLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void GridHint::follow(GridView &grid)
{
    connect(&grid, &GridView::hinted, this, [this, &grid, own = grid.accessibleDescription()](const QString &hint) {
        setText(hint);
        setVisible(!hint.isEmpty());
        describe(grid, hint.isEmpty() ? own : own + ". " + hint);
    });
}

}  // namespace penwright
