#include "hostbench/TwoLineDelegate.h"

#include <QApplication>
#include <QPainter>

#include "controls/MixedColour.h"

namespace penwright {

namespace {
constexpr int kMargin = 6;
}

void TwoLineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString first = item.text;
    const QString second = index.data(kSecondLine).toString();
    item.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = item.state & QStyle::State_Selected;
    const int line = item.fontMetrics.height();
    const QRect top(item.rect.left() + kMargin, item.rect.top() + kMargin, item.rect.width() - 2 * kMargin, line);
    const auto draw = [&](const QRect &place, const QString &text, const QColor &colour) {
        painter->setPen(isSelected ? item.palette.color(QPalette::HighlightedText) : colour);
        painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                          item.fontMetrics.elidedText(text, item.textElideMode, place.width()));
    };
    painter->save();
    draw(top, first, item.palette.color(QPalette::Text));
    draw(top.translated(0, line), second, quietText(item.palette));
    painter->restore();
}

QSize TwoLineDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return QSize(80, 2 * option.fontMetrics.height() + 2 * kMargin);
}

}  // namespace penwright
