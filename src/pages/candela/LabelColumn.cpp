#include "pages/candela/LabelColumn.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QTableView>

#include <algorithm>

namespace penwright {

namespace {

constexpr int kMargin = 4;
constexpr int kLine = 1;

}  // namespace

LabelColumn::LabelColumn(QTableView *table) : QWidget(table), m_table(table)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LabelColumn::cover()
{
    const QRect header = m_table->horizontalHeader()->geometry();
    const QRect cells = m_table->viewport()->geometry();
    setGeometry(cells.left(), header.top(), m_table->columnWidth(0) + cutWidth(), cells.bottom() + 1 - header.top());
    setVisible(m_table->model()->columnCount() > 0);
    raise();
    update();
}

// A figure without its first digits is another figure.
int LabelColumn::cutWidth() const
{
    const int edge = m_table->columnWidth(0);
    const int column = m_table->columnAt(edge);
    const int left = column > 0 ? m_table->columnViewportPosition(column) : edge;
    const int right = left + m_table->columnWidth(column);
    return left < edge && right < m_table->viewport()->width() ? right - edge : 0;
}

int LabelColumn::neededWidth() const
{
    const QFontMetrics bold(boldFont());
    int widest = 0;
    for (int row = 0; row < m_table->model()->rowCount(); ++row)
        widest = std::max(widest, bold.horizontalAdvance(label(row)));
    return widest + 2 * kMargin;
}

QFont LabelColumn::boldFont() const
{
    QFont font = m_table->font();
    font.setBold(true);
    return font;
}

QString LabelColumn::label(int row) const
{
    return m_table->model()->index(row, 0).data().toString();
}

int LabelColumn::captionHeight() const
{
    return m_table->viewport()->geometry().top() - y();
}

void LabelColumn::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int labels = m_table->columnWidth(0);
    painter.fillRect(rect(), palette().button());
    painter.fillRect(rect().adjusted(labels, captionHeight(), 0, 0), m_table->palette().base());
    QStyleOptionHeader caption;
    caption.initFrom(this);
    caption.rect = QRect(0, 0, labels, captionHeight());
    caption.section = 0;
    caption.text = m_table->model()->headerData(0, Qt::Horizontal).toString();
    style()->drawControl(QStyle::CE_Header, &caption, &painter, this);
    painter.setClipRect(rect().adjusted(0, captionHeight(), 0, 0));
    const int first = m_table->rowAt(0);
    const int rows = m_table->model()->rowCount();
    const int bottom = m_table->viewport()->height();
    for (int row = first; row >= 0 && row < rows && m_table->rowViewportPosition(row) < bottom; ++row)
        paintRow(painter, row);
    painter.fillRect(labels - kLine, 0, kLine, height(), gridColour());
}

void LabelColumn::paintRow(QPainter &painter, int row) const
{
    const QRect cell(0, captionHeight() + m_table->rowViewportPosition(row), m_table->columnWidth(0),
                     m_table->rowHeight(row));
    painter.setFont(row == m_table->currentIndex().row() ? boldFont() : m_table->font());
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(cell.adjusted(kMargin, 0, -kMargin, -kLine), Qt::AlignRight | Qt::AlignVCenter, label(row));
    painter.setPen(gridColour());
    painter.drawLine(cell.bottomLeft(), cell.bottomRight());
}

QColor LabelColumn::gridColour() const
{
    QStyleOption option;
    option.initFrom(m_table);
    return QColor::fromRgba(static_cast<QRgb>(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, m_table)));
}

void LabelColumn::mousePressEvent(QMouseEvent *event)
{
    const int row = m_table->rowAt(static_cast<int>(event->position().y()) - captionHeight());
    if (event->button() == Qt::LeftButton && event->position().y() >= captionHeight() && row >= 0)
        emit rowPressed(row);
}

void LabelColumn::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_table->viewport(), event);
}

}  // namespace penwright
