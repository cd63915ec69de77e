#include "plot/PlotCurves.h"

#include <algorithm>
#include <utility>

#include "core/NumberText.h"
#include "plot/PlotSymmetry.h"
#include "plot/PlotTable.h"

namespace penwright {

namespace {

void notePeak(PlotCurve &curve, const std::vector<PlotNode> &nodes, bool opposite)
{
    for (const PlotNode &node : nodes)
        if (node.candela && (!curve.largest || *node.candela > curve.largest->candela))
            curve.largest = PlotPeak{*node.candela, node.degrees, opposite};
}

void appendHalf(PlotCurve &plane, std::vector<PlotNode> nodes, PlotSide side)
{
    notePeak(plane, nodes, side == PlotSide::LeftOfNadir);
    plane.stretches.push_back({std::move(nodes), side});
}

/// The listed values in every direction that they stand for, from the list's own ones on.
std::vector<PlotNode> turnedFullCircle(const std::vector<PlotNode> &listed, const PlotCircle &circle)
{
    const float first = listed.front().degrees;
    const float last = listed.back().degrees;
    if (circle.symmetry() == PlotSymmetry::Rotational)
        return {listed.front(), {first + 360, listed.front().candela}};

    std::vector<PlotNode> around;
    for (const PlotCircle::Stretch &stretch : circle.stretches()) {
        // The stretch before has ended with what this one begins with.
        const int known = around.empty() ? 0 : 1;
        if (stretch.backward)
            for (auto node = listed.rbegin() + known; node != listed.rend(); ++node)
                around.push_back({stretch.start + (last - node->degrees), node->candela});
        else
            for (auto node = listed.begin() + known; node != listed.end(); ++node)
                around.push_back({stretch.start + (node->degrees - first), node->candela});
    }
    return around;
}

void appendCone(PlotCurve &cone, const std::vector<PlotNode> &listed, const PlotCircle &circle)
{
    notePeak(cone, listed, false);
    cone.stretches.push_back({turnedFullCircle(listed, circle), PlotSide::AroundFromTheRight});
}

void addTypeC(PlotCurves &curves, const PlotTable &table, const PlotAngle &horizontal, const PlotAngle &vertical)
{
    const PlotCircle circle(table.firstHorizontal(), table.lastHorizontal());
    if (const auto right = table.horizontalPlace(horizontal))
        appendHalf(curves.plane, table.plane(*right), PlotSide::RightOfNadir);
    if (const auto angle = circle.listedAngle(double{curves.horizontalAngle} + 180))
        if (const auto left = table.horizontalPlace(*angle))
            appendHalf(curves.plane, table.plane(*left), PlotSide::LeftOfNadir);
    if (const auto place = table.verticalPlace(vertical))
        appendCone(curves.cone, table.cone(*place), circle);
}

PlotCurves curvesOf(const PhotometricRecord &record, const PlotTable &table, const PlotAngle &horizontal,
                    const PlotAngle &vertical, PlotShape shape)
{
    PlotCurves curves;
    curves.typeC = record.PhotometricType == kTypeC;
    curves.horizontalAngle = horizontal.degrees;
    curves.verticalAngle = vertical.degrees;
    if (!table.empty() && curves.typeC)
        addTypeC(curves, table, horizontal, vertical);
    else if (const auto place = table.horizontalPlace(horizontal))
        appendHalf(curves.plane, table.plane(*place), PlotSide::AroundFromTheRight);
    reshape(curves, shape);
    return curves;
}

void makeRuns(PlotCurve &curve, PlotShape shape)
{
    curve.runs.clear();
    for (const PlotStretch &stretch : curve.stretches)
        appendRuns(curve.runs, stretch.nodes, placing(stretch.side, shape));
}

}  // namespace

double PlotCurves::largest() const
{
    const auto of = [](const PlotCurve &curve) { return curve.largest ? curve.largest->candela : 0.0; };
    return std::max(of(plane), of(cone));
}

PlotCurves plotCurves(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells,
                      const PlotAngle &horizontal, const PlotAngle &vertical, PlotShape shape)
{
    return curvesOf(record, PlotTable(record, cells), horizontal, vertical, shape);
}

PlotCurves plotCurves(const PhotometricRecord &record, const PlotAngle &horizontal, const PlotAngle &vertical,
                      PlotShape shape)
{
    return curvesOf(record, PlotTable(record), horizontal, vertical, shape);
}

void reshape(PlotCurves &curves, PlotShape shape)
{
    curves.shape = shape;
    makeRuns(curves.plane, shape);
    makeRuns(curves.cone, shape);
}

std::string curveWords(const PlotCurve &curve)
{
    if (!curve.largest)
        return "no values";
    return "largest " + generalText(toSingle(curve.largest->candela)) + " candela at " +
           generalText(curve.largest->degrees) + " degrees" + (curve.largest->opposite ? " on the opposite side" : "");
}

std::string plotDescription(const PlotCurves &curves)
{
    std::string text = "Vertical plane through horizontal angle " + generalText(curves.horizontalAngle) + ": " +
                       curveWords(curves.plane);
    if (curves.typeC)
        text += "; horizontal cone through vertical angle " + generalText(curves.verticalAngle) + ": " +
                curveWords(curves.cone);
    return text + ".";
}

}  // namespace penwright
