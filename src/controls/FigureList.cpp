#include "controls/FigureList.h"

#include <algorithm>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include "platform/qt/QtText.h"

namespace penwright {
namespace {

constexpr int kValueRole = Qt::UserRole;
constexpr int kNameGap = 14;  // pixels between name and value

/// Two columns: the names, then the values, which begin at one place.
class FigureDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setNameWidth(int width) { m_nameWidth = width; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const ItemInk ink = paintItemGround(*painter, option);
        const Columns columns = columnsIn(option.rect);
        painter->save();
        painter->setPen(ink.quiet);
        painter->drawText(columns.name, Qt::TextWordWrap, index.data().toString());
        painter->setPen(ink.text);
        painter->drawText(columns.value, Qt::TextWordWrap, index.data(kValueRole).toString());
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto *list = static_cast<const QListWidget *>(option.widget);
        const Columns columns = columnsIn(list->viewport()->rect());
        const int height = std::max(wrappedHeight(option, columns.name.width(), index.data().toString()),
                                    wrappedHeight(option, columns.value.width(), index.data(kValueRole).toString()));
        return {0, height + kItemMargin.height()};
    }

private:
    struct Columns {
        QRect name;
        QRect value;
    };

    Columns columnsIn(const QRect &item) const
    {
        const QRect inner = item.adjusted(kItemMargin.width(), kItemMargin.height() / 2, -kItemMargin.width(),
                                          -kItemMargin.height() / 2);
        const int width = std::min(m_nameWidth, inner.width() * 3 / 5);
        QRect value = inner;
        value.setLeft(inner.left() + width + kNameGap);
        return {QRect(inner.topLeft(), QSize(width, inner.height())), value};
    }

    int m_nameWidth = 0;
};

}  // namespace

FigureList::FigureList(QWidget *parent) : WrappedList(parent)
{
    setItemDelegate(new FigureDelegate(this));
}

void FigureList::showFigures(const std::vector<FigureRow> &figures)
{
    const int current = currentRow();
    clear();
    int nameWidth = 0;
    for (const FigureRow &figure : figures) {
        const QString name = toQString(figure.name);
        const QString value = toQString(figure.value);
        const QString reason = toQString(figure.reason);
        auto *item = new QListWidgetItem(name, this);
        item->setData(kValueRole, value);
        item->setToolTip(reason);
        item->setData(Qt::AccessibleTextRole, name + ": " + (reason.isEmpty() ? value : reason));
        nameWidth = std::max(nameWidth, fontMetrics().horizontalAdvance(name));
    }
    static_cast<FigureDelegate *>(itemDelegate())->setNameWidth(nameWidth + 1);
    scheduleDelayedItemsLayout();
    setCurrentRow(std::min(current, count() - 1));
    limitHeight();
}

QSize FigureList::sizeHint() const
{
    return {320, 200};
}

void FigureList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    WrappedList::currentChanged(current, previous);
    if (!hasFocus() || !isVisible())
        return;
    const QString reason = current.data(Qt::ToolTipRole).toString();
    QToolTip::showText(viewport()->mapToGlobal(visualRect(current).bottomLeft()), reason, this);
}

}  // namespace penwright
