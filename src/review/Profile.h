#pragma once

#include <cstddef>
#include <vector>

#include "review/Measure.h"

namespace penwright {

/// A value of a plane: where it points to, degrees along the plane, and the index that it has in its list.
struct ProfilePoint {
    double degrees = 0;
    double candela = 0;
    int index = 0;
};

/// Neighbours along a plane, in rising directions.
struct Profile {
    std::vector<ProfilePoint> points;
    bool isClosed = false;  ///< once around: the last point is the first one again
};

/// Both halves of a type C plane as one run of directions: through 0 where both have it, else through 180; where they
/// do not meet, the half with the larger value. Of each the points in the order of the vertical list, those of the left
/// one at minus their angles; neither is empty.
Profile joined(std::vector<ProfilePoint> right, std::vector<ProfilePoint> left);

/// The run of directions that a list stands for: before one from 0 its mirror image. The list is not empty.
Profile mirrored(const std::vector<ProfilePoint> &points);

/// Where in the run the largest value stands, the first of equals.
std::size_t largestPlace(const Profile &profile);

/// How far apart, in degrees, the directions on both sides of the largest value lie where it has fallen to a share of
/// it, or where the run ends. Between neighbours values go in proportion to the angle.
Measure widthAt(const Profile &profile, double share);

}  // namespace penwright
