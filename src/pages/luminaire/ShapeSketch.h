#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pages/luminaire/SketchPoint.h"

namespace penwright {

enum class StrokeKind {
    Outline,  ///< an edge of the shape, or what of its curved sides is in sight
    Hidden,   ///< an edge of the shape that lies behind it
    Frame,    ///< the frame of reference: what is there for every shape, and the centre lines of the flat ones
};

/// A line drawn through the points, in their order.
struct SketchStroke {
    StrokeKind kind = StrokeKind::Outline;
    std::vector<SketchPoint> points;
};

/// A text at the end of a line: beside the place, on the side that a way of length 1 leads to.
struct SketchLabel {
    std::string_view text;
    SketchPoint end;
    SketchPoint away;
};

struct ShapeSketch {
    std::vector<SketchStroke> strokes;
    std::vector<SketchLabel> labels;
};

/// The luminous shape at a list position, seen from above in a light perspective: its length lies along the plane of 0
/// and 180 degrees, its width along that of 90 and 270. A small frame of reference names length, width and height, and
/// two arrows point to 0 and 90 degrees. Outside the list these stand alone.
ShapeSketch sketchOfShape(int position);

/// The sketch in words, for those who cannot see it: the shape, and which way its dimensions and angles lie.
std::string sketchDescription(int position);

}  // namespace penwright
