#include "plot/PlotLettering.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "plot/PlotPainter.h"

namespace penwright {

namespace {

constexpr QColor kFigures{96, 96, 96};
constexpr QColor kLetters{32, 32, 32};
constexpr double kGap = 3;            // pixels between a text and its line
constexpr double kLeastFigured = 70;  // radius for a figure at every spoke, not only at the axes

QString degreeText(int degrees)
{
    return QString::number(degrees) + QChar(0x00B0);
}

/// The vertical angle in a direction: for type C from nadir up on both sides; the others know the right half only.
bool hasVerticalAngle(bool typeC, int direction)
{
    return typeC || direction <= 90 || direction >= 270;
}
int verticalAngle(bool typeC, int direction)
{
    if (!typeC)
        return direction <= 90 ? direction : direction - 360;
    const int fromNadir = (direction + 90) % 360;
    return fromNadir <= 180 ? fromNadir : 360 - fromNadir;
}

void paintDegrees(QPainter &painter, const PlotFrame &frame, bool typeC)
{
    const QFontMetricsF metrics(painter.font());
    const int step = frame.radius < kLeastFigured ? 90 : kPlotSpoke;
    for (int direction = 0; direction < 360; direction += step) {
        if (!hasVerticalAngle(typeC, direction))
            continue;
        const QString text = degreeText(verticalAngle(typeC, direction));
        const QSizeF size(metrics.horizontalAdvance(text), metrics.capHeight());
        const QPointF outward = frame.polar(1, direction) - frame.centre;
        QRectF box(QPointF(), size);
        box.moveCenter(frame.polar(frame.radius + kGap, direction) +
                       QPointF(outward.x() * size.width() / 2, outward.y() * size.height() / 2));
        painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
    }
}

/// How far below the outer ring's top a text of that width beside the vertical axis stays inside the ring.
double clearance(const PlotFrame &frame, double width)
{
    const double across = std::min(width + 2 * kGap, frame.radius);
    return frame.radius - std::sqrt(frame.radius * frame.radius - across * across);
}

/// The figures hang inside their rings beside the upper half of the vertical axis; left of it unless type C, because
/// all curves are on the right then. From the outside in; one without room below the one before is left out.
void paintCandelas(QPainter &painter, const PlotFrame &frame, bool typeC, const std::vector<PlotRing> &rings)
{
    const QFontMetricsF metrics(painter.font());
    const double height = metrics.capHeight() + 2;
    double free = frame.centre.y() - frame.radius;
    for (auto ring = rings.rbegin(); ring != rings.rend(); ++ring) {
        const QString text = QString::fromStdString(ring->text);
        const double width = metrics.horizontalAdvance(text);
        const double radius = frame.radius * (ring->candela / rings.back().candela);
        const double below = ring == rings.rbegin() ? std::max(kGap, clearance(frame, width)) : kGap;
        const double top = frame.centre.y() - radius + below;
        if (top < free || top + height > frame.centre.y())
            continue;
        free = top + height + kGap;
        const double left = typeC ? frame.centre.x() + kGap : frame.centre.x() - kGap - width;
        const QRectF box(left, top, width, height);
        painter.fillRect(box.adjusted(-1, -1, 1, 0), kPlotPaper);
        painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
    }
}

/// The letters stand beside the degree figures at the ends of their axes.
void paintLettersAround(QPainter &painter, const PlotFrame &frame, const QFontMetricsF &figures)
{
    const double aside = figures.horizontalAdvance(degreeText(180)) / 2 + 2 * kGap;
    const double above = figures.capHeight() / 2 + 2 * kGap;
    painter.drawText(frame.centre + QPointF(aside, -frame.radius - kGap), QStringLiteral("V"));
    painter.drawText(frame.centre + QPointF(frame.radius + kGap, -above), QStringLiteral("H"));
}

void paintLettersInside(QPainter &painter, const PlotFrame &frame)
{
    const QFontMetricsF metrics(painter.font());
    const double wide = metrics.horizontalAdvance(QLatin1Char('H'));
    painter.drawText(frame.centre + QPointF(kGap, metrics.capHeight() + kGap - frame.radius), QStringLiteral("V"));
    painter.drawText(frame.centre + QPointF(frame.radius - wide - kGap, -kGap), QStringLiteral("H"));
}

}  // namespace

void paintPlotLettering(QPainter &painter, const PlotFrame &frame, const QFont &font, bool typeC,
                        const std::vector<PlotRing> &rings)
{
    QFont small = plotFigureFont(font);
    painter.setFont(small);
    painter.setPen(kFigures);
    const QFontMetricsF figures(small);
    if (frame.lettered) {
        paintDegrees(painter, frame, typeC);
        paintCandelas(painter, frame, typeC, rings);
    }
    small.setBold(true);
    painter.setFont(small);
    painter.setPen(kLetters);
    if (frame.lettered)
        paintLettersAround(painter, frame, figures);
    else
        paintLettersInside(painter, frame);
}

}  // namespace penwright
