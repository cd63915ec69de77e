#include "plot/PlotFrame.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace penwright {

namespace {

constexpr double kMargin = 3;
constexpr double kLeastLettered = 45;  // radius

}  // namespace

QPointF PlotFrame::polar(double length, double degrees) const
{
    const double radians = degrees * std::numbers::pi / 180;
    return centre + QPointF(length * std::cos(radians), -length * std::sin(radians));
}

PlotFrame plotFrame(const QRectF &area, const QFont &font)
{
    const double aside =
        QFontMetricsF(plotFigureFont(font)).horizontalAdvance(QStringLiteral("-90\u00B0")) + 2 * kMargin;
    const double above = QFontMetricsF(font).capHeight() + 3 * kMargin;
    PlotFrame frame;
    frame.centre = {std::floor(area.center().x()) + 0.5, std::floor(area.center().y()) + 0.5};
    frame.radius = std::floor(std::min(area.width() / 2 - aside, area.height() / 2 - above));
    frame.lettered = frame.radius >= kLeastLettered;
    if (!frame.lettered)
        frame.radius = std::max(0.0, std::floor(std::min(area.width(), area.height()) / 2 - kMargin));
    return frame;
}

QFont plotFigureFont(QFont font)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * 0.8);
    else
        font.setPixelSize(std::max(1, font.pixelSize() * 4 / 5));
    return font;
}

}  // namespace penwright
