#include "plot/PlotPainter.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>
#include <QPolygonF>

#include "plot/PlotFrame.h"
#include "plot/PlotLettering.h"

namespace penwright {

namespace {

constexpr int kEmptyRings = 4;
constexpr int kTick = 10;                 // degrees between the ticks of the outer ring
constexpr double kTickLength = 4;         // pixels, as all lengths below
constexpr double kLeastTicked = 90;       // radius
constexpr double kLongestShape = 10'000;  // some ten times around a large picture
constexpr double kLonePoint = 1.5;        // radius of a value between two gaps
constexpr double kClosest = 0.25;         // between two points of a line that can be told apart

std::vector<double> ringRadii(const PlotFrame &frame, const std::vector<PlotRing> &rings)
{
    std::vector<double> radii;
    for (const PlotRing &ring : rings)
        radii.push_back(frame.radius * (ring.candela / rings.back().candela));
    for (int i = 1; rings.empty() && i <= kEmptyRings; ++i)
        radii.push_back(frame.radius * i / kEmptyRings);
    return radii;
}

void paintGrid(QPainter &painter, const PlotFrame &frame, const std::vector<double> &radii)
{
    painter.setPen(QPen(kPlotGrid, 1));
    painter.setBrush(Qt::NoBrush);
    for (const double radius : radii)
        painter.drawEllipse(frame.centre, radius, radius);
    for (int degrees = 0; degrees < 360; degrees += kPlotSpoke)
        painter.drawLine(frame.centre, frame.polar(frame.radius, degrees));
    if (frame.radius < kLeastTicked)
        return;
    for (int degrees = 0; degrees < 360; degrees += kTick)
        painter.drawLine(frame.polar(frame.radius - kTickLength, degrees), frame.polar(frame.radius, degrees));
}

QPolygonF lineOf(const PlotRun &run, const PlotFrame &frame, double scale)
{
    QPolygonF line;
    for (const PlotPoint &point : run) {
        const QPointF next = frame.centre + QPointF(point.x * scale, -point.y * scale);
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

void paintCurve(QPainter &painter, const PlotFrame &frame, const PlotCurve &curve, double scale, const QColor &colour)
{
    const QPen pen(colour, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    for (const PlotRun &run : curve.runs) {
        const QPolygonF line = lineOf(run, frame, scale);
        if (line.size() == 1) {
            painter.setPen(pen);
            painter.setBrush(colour);
            painter.drawEllipse(line.first(), kLonePoint, kLonePoint);
        } else {
            paintLine(painter, line, pen);
        }
    }
}

}  // namespace

void paintPlot(QPainter &painter, const QRectF &area, const QFont &font, const PlotCurves &curves,
               const std::vector<PlotRing> &rings)
{
    const PlotFrame frame = plotFrame(area, font);
    painter.fillRect(area, kPlotPaper);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGrid(painter, frame, ringRadii(frame, rings));
    paintPlotLettering(painter, frame, font, curves.typeC, rings);
    if (rings.empty())
        return;
    const double scale = frame.radius / rings.back().candela;
    paintCurve(painter, frame, curves.plane, scale, kPlaneColour);
    paintCurve(painter, frame, curves.cone, scale, kConeColour);
}

}  // namespace penwright
