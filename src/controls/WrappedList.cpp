#include "controls/WrappedList.h"

#include <algorithm>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "controls/EnterKey.h"
#include "controls/MixedColour.h"
#include "controls/ScreenReader.h"

namespace penwright {
namespace {

/// The palette's colour for links, or one that is read where that is as dark as the ground.
QColor linkColour(const QPalette &palette)
{
    constexpr int kDark = 100;
    constexpr float kShareOfText = 0.6F;
    const QColor link = palette.color(QPalette::Link);
    const bool isLost = qGray(palette.color(QPalette::Base).rgb()) < kDark && qGray(link.rgb()) < kDark;
    return isLost ? mixedColour(palette.color(QPalette::Text), link, kShareOfText) : link;
}

}  // namespace

WrappedList::WrappedList(QWidget *parent) : QListWidget(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(NoEditTriggers);
    setAutoScroll(false);  // an item clicked stays below the pointer
}

void WrappedList::fitHeight()
{
    m_fitsHeight = true;
    limitHeight();
}

void WrappedList::limitHeight()
{
    if (!m_fitsHeight)
        return;
    int height = 2 * frameWidth();
    for (int row = 0; row < count(); ++row)
        height += sizeHintForRow(row);
    setMaximumHeight(std::max(height, minimumHeight()));
}

void WrappedList::focusInEvent(QFocusEvent *event)
{
    if (!currentItem() && count() > 0)
        setCurrentRow(0);
    QListWidget::focusInEvent(event);
    tellCurrentItem(*this);
}

void WrappedList::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event) && currentItem())
        emit rowChosen(currentRow());
    else
        QListWidget::keyPressEvent(event);
}

void WrappedList::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressedRow = row(itemAt(event->position().toPoint()));
}

// Told at the release, which is not to come to the page that follows.
void WrappedList::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    if (const int row = std::exchange(m_pressedRow, -1); row >= 0)
        emit rowChosen(row);
}

void WrappedList::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    if (event->size().width() == event->oldSize().width())
        return;
    scheduleDelayedItemsLayout();
    limitHeight();
}

int wrappedHeight(const QStyleOptionViewItem &option, int width, const QString &text)
{
    return option.fontMetrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, text).height();
}

ItemInk paintItemGround(QPainter &painter, const QStyleOptionViewItem &option)
{
    QStyleOptionViewItem ground = option;
    const bool isCurrent = (ground.state & QStyle::State_Selected) && ground.widget && ground.widget->hasFocus();
    ground.state.setFlag(QStyle::State_Selected, isCurrent);
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &ground, &painter, ground.widget);
    if (const QColor selected = ground.palette.color(QPalette::HighlightedText); isCurrent)
        return {selected, selected, selected};
    return {ground.palette.color(QPalette::Text), quietText(ground.palette), linkColour(ground.palette)};
}

}  // namespace penwright
