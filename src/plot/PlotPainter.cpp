#include "plot/PlotPainter.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>
#include <QPolygonF>

#include "plot/PlotFonts.h"
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

QPointF pointOf(const PlotPixel &place)
{
    return {place.x, place.y};
}

std::vector<double> ringRadii(const PlotFrame &frame, const std::vector<PlotRing> &rings)
{
    std::vector<double> radii;
    for (const PlotRing &ring : rings)
        radii.push_back(frame.radius * (ring.candela / rings.back().candela));
    for (int i = 1; rings.empty() && i <= kEmptyRings; ++i)
        radii.push_back(frame.radius * i / kEmptyRings);
    return radii;
}

void paintGrid(QPainter &painter, const PlotFrame &frame, const std::vector<double> &radii, const QColor &colour)
{
    const auto ray = [&](double from, int degrees) {
        painter.drawLine(pointOf(frame.polar(from, degrees)), pointOf(frame.polar(frame.radius, degrees)));
    };
    painter.setPen(QPen(colour, 1));
    painter.setBrush(Qt::NoBrush);
    for (const double radius : radii)
        painter.drawEllipse(pointOf(frame.centre), radius, radius);
    for (int degrees = 0; degrees < 360; degrees += kPlotSpoke)
        ray(0, degrees);
    if (frame.radius < kLeastTicked)
        return;
    for (int degrees = 0; degrees < 360; degrees += kTick)
        ray(frame.radius - kTickLength, degrees);
}

void paintLettering(QPainter &painter, const PlotLettering &lettering, const PlotFonts &fonts, const PlotLook &look)
{
    const auto write = [&](const PlotFigure &figure, bool onPaper) {
        const QRectF box(figure.box.left, figure.box.top, figure.box.width, figure.box.height);
        if (onPaper)
            painter.fillRect(box.adjusted(-1, -1, 1, 0), look.paper);
        painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, QString::fromStdString(figure.text));
    };
    painter.setFont(fonts.figures());
    painter.setPen(look.figures);
    for (const PlotFigure &figure : lettering.degrees)
        write(figure, false);
    for (const PlotFigure &figure : lettering.candelas)
        write(figure, true);
    painter.setFont(fonts.letters());
    painter.setPen(look.letters);
    for (const PlotLetter &letter : lettering.letters)
        painter.drawText(pointOf(letter.begin), QString::fromStdString(letter.text));
}

QPolygonF lineOf(const PlotRun &run, const PlotFrame &frame)
{
    QPolygonF line;
    for (const PlotPoint &point : run) {
        const QPointF next = pointOf(frame.placeOf(point));
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

void paintCurve(QPainter &painter, const PlotFrame &frame, const PlotCurve &curve, const QPen &pen)
{
    for (const PlotRun &run : curve.runs) {
        const QPolygonF line = lineOf(run, frame);
        if (line.size() == 1) {
            painter.setPen(pen);
            painter.setBrush(pen.color());
            painter.drawEllipse(line.first(), kLonePoint, kLonePoint);
        } else {
            paintLine(painter, line, pen);
        }
    }
}

}  // namespace

void paintPlot(QPainter &painter, const QRectF &area, const QFont &font, const PlotPicture &picture,
               const PlotLook &look)
{
    const PlotFonts fonts(font);
    const PlotTextRoom room = fonts.room();
    const PlotFrame frame =
        plotFrame({area.x(), area.y(), area.width(), area.height()}, room, picture.curves.largest());
    painter.fillRect(area, look.paper);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGrid(painter, frame, ringRadii(frame, picture.rings), look.grid);
    paintLettering(painter, plotLettering(frame, room, picture.curves.typeC, picture.rings), fonts, look);
    if (picture.rings.empty())
        return;
    const auto penOf = [&look](const QColor &colour) {
        return QPen(colour, look.curveWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    };
    paintCurve(painter, frame, picture.curves.plane, penOf(look.plane));
    paintCurve(painter, frame, picture.curves.cone, penOf(look.cone));
}

}  // namespace penwright
