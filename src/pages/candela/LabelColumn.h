#pragma once

#include <QWidget>

class QTableView;

namespace penwright {

/// Covers the first column of a table, caption included, and shows it in the manner of a header, so that it stays in
/// view however far the table is scrolled sideways. A column that is cut at its edge is covered whole. A press on a row
/// makes it the current one.
class LabelColumn : public QWidget {
    Q_OBJECT

public:
    explicit LabelColumn(QTableView *table);

    /// Takes the place of the first column, after a change of the table's geometry.
    void cover();

    /// The width that shows every label whole, in logical pixels.
    int neededWidth() const;

signals:
    void rowPressed(int row);  ///< counted from 0

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void paintRow(QPainter &painter, int row) const;
    int captionHeight() const;
    int cutWidth() const;
    QColor gridColour() const;
    QFont boldFont() const;
    QString label(int row) const;

    QTableView *m_table;
};

}  // namespace penwright
