#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/CandelaCell.h"
#include "core/OneBased.h"
#include "core/PhotometricRecord.h"
#include "plot/PlotAngle.h"
#include "plot/PlotRuns.h"

namespace penwright {

/// The largest value of a curve and the listed angle (degrees) at which it stands, the first one of equals.
struct PlotPeak {
    double candela = 0;
    float degrees = 0;
    bool opposite = false;  ///< in the left half of a type C plane
};

/// One curve of the picture. A gap in the values ends a run.
struct PlotCurve {
    std::vector<PlotStretch> stretches;
    std::vector<PlotRun> runs;        ///< of the stretches, in their order
    std::optional<PlotPeak> largest;  ///< not there when the curve has no value
};

/// All that one picture shows.
struct PlotCurves {
    PlotShape shape = PlotShape::Polar;
    bool typeC = true;          ///< nadir down and a cone; otherwise vertical angle 0 to the right and no cone
    float horizontalAngle = 0;  ///< degrees, of the vertical plane
    float verticalAngle = 0;    ///< degrees, of the cone
    PlotCurve plane;            ///< type C: the right half's runs, then those of its opposite
    PlotCurve cone;
    bool hasTwoPlanes = false;  ///< the cone is the plane across: of type C 90 degrees on, else the horizontal one

    /// Candela at the outer ring: the larger of the two maxima, 0 when no value is above zero.
    double largest() const;
};

/// Finds the curves of the vertical plane through `horizontal` and, for type C, of the cone through
/// `vertical`, both in degrees; cells are indexed (horizontal, vertical). Reads the cells of that plane, its
/// opposite and that cone only. Every photometric type other than C is drawn in the way of type B.
///
/// Between neighbours the value goes in proportion to the angle, across the table and along the curve. A blank, a
/// negative value and one that is not finite are gaps, never zeros. A record without angles has empty curves.
/// Error 9 when the angle lists or the cells are smaller than the record's counts.
PlotCurves plotCurves(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells,
                      const PlotAngle &horizontal, const PlotAngle &vertical, PlotShape shape = PlotShape::Polar);

/// The same of the candela that the record itself holds, which are not copied.
PlotCurves plotCurves(const PhotometricRecord &record, const PlotAngle &horizontal, const PlotAngle &vertical,
                      PlotShape shape = PlotShape::Polar);

/// Has the same curves run in another shape.
void reshape(PlotCurves &curves, PlotShape shape);

/// A curve in words: its largest value and where that stands. Error 6 when the value is beyond the single range.
std::string curveWords(const PlotCurve &curve);

/// The picture in words, for those who cannot see it: each curve's angle, its largest value and where that stands.
/// Error 6 when a value is beyond the single range.
std::string plotDescription(const PlotCurves &curves);

}  // namespace penwright
