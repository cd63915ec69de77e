#include "plot/MainPlanes.h"

#include "platform/RunTimeError.h"
#include "plot/PlotSymmetry.h"

namespace penwright {
namespace {

constexpr float kNoCone = 0;  // one is found beside each plane, and left out

/// The table of a record with its two axes exchanged; nothing else of it.
PhotometricRecord turned(const PhotometricRecord &record)
{
    PhotometricRecord other;
    other.PhotometricType = record.PhotometricType;
    other.NumHorzAngles = record.NumVertAngles;
    other.NumVertAngles = record.NumHorzAngles;
    other.HorAngles = record.VertAngles;
    other.VertAngles = record.HorAngles;
    other.Candela = OneBasedTable<double>(record.Candela.columns(), record.Candela.rows());
    for (int h = 1; h <= record.Candela.rows(); ++h)
        for (int v = 1; v <= record.Candela.columns(); ++v)
            other.Candela(v, h) = record.Candela(h, v);
    return other;
}

void addTypeC(MainPlanes &planes, const PhotometricRecord &record)
{
    const PlotCircle circle(record.HorAngles(1), record.HorAngles(record.NumHorzAngles));
    const auto planeOf = [&](double direction) {
        const auto listed = circle.listedAngle(direction);
        return listed ? plotCurves(record, *listed, kNoCone).plane : PlotCurve();
    };
    planes.picture.curves.plane = planeOf(0);
    if (!planes.second.empty())
        planes.picture.curves.cone = planeOf(90);
}

void addTypeB(MainPlanes &planes, const PhotometricRecord &record)
{
    PlotCurves &curves = planes.picture.curves;
    curves.typeC = false;
    curves.plane = plotCurves(record, 0, kNoCone).plane;
    curves.cone = plotCurves(turned(record), 0, kNoCone).plane;
}

std::string wordsOf(const MainPlanes &planes)
{
    const PlotCurves &curves = planes.picture.curves;
    std::string words = planes.first + ": " + curveWords(curves.plane);
    if (!planes.second.empty())
        words += "; " + planes.second + ": " + curveWords(curves.cone);
    return words + ".";
}

}  // namespace

MainPlanes mainPlanes(const PhotometricRecord &record)
{
    const bool isTypeC = record.PhotometricType == kTypeC;
    const bool isRound = isTypeC && record.NumHorzAngles == 1;
    MainPlanes planes{{}, isTypeC ? "Plane 0-180" : "Vertical plane", isTypeC ? "Plane 90-270" : "Horizontal plane"};
    if (isRound)
        planes = {{}, "All planes", ""};
    planes.picture.planeName = planes.first;
    planes.picture.coneName = planes.second;
    planes.picture.curves.hasTwoPlanes = true;
    try {
        MainPlanes found = planes;
        isTypeC ? addTypeC(found, record) : addTypeB(found, record);
        found.picture.rings = plotRings(found.picture.curves.largest());
        found.picture.words = wordsOf(found);
        return found;
    } catch (const RunTimeError &) {
        planes.picture.curves.typeC = isTypeC;
        planes.picture.words = wordsOf(planes);
        return planes;
    }
}

}  // namespace penwright
