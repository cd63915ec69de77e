#pragma once

#include <QStyledItemDelegate>

namespace penwright {

/// Paints the cells of a GridView and makes their editors: a line of text, or a box with a list where the cell has
/// choices. A line is as wide as its text where the cell is narrower. The grid itself handles the editors' keys.
class GridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit GridDelegate(QAbstractItemView *view);

    void setTextAlignment(Qt::Alignment alignment) { m_alignment = alignment; }

    /// The part of a cell that opens the list of its choices.
    static QRect arrowRect(const QRect &cell);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    /// Shows the whole text of a cell that cuts it off.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    bool eventFilter(QObject *, QEvent *) override { return false; }
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    void fit(QWidget &editor, const QRect &cell) const;

    QAbstractItemView *m_view;
    Qt::Alignment m_alignment = Qt::AlignLeft;
};

/// The line of text in an editor of a GridDelegate.
class QLineEdit *editorLine(QWidget *editor);

}  // namespace penwright
