#include "plot/PlotPicture.h"

#include "core/NumberText.h"

namespace penwright {

PlotPicture plotPicture(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells,
                        const PlotAngle &horizontal, const PlotAngle &vertical, PlotShape shape)
{
    PlotPicture picture;
    picture.curves = plotCurves(record, cells, horizontal, vertical, shape);
    picture.rings = plotRings(picture.curves.largest());
    picture.words = plotDescription(picture.curves);
    picture.planeName = "Vertical Plane Through Horizontal Angle " + generalText(horizontal.degrees);
    if (picture.curves.typeC)
        picture.coneName = "Horizontal Cone Through Vertical Angle " + generalText(vertical.degrees);
    return picture;
}

PlotPicture plotPicture(const PhotometricRecord &record, const PlotAngle &horizontal, const PlotAngle &vertical,
                        PlotShape shape)
{
    OneBasedTable<CandelaCell> cells(record.Candela.rows(), record.Candela.columns());
    for (int h = 1; h <= cells.rows(); ++h)
        for (int v = 1; v <= cells.columns(); ++v)
            cells(h, v) = record.Candela(h, v);
    return plotPicture(record, cells, horizontal, vertical, shape);
}

}  // namespace penwright
