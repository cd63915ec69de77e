#include "plot/PlotPainter.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>

#include "plot/CurvePainter.h"
#include "plot/PlotField.h"
#include "plot/PlotFonts.h"
#include "plot/PlotFrame.h"
#include "plot/PlotLettering.h"

namespace penwright {

namespace {

constexpr int kEmptyRings = 4;
constexpr int kTick = 10;            // degrees between the ticks of the outer ring
constexpr double kTickLength = 4;    // pixels, as all lengths below
constexpr double kLeastTicked = 90;  // radius

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
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.letters);
    for (const PlotMark &mark : lettering.marks)
        painter.drawPolygon(QPolygonF({pointOf(mark.tip), pointOf(mark.left), pointOf(mark.right)}));
}

void paintField(QPainter &painter, const PlotField &field, const PlotPicture &picture, const QColor &colour)
{
    const QPointF corner(field.box.left, field.box.top);
    const QRectF box(corner, QSizeF(field.box.width, field.box.height));
    painter.setPen(QPen(colour, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box);
    for (const PlotRing &ring : picture.rings) {
        const double y = box.bottom() - ring.candela * field.perCandela;
        painter.drawLine(QPointF(box.left(), y), QPointF(box.right(), y));
    }
    for (const double degrees : figuredAngles(field.plane)) {
        const double x = field.across(field.plane, degrees);
        painter.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom()));
    }
}

void paintPolar(QPainter &painter, const PlotBox &box, const PlotFonts &fonts, const PlotPicture &picture,
                const PlotLook &look)
{
    const PlotTextRoom room = fonts.room();
    const PlotFrame frame = plotFrame(box, room, picture.curves.largest());
    paintGrid(painter, frame, ringRadii(frame, picture.rings), look.grid);
    const PlotCurves &curves = picture.curves;
    paintLettering(painter, plotLettering(frame, room, curves.typeC, picture.rings, curves.hasTwoPlanes), fonts, look);
}

void paintLinear(QPainter &painter, const PlotBox &box, const PlotFonts &fonts, const PlotPicture &picture,
                 const PlotLook &look)
{
    const PlotTextRoom room = fonts.room();
    const PlotField field = plotField(box, room, picture);
    paintField(painter, field, picture, look.grid);
    paintLettering(painter, fieldLettering(field, room, picture), fonts, look);
}

}  // namespace

void paintPlot(QPainter &painter, const QRectF &area, const QFont &font, const PlotPicture &picture,
               const PlotLook &look)
{
    const PlotFonts fonts(font);
    const PlotBox box{area.x(), area.y(), area.width(), area.height()};
    painter.fillRect(area, look.paper);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isLinear = picture.curves.shape == PlotShape::Linear;
    (isLinear ? paintLinear : paintPolar)(painter, box, fonts, picture, look);
    if (picture.rings.empty())
        return;
    const auto penOf = [&look](const QColor &colour) {
        return QPen(colour, look.curveWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    };
    const PlotScales scales = plotScales(box, fonts.room(), picture);
    paintCurve(painter, scales.plane, picture.curves.plane, penOf(look.plane));
    paintCurve(painter, scales.cone, picture.curves.cone, penOf(look.cone));
}

}  // namespace penwright
