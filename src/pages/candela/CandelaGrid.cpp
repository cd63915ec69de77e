#include "pages/candela/CandelaGrid.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "grid/GrowingColumns.h"
#include "pages/candela/CandelaTable.h"
#include "pages/candela/CandelaWidths.h"
#include "pages/candela/LabelColumn.h"

namespace penwright {

CandelaGrid::CandelaGrid(QWidget *parent) : GridView(parent)
{
    setTextAlignment(Qt::AlignRight);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    verticalHeader()->hide();
    setCornerButtonEnabled(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);  // nothing is cut off by a drag either
    useGrowingColumns(*this);
    horizontalHeader()->setHighlightSections(true);
    m_labels = new LabelColumn(this);
    connect(m_labels, &LabelColumn::rowPressed, this, [this](int row) { goTo(row + 1, std::max(1, currentColumn())); });
    connect(this, &QAbstractItemView::entered, this, [this](const QModelIndex &cell) {
        if (cell.column() > CandelaTable::kLabelColumn)
            emit pointerEntered(cell.row() + 1, cell.column());
    });
    connect(this, &GridView::rebuilt, this, &CandelaGrid::showNewTable);
    connect(this, &GridView::valuesReplaced, this, &CandelaGrid::growColumns);
    connect(this, &GridView::cellWritten, this, [this](int row, int column) {
        const double room = columnWidth(column) - padding();
        const CandelaCell &cell = m_table->CandelaCells()(column, row);
        growColumn(*this, column, CandelaWidths(QFontMetricsF(font())).widened(room, cell) + padding());
    });
}

void CandelaGrid::setTable(std::shared_ptr<CandelaTable> table, Dialogs &dialogs)
{
    m_table = table;
    setSource(std::move(table), dialogs);
}

void CandelaGrid::showNewTable()
{
    narrowColumns(*this);
    growColumns();
    horizontalScrollBar()->setValue(0);
    m_labels->cover();
}

void CandelaGrid::scrollToFirstRow()
{
    verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

void CandelaGrid::growColumns()
{
    const CandelaWidths widths{QFontMetricsF(font())};
    const OneBasedTable<CandelaCell> &cells = m_table->CandelaCells();
    const double around = padding();
    growColumn(*this, CandelaTable::kLabelColumn, m_labels->neededWidth());
    for (int h = 1; h <= cells.rows(); ++h) {
        double room = std::max(columnWidth(h), horizontalHeader()->sectionSizeHint(h)) - around;
        for (int v = 1; v <= cells.columns(); ++v)
            room = widths.widened(room, cells(h, v));
        growColumn(*this, h, room + around);
    }
}

/// What a cell adds to its text: the delegate's margins and the line of the grid.
double CandelaGrid::padding() const
{
    constexpr int kLines = 2;
    return 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) + kLines;
}

QModelIndex CandelaGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex cell = GridView::moveCursor(action, modifiers);
    return cell.column() == CandelaTable::kLabelColumn ? cell.siblingAtColumn(1) : cell;
}

void CandelaGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    GridView::currentChanged(current, previous);
    m_labels->update();
}

void CandelaGrid::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    GridView::scrollTo(index, hint);
    const int covered = columnWidth(CandelaTable::kLabelColumn) - visualRect(index).left();
    if (index.column() > CandelaTable::kLabelColumn && covered > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - covered);
}

void CandelaGrid::scrollContentsBy(int dx, int dy)
{
    GridView::scrollContentsBy(dx, dy);
    m_labels->cover();
}

void CandelaGrid::updateGeometries()
{
    GridView::updateGeometries();
    if (m_labels)
        m_labels->cover();
}

bool CandelaGrid::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return GridView::viewportEvent(event);
    // The question for a tip only tells where the pointer is: there is none to show.
    const QModelIndex cell = indexAt(static_cast<QHelpEvent *>(event)->pos());
    if (cell.column() > CandelaTable::kLabelColumn)
        emit pointerEntered(cell.row() + 1, cell.column());
    QToolTip::hideText();
    return true;
}

void CandelaGrid::leaveEvent(QEvent *event)
{
    GridView::leaveEvent(event);
    emit pointerLeft();
}

void CandelaGrid::changeEvent(QEvent *event)
{
    GridView::changeEvent(event);
    if (m_table && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        growColumns();
}

}  // namespace penwright
