#pragma once

namespace penwright {

/// A place on the sketch: from 0 at the left and top edge to kSketchWidth and kSketchHeight.
struct SketchPoint {
    double x = 0;
    double y = 0;
};

inline constexpr double kSketchWidth = 4;
inline constexpr double kSketchHeight = 3;

}  // namespace penwright
