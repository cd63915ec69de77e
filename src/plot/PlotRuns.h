#pragma once

#include <optional>
#include <vector>

namespace penwright {

/// A place in the picture, in candela: x to the right, y up, the light source at (0, 0).
struct PlotPoint {
    double x = 0;
    double y = 0;
};

/// Points joined by straight lines. A single point is a value with gaps on both sides.
using PlotRun = std::vector<PlotPoint>;

/// The value at one angle (degrees) of a curve, or its gap.
struct PlotNode {
    float degrees = 0;
    std::optional<double> candela;
};

/// Where a value stands for its angle in degrees.
using PlotPlacing = PlotPoint (*)(double candela, float degrees);

PlotPoint rightOfNadir(double candela, float degrees);        ///< 0 is down, 90 to the right, 180 up
PlotPoint leftOfNadir(double candela, float degrees);         ///< 0 is down, 90 to the left, 180 up
PlotPoint aroundFromTheRight(double candela, float degrees);  ///< 0 is to the right, 90 up, -90 down

/// The value a share (0 to 1) of the way from one to another.
double inProportion(double from, double to, double share);

/// Appends the runs of the nodes in their order. Where neighbours are more than 5 degrees apart, points in between
/// keep the value in proportion to the angle.
void appendRuns(std::vector<PlotRun> &runs, const std::vector<PlotNode> &nodes, PlotPlacing place);

}  // namespace penwright
