#pragma once

#include <string>
#include <vector>

#include "plot/PlotCurves.h"
#include "plot/PlotRings.h"

namespace penwright {

/// What a picture shows, in any size and any colours. One that is made of nothing is the empty grid of type C.
struct PlotPicture {
    PlotCurves curves;
    std::vector<PlotRing> rings;  ///< from the inside out; none when no value is above zero
    std::string words;            ///< for those who cannot see it
    std::string planeName;        ///< what a picture that leaves the program says of its first curve
    std::string coneName;         ///< the same of the second one, "" where there is none
};

/// The picture of the vertical plane through `horizontal` and, for type C, the cone through `vertical`, both
/// in degrees; cells are indexed (horizontal, vertical). Only counts, type and angles of the record are read. Error 9
/// when the angle lists or the cells are smaller than the record's counts, 6 when a value is beyond the single range.
PlotPicture plotPicture(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells,
                        const PlotAngle &horizontal, const PlotAngle &vertical, PlotShape shape = PlotShape::Polar);

/// The same of the candela that the record itself holds.
PlotPicture plotPicture(const PhotometricRecord &record, const PlotAngle &horizontal, const PlotAngle &vertical,
                        PlotShape shape = PlotShape::Polar);

}  // namespace penwright
