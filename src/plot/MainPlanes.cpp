#include "plot/MainPlanes.h"

#include "platform/RunTimeError.h"
#include "plot/PlotSymmetry.h"

namespace penwright {
namespace {

constexpr float kNoCone = 0;  // one is found beside each plane, and left out

using Cells = OneBasedTable<CandelaCell>;

Cells cellsOf(const PhotometricRecord &record)
{
    Cells cells(record.Candela.rows(), record.Candela.columns());
    for (int h = 1; h <= cells.rows(); ++h)
        for (int v = 1; v <= cells.columns(); ++v)
            cells(h, v) = record.Candela(h, v);
    return cells;
}

/// The lists of a record with those of its two axes exchanged; nothing else of it.
PhotometricRecord turned(const PhotometricRecord &record)
{
    PhotometricRecord lists;
    lists.PhotometricType = record.PhotometricType;
    lists.NumHorzAngles = record.NumVertAngles;
    lists.NumVertAngles = record.NumHorzAngles;
    lists.HorAngles = record.VertAngles;
    lists.VertAngles = record.HorAngles;
    return lists;
}

Cells turned(const Cells &cells)
{
    Cells other(cells.columns(), cells.rows());
    for (int h = 1; h <= cells.rows(); ++h)
        for (int v = 1; v <= cells.columns(); ++v)
            other(v, h) = cells(h, v);
    return other;
}

void addTypeC(MainPlanes &planes, const PhotometricRecord &record, const Cells &cells)
{
    const PlotCircle circle(record.HorAngles(1), record.HorAngles(record.NumHorzAngles));
    const auto planeOf = [&](double direction) {
        const auto listed = circle.listedAngle(direction);
        return listed ? plotCurves(record, cells, *listed, kNoCone).plane : PlotCurve();
    };
    planes.picture.curves.plane = planeOf(0);
    if (!planes.second.empty())
        planes.picture.curves.cone = planeOf(90);
}

void addTypeB(MainPlanes &planes, const PhotometricRecord &record, const Cells &cells)
{
    PlotCurves &curves = planes.picture.curves;
    curves.typeC = false;
    curves.plane = plotCurves(record, cells, 0, kNoCone).plane;
    curves.cone = plotCurves(turned(record), turned(cells), 0, kNoCone).plane;
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
        isTypeC ? addTypeC(found, record, cellsOf(record)) : addTypeB(found, record, cellsOf(record));
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
