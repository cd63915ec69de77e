#include "plot/PlotRuns.h"

#include <cmath>

namespace penwright {

namespace {

constexpr float kLargestStep = 5;  // degrees; the chord leaves a circle of 200 pixels by 0.2 pixels
constexpr int kMostSteps = 72;     // a full turn; records from elsewhere may hold any angle

struct Direction {
    double sine;
    double cosine;
};

Direction directionOf(float degrees)
{
    // The short factor and the rounding to single precision are meant: every picture of this kind is placed by them.
    const auto radians = static_cast<float>(double{degrees} * 0.01745329);
    return {std::sin(double{radians}), std::cos(double{radians})};
}

void appendSteps(PlotRun &run, const PlotNode &from, const PlotNode &to, PlotPlacing place)
{
    const float width = to.degrees - from.degrees;
    const float wanted = std::ceil(std::abs(width) / kLargestStep);
    const int steps = wanted < float{kMostSteps} ? static_cast<int>(wanted) : kMostSteps;
    for (int i = 1; i < steps; ++i) {
        const float share = static_cast<float>(i) / static_cast<float>(steps);
        run.push_back(place(inProportion(*from.candela, *to.candela, double{share}), from.degrees + width * share));
    }
}

PlotPoint rightOfNadir(double candela, float degrees)
{
    const Direction to = directionOf(degrees);
    return {candela * to.sine, -candela * to.cosine};
}

PlotPoint leftOfNadir(double candela, float degrees)
{
    const PlotPoint right = rightOfNadir(candela, degrees);
    return {-right.x, right.y};
}

PlotPoint aroundFromTheRight(double candela, float degrees)
{
    const Direction to = directionOf(degrees);
    return {candela * to.cosine, candela * to.sine};
}

PlotPoint alongTheAxis(double candela, float degrees)
{
    return {double{degrees}, candela};
}

PlotPoint againstTheAxis(double candela, float degrees)
{
    return {-double{degrees}, candela};
}

}  // namespace

PlotPlacing placing(PlotSide side, PlotShape shape)
{
    if (shape == PlotShape::Linear)
        return side == PlotSide::LeftOfNadir ? againstTheAxis : alongTheAxis;
    switch (side) {
        case PlotSide::RightOfNadir:
            return rightOfNadir;
        case PlotSide::LeftOfNadir:
            return leftOfNadir;
        case PlotSide::AroundFromTheRight:
            break;
    }
    return aroundFromTheRight;
}

double inProportion(double from, double to, double share)
{
    return from + (to - from) * share;
}

void appendRuns(std::vector<PlotRun> &runs, const std::vector<PlotNode> &nodes, PlotPlacing place)
{
    const PlotNode *previous = nullptr;
    for (const PlotNode &node : nodes) {
        if (node.candela) {
            if (previous)
                appendSteps(runs.back(), *previous, node, place);
            else
                runs.emplace_back();
            runs.back().push_back(place(*node.candela, node.degrees));
        }
        previous = node.candela ? &node : nullptr;
    }
}

}  // namespace penwright
