#pragma once

namespace penwright {

/// An angle in degrees, and where a list that has it more than once is to be read: the place, counted from 1, is passed
/// over where it holds another angle or is none.
struct PlotAngle {
    PlotAngle(float inDegrees, int at = 0) : degrees(inDegrees), place(at) {}

    float degrees;
    int place;
};

}  // namespace penwright
