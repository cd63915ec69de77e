#pragma once

#include <vector>

#include "core/PhotometricRecord.h"
#include "review/Figures.h"
#include "review/Remark.h"

namespace penwright {

/// What a record is looked at by, all that takes longer the more values it has.
struct FileReview {
    std::vector<Figure> figures;
    std::vector<Remark> remarks;
    int largestHorizontal = 1;  ///< the places, counted from 1, of the angles at which the largest value stands
    int largestVertical = 1;
};

/// Looks through a record; error 9 when its counts and arrays disagree.
FileReview fileReview(const PhotometricRecord &record);

}  // namespace penwright
