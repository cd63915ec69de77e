#include "plot/PlotReading.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/NumberText.h"

namespace penwright {

namespace {

void append(std::vector<PlotReading> &readings, const PlotCurves &curves, const PlotStretch &stretch, bool isCone)
{
    const PlotPlacing place = placing(stretch.side, curves.shape);
    const bool isOpposite = stretch.side == PlotSide::LeftOfNadir;
    const bool isAround = stretch.side == PlotSide::AroundFromTheRight;
    const double plane = double{curves.horizontalAngle} + (isCone ? 90 : 0);
    for (const PlotNode &node : stretch.nodes) {
        if (!node.candela)
            continue;
        PlotReading reading{isCone, plane, double{node.degrees}, *node.candela, place(*node.candela, node.degrees), 0};
        if (isCone && isAround) {
            reading.horizontal = curves.hasTwoPlanes ? double{node.degrees} : horizontalAngle(double{node.degrees});
            reading.vertical = double{curves.verticalAngle};
        } else if (isOpposite) {
            reading.horizontal = std::fmod(horizontalAngle(reading.horizontal + 180), 360.0);
        }
        readings.push_back(reading);
    }
}

double squared(double length)
{
    return length * length;
}

double distance(const PlotPixel &one, const PlotPixel &other)
{
    return squared(one.x - other.x) + squared(one.y - other.y);
}

/// To the straight line between two places, squared.
double distance(const PlotPixel &from, const PlotPixel &begin, const PlotPixel &end)
{
    const double length = distance(begin, end);
    if (!(length > 0))
        return distance(from, begin);
    const double along = ((from.x - begin.x) * (end.x - begin.x) + (from.y - begin.y) * (end.y - begin.y)) / length;
    const double share = std::clamp(along, 0.0, 1.0);
    return distance(from, {begin.x + (end.x - begin.x) * share, begin.y + (end.y - begin.y) * share});
}

double distance(const PlotPixel &from, const PlotCurve &curve, const PlotScale &scale)
{
    double nearest = std::numeric_limits<double>::infinity();
    for (const PlotRun &run : curve.runs)
        for (std::size_t i = 0; i < run.size(); ++i)
            nearest = std::min(nearest, distance(from, scale.placeOf(run[i == 0 ? 0 : i - 1]), scale.placeOf(run[i])));
    return nearest;
}

std::optional<PlotReading> firstOf(const PlotCurves &curves, bool isCone)
{
    const std::vector<PlotReading> readings = readingsOf(curves, isCone);
    return readings.empty() ? std::nullopt : std::optional(readings.front());
}

}  // namespace

std::vector<PlotReading> readingsOf(const PlotCurves &curves, bool isCone)
{
    std::vector<PlotReading> readings;
    const std::vector<PlotStretch> &stretches = (isCone ? curves.cone : curves.plane).stretches;
    for (const PlotStretch &stretch : stretches)
        if (stretch.side == PlotSide::LeftOfNadir)
            append(readings, curves, stretch, isCone);
    std::reverse(readings.begin(), readings.end());
    for (const PlotStretch &stretch : stretches)
        if (stretch.side != PlotSide::LeftOfNadir)
            append(readings, curves, stretch, isCone);
    for (std::size_t place = 0; place < readings.size(); ++place)
        readings[place].place = place;
    return readings;
}

std::optional<PlotReading> readingAt(const PlotCurves &curves, const PlotScales &scales, const PlotPixel &pointer)
{
    const bool isCone = distance(pointer, curves.cone, scales.cone) < distance(pointer, curves.plane, scales.plane);
    const PlotScale &scale = isCone ? scales.cone : scales.plane;
    std::optional<PlotReading> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (const PlotReading &reading : readingsOf(curves, isCone)) {
        const double here = distance(pointer, scale.placeOf(reading.point));
        // At nadir the opposite plane comes first, and the plane itself is meant.
        if (nearest && (isCone ? here >= least : here > least))
            continue;
        nearest = reading;
        least = here;
    }
    return nearest;
}

std::optional<PlotReading> readingAfter(const PlotCurves &curves, const std::optional<PlotReading> &from, PlotStep step)
{
    const std::optional<PlotReading> plane = firstOf(curves, false);
    const std::optional<PlotReading> begin = plane ? plane : firstOf(curves, true);
    if (!from)
        return begin;
    if (step == PlotStep::OtherCurve) {
        const std::optional<PlotReading> other = firstOf(curves, !from->isCone);
        return other ? other : from;
    }
    const std::vector<PlotReading> readings = readingsOf(curves, from->isCone);
    if (from->place >= readings.size())
        return begin;
    switch (step) {
        case PlotStep::First:
            return readings.front();
        case PlotStep::Last:
            return readings.back();
        case PlotStep::Next:
            return readings[std::min(from->place + 1, readings.size() - 1)];
        default:
            return readings[from->place == 0 ? 0 : from->place - 1];
    }
}

std::optional<PlotReading> readingAgain(const PlotCurves &curves, const PlotReading &reading)
{
    const std::vector<PlotReading> readings = readingsOf(curves, reading.isCone);
    return reading.place < readings.size() ? std::optional(readings[reading.place]) : std::nullopt;
}

std::string readingText(const PlotReading &reading)
{
    return "H " + generalText(toSingle(reading.horizontal)) + ", V " + generalText(toSingle(reading.vertical)) + ": " +
           generalText(toSingle(reading.candela)) + " cd";
}

}  // namespace penwright
