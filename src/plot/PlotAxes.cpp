#include "plot/PlotAxes.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace penwright {

namespace {

constexpr int kMostSteps = 8;

double stepOf(double span)
{
    for (const double step : {1.0, 2.0, 5.0, 10.0, 15.0, 30.0, 45.0, 90.0})
        if (span <= step * kMostSteps)
            return step;
    return span / kMostSteps;  // no list of a luminaire
}

PlotAxis axis(double first, double last)
{
    if (!(first < last))
        return {first - 1, first + 1, 1};
    return {first, last, stepOf(last - first)};
}

}  // namespace

PlotAxis planeAxis(const PlotCurves &curves)
{
    double first = std::numeric_limits<double>::infinity();
    double last = -first;
    for (const PlotCurve *plane : {&curves.plane, &curves.cone})
        for (const PlotStretch &stretch : plane->stretches)
            for (const PlotNode &node : stretch.nodes) {
                if (plane == &curves.cone && !curves.hasTwoPlanes)
                    continue;
                const bool isOpposite = stretch.side == PlotSide::LeftOfNadir;
                first = std::min(first, isOpposite ? -double{node.degrees} : double{node.degrees});
                last = std::max(last, double{node.degrees});
            }
    return first > last ? axis(-90, 90) : axis(first, last);
}

PlotAxis coneAxis(const PlotCurves &curves)
{
    if (curves.hasTwoPlanes)
        return planeAxis(curves);
    if (curves.cone.stretches.empty() || curves.cone.stretches.front().nodes.empty())
        return axis(0, 360);
    const std::vector<PlotNode> &nodes = curves.cone.stretches.front().nodes;
    const double first = double{nodes.front().degrees};
    return axis(first, std::max(first + 360, double{nodes.back().degrees}));
}

std::vector<double> figuredAngles(const PlotAxis &axis)
{
    std::vector<double> angles;
    const double first = std::ceil(axis.first / axis.step);
    for (int i = 0; i <= kMostSteps && (first + i) * axis.step <= axis.last; ++i)
        angles.push_back((first + i) * axis.step);
    return angles;
}

double horizontalAngle(double degrees)
{
    if (degrees >= 0 && degrees <= 360)
        return degrees;
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0 ? rest + 360 : rest;
}

}  // namespace penwright
