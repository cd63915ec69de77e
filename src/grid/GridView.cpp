#include "grid/GridView.h"

#include <algorithm>
#include <cmath>
#include <QApplication>
#include <QFocusEvent>
#include <QHeaderView>
#include <QProxyStyle>
#include <QScopedValueRollback>

#include "controls/InView.h"
#include "controls/MixedColour.h"
#include "controls/ScreenReader.h"
#include "grid/GridDelegate.h"
#include "grid/GridModel.h"
#include "grid/GridRefusal.h"

namespace penwright {
namespace {

/// Draws the lines between cells as visibly on dark as on light; the desktop's own colour may be that of the cells.
class GridLinesStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        if (hint != SH_Table_GridLineColor || !widget)
            return QProxyStyle::styleHint(hint, option, widget, returned);
        return static_cast<int>(lineColour(widget->palette()).rgba());
    }
};

}  // namespace

GridView::GridView(QWidget *parent)
    : QTableView(parent),
      m_model(new GridModel(this)),
      m_delegate(new GridDelegate(this)),
      m_refusal(new GridRefusal(this))
{
    auto *lines = new GridLinesStyle;
    lines->setParent(this);
    setStyle(lines);
    setModel(m_model);
    setItemDelegate(m_delegate);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);  // Tab is the grid's own, and must be able to leave it
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    setHeaderSizes();
    connect(m_model, &GridModel::taken, this, &GridView::cellTaken);
    connect(m_model, &GridModel::refused, this, &GridView::tellRefusal);
    connect(m_refusal, &GridRefusal::told, this, &GridView::goTo);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { endAfterFocusChange(now); });
}

GridView::~GridView()
{
    disconnect(qApp, nullptr, this, nullptr);  // the focus leaves it once more while it ends
}

void GridView::setSource(GridSource &source, Dialogs &dialogs)
{
    m_refusal->setDialogs(dialogs);
    m_model->setSource(source);
}

void GridView::setTextAlignment(Qt::Alignment alignment)
{
    m_delegate->setTextAlignment(alignment);
}

void GridView::refresh()
{
    dropEdit();
    const int row = currentRow();
    const int column = currentColumn();
    m_model->refresh();
    moveTo(m_model->index(row - 1, column));
    announceCurrent();
}

void GridView::goTo(int row, int column)
{
    const QModelIndex cell = m_model->index(row - 1, column);
    if (!cell.isValid())
        return;
    moveTo(cell);
    scrollTo(cell);
    setFocus(Qt::OtherFocusReason);
    bringIntoView(*this);
}

int GridView::currentRow() const
{
    return currentIndex().row() + 1;
}

int GridView::currentColumn() const
{
    return std::max(0, currentIndex().column());
}

void GridView::moveTo(const QModelIndex &cell)
{
    if (!cell.isValid())
        return;
    const QScopedValueRollback<bool> own(m_movesItself, true);
    setCurrentIndex(cell);
}

QItemSelectionModel::SelectionFlags GridView::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    // The toolkit would look at the keyboard, and Shift+Tab would select a block.
    return m_movesItself ? QItemSelectionModel::ClearAndSelect : QTableView::selectionCommand(index, event);
}

void GridView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    viewport()->update();  // the arrow of a cell with choices shows in the current cell alone
    announceCurrent();
}

void GridView::announceCurrent()
{
    const QPoint now(currentColumn(), currentRow());
    if (now == m_announced)
        return;
    m_announced = now;
    emit currentCellChanged(now.y(), now.x());
}

void GridView::focusInEvent(QFocusEvent *event)
{
    if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        moveTo(alongRow(true));
    QTableView::focusInEvent(event);
    tellCurrentItem(*this);
}

void GridView::hideEvent(QHideEvent *event)
{
    // With its page, not with the whole window, which the host may hide for a while.
    if (!event->spontaneous() && window()->isVisible()) {
        dropEdit();
        m_refusal->forget();
    }
    QTableView::hideEvent(event);
}

void GridView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setHeaderSizes();
}

void GridView::useGrowingColumns()
{
    horizontalHeader()->setMinimumSectionSize(kColumnWidth);
    narrowColumns();
}

void GridView::narrowColumns()
{
    horizontalHeader()->setDefaultSectionSize(kColumnWidth);
}

void GridView::growColumn(int column, double width)
{
    const int needed = static_cast<int>(std::ceil(width));
    if (needed > columnWidth(column))
        setColumnWidth(column, needed);
}

void GridView::setHeaderSizes()
{
    constexpr int kPadding = 5;
    const int height = fontMetrics().height() + 2 * kPadding;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
    verticalHeader()->setMinimumWidth(fontMetrics().horizontalAdvance("0000") + 2 * kPadding);
    horizontalHeader()->setMinimumHeight(height);
}

}  // namespace penwright
