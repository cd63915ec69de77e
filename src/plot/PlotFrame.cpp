#include "plot/PlotFrame.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace penwright {

namespace {

constexpr double kFrameMargin = 3;
constexpr double kLeastLettered = 45;  // radius

}  // namespace

PlotPixel PlotFrame::polar(double length, double degrees) const
{
    const double radians = degrees * std::numbers::pi / 180;
    return {centre.x + length * std::cos(radians), centre.y - length * std::sin(radians)};
}

PlotFrame plotFrame(const PlotBox &area, const PlotTextRoom &room, double largest)
{
    const double aside = room.figureWidth("-90\u00B0") + 2 * kFrameMargin;
    const double above = room.plainHeight + 3 * kFrameMargin;
    PlotFrame frame;
    frame.centre = {std::floor(area.left + area.width / 2) + 0.5, std::floor(area.top + area.height / 2) + 0.5};
    frame.radius = std::floor(std::min(area.width / 2 - aside, area.height / 2 - above));
    frame.lettered = frame.radius >= kLeastLettered;
    if (!frame.lettered)
        frame.radius = std::max(0.0, std::floor(std::min(area.width, area.height) / 2 - kFrameMargin));
    if (largest > 0)
        frame.perCandela = frame.radius / largest;
    return frame;
}

}  // namespace penwright
