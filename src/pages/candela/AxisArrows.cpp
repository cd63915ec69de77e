#include "pages/candela/AxisArrows.h"

#include <QPainter>

namespace penwright {
namespace {

constexpr double kHead = 3.5;

void paintArrow(QPainter &painter, const QPointF &from, const QPointF &to)
{
    const QPointF along = (to - from) / QLineF(from, to).length() * kHead;
    const QPointF across(-along.y(), along.x());
    painter.drawLine(from, to);
    painter.drawPolyline(QPolygonF({to - along + across, to, to - along - across}));
}

}  // namespace

void AxisArrows::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().windowText(), 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QRectF box = QRectF(rect()).adjusted(4, 4, -2, -2);
    paintArrow(painter, box.topLeft(), box.topRight());
    paintArrow(painter, box.topLeft(), box.bottomLeft());
}

}  // namespace penwright
