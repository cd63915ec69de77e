#include "controls/RemarkList.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <utility>

#include "controls/MixedColour.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

constexpr const char *kWhy = "why";
constexpr int kWhyGap = 12;  // pixels between sentence and "why"

QFont linkFont(const QFont &font)
{
    QFont link = font;
    link.setUnderline(true);
    return link;
}

/// Where "why" stands in an item: in a column of its own, beside the sentence's first line.
QRect whyIn(const QRect &item, const QFontMetrics &metrics)
{
    const int width = metrics.horizontalAdvance(kWhy);
    return {item.right() - kItemMargin.width() - width, item.top() + kItemMargin.height(), width + 1, metrics.height()};
}

class RemarkDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool hasWhy = false;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const ItemInk ink = paintItemGround(*painter, option);
        painter->save();
        painter->setPen(lineColour(option.palette));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        painter->setPen(ink.text);
        painter->drawText(sentenceIn(option.rect, option.fontMetrics), Qt::TextWordWrap, index.data().toString());
        if (hasWhy) {
            painter->setPen(ink.link);
            painter->setFont(linkFont(option.font));
            painter->drawText(whyIn(option.rect, option.fontMetrics), Qt::TextDontClip, kWhy);
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto *list = static_cast<const QListWidget *>(option.widget);
        const int width = sentenceIn(list->viewport()->rect(), option.fontMetrics).width();
        return {0, wrappedHeight(option, width, index.data().toString()) + 2 * kItemMargin.height()};
    }

private:
    QRect sentenceIn(const QRect &item, const QFontMetrics &metrics) const
    {
        QRect sentence = item.adjusted(kItemMargin.width(), kItemMargin.height(), -kItemMargin.width(), 0);
        if (hasWhy)
            sentence.setRight(whyIn(item, metrics).left() - kWhyGap);
        return sentence;
    }
};

}  // namespace

RemarkList::RemarkList(QWidget *parent) : WrappedList(parent)
{
    setItemDelegate(new RemarkDelegate(this));
    setMouseTracking(true);
}

void RemarkList::offerWhy()
{
    m_hasWhy = true;
    static_cast<RemarkDelegate *>(itemDelegate())->hasWhy = true;
}

void RemarkList::showRemarks(const std::vector<std::string> &sentences)
{
    const int current = currentRow();
    clear();
    for (const std::string &sentence : sentences)
        addItem(toQString(sentence));
    setCurrentRow(std::min(current, count() - 1));
    limitHeight();
}

QSize RemarkList::sizeHint() const
{
    return {320, 120};
}

int RemarkList::whyAt(const QPoint &place) const
{
    const QListWidgetItem *item = m_hasWhy ? itemAt(place) : nullptr;
    constexpr QMargins kAround{6, 4, 6, 4};  // a word of three letters is a small mark for a mouse
    if (!item || !whyIn(visualItemRect(item), fontMetrics()).marginsAdded(kAround).contains(place))
        return -1;
    return row(item);
}

void RemarkList::keyPressEvent(QKeyEvent *event)
{
    if (m_hasWhy && event->key() == Qt::Key_F1 && currentItem())
        emit whyAsked(currentRow());
    else
        WrappedList::keyPressEvent(event);
}

void RemarkList::mousePressEvent(QMouseEvent *event)
{
    WrappedList::mousePressEvent(event);
    m_pressedWhy = event->button() == Qt::LeftButton ? whyAt(event->position().toPoint()) : -1;
}

void RemarkList::mouseMoveEvent(QMouseEvent *event)
{
    WrappedList::mouseMoveEvent(event);
    viewport()->setCursor(whyAt(event->position().toPoint()) >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void RemarkList::mouseReleaseEvent(QMouseEvent *event)
{
    WrappedList::mouseReleaseEvent(event);
    const int pressed = std::exchange(m_pressedWhy, -1);
    if (pressed >= 0 && pressed == whyAt(event->position().toPoint()))
        emit whyAsked(pressed);
}

void RemarkList::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (whyAt(event->position().toPoint()) < 0)  // the second of two clicks on "why" asks nothing more
        WrappedList::mouseDoubleClickEvent(event);
}

}  // namespace penwright
