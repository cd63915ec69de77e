#pragma once

#include <string>

#include "core/PhotometricRecord.h"
#include "plot/PlotPicture.h"

namespace penwright {

/// Both main planes of a record in one picture, and their names. A record that is the same in all planes has no second
/// one.
struct MainPlanes {
    PlotPicture picture;  ///< the first plane as its `plane`, the second one as its `cone`
    std::string first;
    std::string second;  ///< "" where there is none
};

/// Of type C the planes of 0 and 90 with what lies opposite of each, of any other type the vertical plane through
/// horizontal angle 0 and the horizontal one through vertical angle 0, neither mirrored. The candela are those of the
/// table. Without values, where the lists disagree with the counts, and where a value is beyond the single range, the
/// grid is empty.
MainPlanes mainPlanes(const PhotometricRecord &record);

}  // namespace penwright
