#include "plot/CurvePainter.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>
#include <QPolygonF>

namespace penwright {

namespace {

constexpr double kLongestShape = 10'000;  // some ten times around a large picture
constexpr double kLonePoint = 1.5;        // radius of a value between two gaps
constexpr double kClosest = 0.25;         // between two points of a line that can be told apart

QPolygonF lineOf(const PlotRun &run, const PlotScale &scale)
{
    QPolygonF line;
    for (const PlotPoint &point : run) {
        const PlotPixel place = scale.placeOf(point);
        const QPointF next(place.x, place.y);
        const bool last = &point == &run.back();
        if (line.isEmpty() || last || (next - line.last()).manhattanLength() >= kClosest)
            line.append(next);
    }
    return line;
}

double lengthOf(const QPolygonF &line)
{
    double length = 0;
    for (qsizetype i = 1; i < line.size(); ++i)
        length += QLineF(line[i - 1], line[i]).length();
    return length;
}

/// A line is filled as one shape: drawn by segments it turns pale or heavy where points are close. One that crosses
/// the picture again and again takes very long as a shape, and its segments are long enough to be drawn by themselves.
void paintLine(QPainter &painter, const QPolygonF &line, const QPen &pen)
{
    if (lengthOf(line) < kLongestShape) {
        QPainterPath path;
        path.addPolygon(line);
        painter.fillPath(QPainterPathStroker(pen).createStroke(path), pen.color());
        return;
    }
    painter.setPen(QPen(pen.color(), 1));  // round ends would make shapes of them again
    for (qsizetype i = 1; i < line.size(); ++i)
        painter.drawLine(line[i - 1], line[i]);
}

}  // namespace

void paintCurve(QPainter &painter, const PlotScale &scale, const PlotCurve &curve, const QPen &pen)
{
    for (const PlotRun &run : curve.runs) {
        const QPolygonF line = lineOf(run, scale);
        if (line.size() == 1) {
            painter.setPen(pen);
            painter.setBrush(pen.color());
            painter.drawEllipse(line.first(), kLonePoint, kLonePoint);
        } else {
            paintLine(painter, line, pen);
        }
    }
}

}  // namespace penwright
