#pragma once

#include "plot/PlotAxes.h"
#include "plot/PlotFrame.h"
#include "plot/PlotLettering.h"
#include "plot/PlotPicture.h"

namespace penwright {

/// Where a linear picture stands in its box: candela upwards, the plane's vertical angles along the lower edge and,
/// where there is a cone, its horizontal angles along the upper one.
struct PlotField {
    PlotBox box;  ///< of the grid
    PlotAxis plane;
    PlotAxis cone;
    double perCandela = 0;  ///< pixels, 0 when no value is above zero
    bool lettered = false;  ///< whether letters and figures stand around the grid

    /// How far right an angle of an axis stands, in pixels.
    double across(const PlotAxis &axis, double degrees) const;

    PlotScale scale(const PlotAxis &axis) const;
};

/// The largest grid in an area whose upper edge is at the largest value, with room for letters around it where the area
/// is large enough. Its edges are the middles of pixels, so that they are sharp.
PlotField plotField(const PlotBox &area, const PlotTextRoom &room, const PlotPicture &picture);

/// The letters and, where the field has room for them, the figures: degrees below and above, candela on the left. The
/// plane's are counted from 0 on both sides for type C. A figure without room beside the one before it is left out.
PlotLettering fieldLettering(const PlotField &field, const PlotTextRoom &room, const PlotPicture &picture);

/// Where the two curves of a picture of either shape stand in an area.
struct PlotScales {
    PlotScale plane;
    PlotScale cone;
};
PlotScales plotScales(const PlotBox &area, const PlotTextRoom &room, const PlotPicture &picture);

}  // namespace penwright
