#include "pages/luminaire/ShapeSketchView.h"

#include <cmath>
#include <QPainter>

#include "controls/MixedColour.h"
#include "controls/ScreenReader.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

QPen penOf(StrokeKind kind, const QColor &colour)
{
    QPen pen(colour, kind == StrokeKind::Outline ? 2 : 1);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::RoundCap);
    if (kind == StrokeKind::Hidden) {
        pen.setCapStyle(Qt::FlatCap);  // other caps close the gaps
        pen.setDashPattern({1.5, 2.5});
    }
    return pen;
}

/// Puts a thin vertical line on one column of pixels, so that it is not smeared over two.
void sharpenUpright(QPolygonF &line)
{
    const double x = line.front().x();
    if (std::abs(line.back().x() - x) < 0.01)
        line.translate(std::floor(x) + 0.5 - x, 0);
}

/// The box of a text that lies beside a place in a direction, a little apart from it.
QRectF boxBeside(const QPointF &place, const QPointF &away, const QString &text, const QFontMetricsF &font)
{
    constexpr double kGap = 3;
    QRectF box(0, 0, font.horizontalAdvance(text), font.capHeight());
    const double apart = kGap + (std::abs(away.x()) * box.width() + std::abs(away.y()) * box.height()) / 2;
    box.moveCenter(place + apart * away);
    return box;
}

}  // namespace

ShapeSketchView::ShapeSketchView(QWidget *parent) : QWidget(parent)
{
    setScreenReaderRole(*this, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName("Sketch of the luminous shape");
    setShape(-1);
}

void ShapeSketchView::setShape(int position)
{
    describe(*this, QString::fromStdString(sketchDescription(position)));
    m_sketch = sketchOfShape(position);
    update();
}

QSize ShapeSketchView::sizeHint() const
{
    return {240, 180};
}

QSize ShapeSketchView::minimumSizeHint() const
{
    return {200, 150};
}

void ShapeSketchView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(frameColour(palette()));
    painter.setBrush(palette().base());
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));

    const double scale = std::min(width() / kSketchWidth, height() / kSketchHeight);
    const QPointF origin((width() - scale * kSketchWidth) / 2, (height() - scale * kSketchHeight) / 2);
    const auto place = [&](const SketchPoint &point) { return origin + scale * QPointF(point.x, point.y); };

    const QColor colour = palette().color(QPalette::Text);
    for (const SketchStroke &stroke : m_sketch.strokes) {
        QPolygonF line;
        for (const SketchPoint &point : stroke.points)
            line.append(place(point));
        if (stroke.kind == StrokeKind::Frame)
            sharpenUpright(line);
        painter.setPen(penOf(stroke.kind, colour));
        painter.drawPolyline(line);
    }
    painter.setPen(colour);
    for (const SketchLabel &label : m_sketch.labels) {
        const QString text = toQString(label.text);
        const QPointF end = place(label.end);
        painter.drawText(boxBeside(end, {label.away.x, label.away.y}, text, fontMetrics()),
                         Qt::AlignCenter | Qt::TextDontClip, text);
    }
}

}  // namespace penwright
