#pragma once

#include <QColor>
#include <QListWidget>

namespace penwright {

/// A list whose items are as high as their wrapped texts need at its width. It is entered at its first item, and shows
/// which one is current while it has the focus. A double click and Enter choose an item.
class WrappedList : public QListWidget {
    Q_OBJECT

public:
    explicit WrappedList(QWidget *parent = nullptr);

    /// From now on it is no higher than its items need, and leaves the rest of its room to others.
    void fitHeight();

signals:
    void rowChosen(int row);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    /// To be called once the list has other items.
    void limitHeight();

private:
    bool m_fitsHeight = false;
    int m_pressedRow = -1;  ///< by a double click
};

/// The room between an item's border and its text.
inline constexpr QSize kItemMargin{8, 4};

/// How high a text is that is wrapped to a width.
int wrappedHeight(const QStyleOptionViewItem &option, int width, const QString &text);

/// The colours of an item's texts: of the current one all are those of what is selected.
struct ItemInk {
    QColor text;
    QColor quiet;
    QColor link;
};

/// Paints what lies behind an item's texts, and returns the colours for those.
ItemInk paintItemGround(QPainter &painter, const QStyleOptionViewItem &option);

}  // namespace penwright
