#include "grid/GridChoiceBox.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace penwright {
namespace {

constexpr int kMargin = 6;
constexpr int kGap = 16;
constexpr int kPadding = 3;
constexpr int kWidestList = 620;
constexpr int kVisibleEntries = 12;

int widestText(const QComboBox &box, const QFontMetrics &metrics)
{
    int widest = 0;
    for (int entry = 0; entry < box.count(); ++entry)
        widest = std::max(widest, metrics.horizontalAdvance(box.itemText(entry)));
    return widest;
}

/// Paints an entry and, in a quieter colour behind the widest entry, what it is for.
class EntryPainter : public QStyledItemDelegate {
public:
    explicit EntryPainter(QComboBox *box) : QStyledItemDelegate(box), m_box(box) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QString text = item.text;
        item.text.clear();
        item.widget->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

        const bool isChosen = item.state & QStyle::State_Selected;
        QColor colour = item.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text);
        QRect place = item.rect.adjusted(kMargin, 0, -kMargin, 0);
        painter->save();
        painter->setPen(colour);
        painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
        colour.setAlphaF(0.7F);
        painter->setPen(colour);
        place.setLeft(place.left() + widestText(*m_box, item.fontMetrics) + kGap);
        const QString hint = index.data(Qt::ToolTipRole).toString();
        painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                          item.fontMetrics.elidedText(hint, Qt::ElideRight, place.width()));
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return QSize(2 * kMargin, option.fontMetrics.height() + 2 * kPadding);
    }

private:
    QComboBox *m_box;
};

}  // namespace

GridChoiceBox::GridChoiceBox(const std::vector<GridChoice> &choices, QWidget *parent) : DropDownList(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setFrame(false);
    setMaxVisibleItems(kVisibleEntries);
    for (const GridChoice &choice : choices) {
        addItem(QString::fromStdString(choice.text));
        for (const int role : {Qt::ToolTipRole, Qt::AccessibleDescriptionRole})
            setItemData(count() - 1, QString::fromStdString(choice.hint), role);
    }
    setItemDelegate(new EntryPainter(this));
}

void GridChoiceBox::showPopup()
{
    view()->setMinimumWidth(std::min(listWidth(), screen()->availableGeometry().width()));
    DropDownList::showPopup();
}

int GridChoiceBox::listWidth() const
{
    const QFontMetrics metrics = view()->fontMetrics();
    int hint = 0;
    for (int entry = 0; entry < count(); ++entry)
        hint = std::max(hint, metrics.horizontalAdvance(itemData(entry, Qt::ToolTipRole).toString()));
    const int bar = view()->verticalScrollBar()->sizeHint().width();
    const int wanted = widestText(*this, metrics) + (hint > 0 ? kGap + hint : 0) + 2 * kMargin + bar + 4;
    return std::max(width(), std::min(wanted, kWidestList));
}

}  // namespace penwright
