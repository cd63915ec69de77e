#include "plot/PlotPicture.h"

#include <utility>

#include "core/NumberText.h"

namespace penwright {

namespace {

PlotPicture pictureOf(PlotCurves curves, const PlotAngle &horizontal, const PlotAngle &vertical)
{
    PlotPicture picture;
    picture.curves = std::move(curves);
    picture.rings = plotRings(picture.curves.largest());
    picture.words = plotDescription(picture.curves);
    picture.planeName = "Vertical Plane Through Horizontal Angle " + generalText(horizontal.degrees);
    if (picture.curves.typeC)
        picture.coneName = "Horizontal Cone Through Vertical Angle " + generalText(vertical.degrees);
    return picture;
}

}  // namespace

PlotPicture plotPicture(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells,
                        const PlotAngle &horizontal, const PlotAngle &vertical, PlotShape shape)
{
    return pictureOf(plotCurves(record, cells, horizontal, vertical, shape), horizontal, vertical);
}

PlotPicture plotPicture(const PhotometricRecord &record, const PlotAngle &horizontal, const PlotAngle &vertical,
                        PlotShape shape)
{
    return pictureOf(plotCurves(record, horizontal, vertical, shape), horizontal, vertical);
}

}  // namespace penwright
