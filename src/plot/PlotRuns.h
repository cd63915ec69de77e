#pragma once

#include <optional>
#include <vector>

namespace penwright {

/// A place in the picture, x to the right, y up: in candela, the light source at (0, 0); in a linear one degrees and
/// candela.
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

/// How a picture shows values at angles: as distances from the centre, or as heights along an axis of angles.
enum class PlotShape { Polar, Linear };

/// Which part of a polar picture a curve fills.
enum class PlotSide {
    RightOfNadir,       ///< 0 is down, 90 to the right, 180 up
    LeftOfNadir,        ///< 0 is down, 90 to the left, 180 up
    AroundFromTheRight  ///< 0 is to the right, 90 up, -90 down
};

/// The values of a part of a curve, in the order of its angles.
struct PlotStretch {
    std::vector<PlotNode> nodes;
    PlotSide side = PlotSide::AroundFromTheRight;
};

/// Where a value stands for its angle in degrees.
using PlotPlacing = PlotPoint (*)(double candela, float degrees);

/// The places of a side's values; in a linear picture x is the angle, left of 0 on the left side, and y the candela.
PlotPlacing placing(PlotSide side, PlotShape shape);

/// The value a share (0 to 1) of the way from one to another.
double inProportion(double from, double to, double share);

/// Appends the runs of the nodes in their order. Where neighbours are more than 5 degrees apart, points in between
/// keep the value in proportion to the angle.
void appendRuns(std::vector<PlotRun> &runs, const std::vector<PlotNode> &nodes, PlotPlacing place);

}  // namespace penwright
