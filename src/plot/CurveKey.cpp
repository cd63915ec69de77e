#include "plot/CurveKey.h"

#include <QPainter>

#include "plot/PlotLook.h"

namespace penwright {

CurveKey::CurveKey(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CurveKey::setColour(const QColor &colour)
{
    m_colour = colour;
    update();
}

void CurveKey::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(kPaperLook.grid);
    painter.setBrush(kPaperLook.paper);
    painter.drawRect(box);
    painter.setPen(QPen(m_colour, 2));
    painter.drawLine(QPointF(box.left() + 4, box.center().y()), QPointF(box.right() - 4, box.center().y()));
}

}  // namespace penwright
