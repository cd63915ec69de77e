#pragma once

#include <string_view>
#include <vector>

#include "core/PhotometricRecord.h"
#include "review/Measure.h"

namespace penwright {

/// How wide the light is in one main plane, in degrees: between the directions on both sides of the plane's largest
/// value where it has fallen to a share of it, or where the list ends.
struct BeamWidth {
    std::string_view plane;  ///< as figures name it, "in plane 0-180"
    Measure beam;            ///< half of the largest value
    Measure field;           ///< a tenth of it
    int largestAt = 0;       ///< vertical index of the largest value; 0 in the horizontal plane of type B, or unknown
    double step = 0;         ///< the wider of the vertical steps on both sides of it, degrees
};

/// The two main planes: of type C those of 0 and 90 with what lies opposite of each, of any other type the vertical
/// plane through horizontal angle 0 and the horizontal one through vertical angle 0, a list from 0 mirrored. Between
/// neighbours values go in proportion to the angle. `angleFault` is the sentence why nothing lies between the angles,
/// "" when values do.
std::vector<BeamWidth> beamWidths(const PhotometricRecord &record, const std::string &angleFault);

}  // namespace penwright
