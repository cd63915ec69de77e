#include "pages/distribution/AngleGrid.h"

#include <algorithm>
#include <QHeaderView>
#include <QScrollBar>

#include "grid/GrowingColumns.h"

namespace penwright {

AngleGrid::AngleGrid(QWidget *parent) : GridView(parent)
{
    setTextAlignment(Qt::AlignRight);
    verticalHeader()->hide();
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    useGrowingColumns(*this);
    setHeights();
    connect(this, &GridView::rebuilt, this, &AngleGrid::showNewColumns);
    connect(this, &GridView::cellWritten, this, [this](int, int column) { fitColumn(column); });
}

void AngleGrid::showNewColumns()
{
    selectionModel()->clear();
    horizontalScrollBar()->setValue(0);
    narrowColumns(*this);
    for (int column = 0; column < model()->columnCount(); ++column)
        fitColumn(column);
}

void AngleGrid::fitColumn(int column)
{
    constexpr int kGridLine = 1;
    const int cell = sizeHintForIndex(model()->index(0, column)).width() + kGridLine;
    growColumn(*this, column, std::max(cell, horizontalHeader()->sectionSizeHint(column)));
}

void AngleGrid::changeEvent(QEvent *event)
{
    GridView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setHeights();
}

void AngleGrid::setHeights()
{
    constexpr int kPadding = 4;
    const int header = horizontalHeader()->fontMetrics().height() + 2 * kPadding;
    horizontalHeader()->setFixedHeight(header);  // there without columns, too
    setFixedHeight(header + verticalHeader()->defaultSectionSize() + horizontalScrollBar()->sizeHint().height() +
                   2 * frameWidth());
}

}  // namespace penwright
