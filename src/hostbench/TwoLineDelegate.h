#pragma once

#include <QStyledItemDelegate>

namespace penwright {

/// Shows an item of a list as its text and, below it, a quieter second line.
class TwoLineDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static constexpr int kSecondLine = Qt::UserRole;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

}  // namespace penwright
