#include "pages/distribution/AngleGrid.h"

#include <algorithm>
#include <QHeaderView>
#include <QScrollBar>

#include "grid/GridBlock.h"

namespace penwright {
namespace {

/// The cells of a block in reading order: in one row, line ends mean no more than tabs.
std::vector<std::string> cellsInOrder(std::string_view text)
{
    std::vector<std::string> cells;
    for (auto &line : splitGridBlock(text))
        std::move(line.begin(), line.end(), std::back_inserter(cells));
    return cells;
}

}  // namespace

AngleGrid::AngleGrid(QWidget *parent) : GridView(parent)
{
    setTextAlignment(Qt::AlignRight);
    verticalHeader()->hide();
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    useGrowingColumns();
    setHeights();
    connect(this, &GridView::cellTaken, this, [this](int, int column) { fitColumn(column); });
}

void AngleGrid::rebuildColumns()
{
    refresh();
    selectionModel()->clear();
    horizontalScrollBar()->setValue(0);
    narrowColumns();
    for (int column = 0; column < model()->columnCount(); ++column)
        fitColumn(column);
}

void AngleGrid::fitColumn(int column)
{
    constexpr int kGridLine = 1;
    const int cell = sizeHintForIndex(model()->index(0, column)).width() + kGridLine;
    growColumn(column, std::max(cell, horizontalHeader()->sectionSizeHint(column)));
}

void AngleGrid::paste(std::string_view text)
{
    const std::vector<std::string> cells = cellsInOrder(text);
    const QItemSelection selection = selectionModel()->selection();
    if (cells.empty() || selection.isEmpty())
        return;
    const int first = selection.first().left();
    const auto room = static_cast<std::size_t>(model()->columnCount() - first);
    if (cells.size() > room)
        return tellRefusal(1, first,
                           {.text = "The copied block has " + std::to_string(cells.size()) +
                                    " angles. From here on there is room for " + std::to_string(room) + ".",
                            .title = window()->windowTitle().toStdString()});
    for (int column = first; const std::string &cell : cells)
        model()->setData(model()->index(0, column++), QString::fromStdString(cell), Qt::EditRole);
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
