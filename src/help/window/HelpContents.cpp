#include "help/window/HelpContents.h"

#include <QSignalBlocker>

namespace penwright {
namespace {

constexpr int kTopicRole = Qt::UserRole;
constexpr int kAnchorRole = Qt::UserRole + 1;

}  // namespace

HelpContents::HelpContents(QWidget *parent) : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::currentItemChanged, this, &HelpContents::askFor);
    // The current line once more, after the reader has gone elsewhere on the page.
    connect(this, &QTreeWidget::itemClicked, this, &HelpContents::askFor);
    connect(this, &QTreeWidget::itemActivated, this, &HelpContents::askFor);
}

void HelpContents::setEntries(const std::vector<HelpEntry> &entries)
{
    const QSignalBlocker quiet(this);
    clear();
    m_places.clear();
    std::vector<QTreeWidgetItem *> above{invisibleRootItem()};
    for (const HelpEntry &entry : entries) {
        above.resize(static_cast<std::size_t>(entry.depth) + 1);
        auto *item = new QTreeWidgetItem(above.back(), {QString::fromStdString(entry.title)});
        above.push_back(item);
        if (!entry.place)
            continue;
        item->setData(0, kTopicRole, QString::fromStdString(entry.place->topic));
        item->setData(0, kAnchorRole, QString::fromStdString(entry.place->anchor));
        m_places.emplace_back(*entry.place, item);
    }
}

void HelpContents::setPlace(const HelpPlace &place)
{
    QTreeWidgetItem *ofPage = nullptr;
    QTreeWidgetItem *ofPlace = nullptr;
    for (const auto &[listed, item] : m_places) {
        if (!ofPage && listed.topic == place.topic)
            ofPage = item;
        if (!ofPlace && listed == place)
            ofPlace = item;
    }
    const QSignalBlocker quiet(this);
    QTreeWidgetItem *item = ofPlace ? ofPlace : ofPage;
    // Of several lines for one page the one that the reader has come by stays.
    if (!item || !currentItem() || currentItem()->data(0, kTopicRole) != item->data(0, kTopicRole) || ofPlace)
        setCurrentItem(item);
    if (item) {
        item->setExpanded(true);
        scrollToItem(item);
    }
}

void HelpContents::askFor(const QTreeWidgetItem *item)
{
    if (item && item->data(0, kTopicRole).isValid())
        emit placeAsked(
            {item->data(0, kTopicRole).toString().toStdString(), item->data(0, kAnchorRole).toString().toStdString()});
}

}  // namespace penwright
