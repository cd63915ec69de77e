#pragma once

#include <array>

#include "pages/luminaire/ShapeSketch.h"

namespace penwright {

/// A place in the room of the sketch, or a way through it: towards 0 degrees, towards 90 degrees, and up.
using Space = std::array<double, 3>;

inline constexpr int kTo0 = 0;
inline constexpr int kTo90 = 1;
inline constexpr int kUp = 2;

double dot(const Space &a, const Space &b);

/// a + factor * b
Space sum(const Space &a, double factor, const Space &b);

/// The way along one axis.
Space along(int axis, double length);

/// The directions of the picture in the room: to its right and to its top.
extern const Space kPictureRight;
extern const Space kPictureTop;

/// The place that the room is seen from.
extern const Space kEye;

/// Where a place in the room is seen on the picture.
SketchPoint project(const Space &place);

/// An ellipse in the room, by its centre and two half axes at right angles.
struct Ring {
    Space centre{};
    Space u{};
    Space v{};

    Space at(double angle) const;
};

/// The angles, in radians, of a ring around a solid at which the solid's side faces the eye: up to `half` before and
/// behind `middle`.
struct Sight {
    double middle = 0;
    double half = 0;
};

Sight sightOf(const Ring &ring);

/// The edge that an ellipsoid about the middle of the room shows to the eye.
Ring rimOfEllipsoid(const Space &half);

}  // namespace penwright
