#pragma once

#include <array>

#include "pages/luminaire/SketchPoint.h"

namespace penwright {

/// A place in the room of the sketch, or a direction and length in it: towards 0 degrees, towards 90 degrees, and up.
using Vector3 = std::array<double, 3>;

inline constexpr int kTo0 = 0;
inline constexpr int kTo90 = 1;
inline constexpr int kUp = 2;

double dot(const Vector3 &a, const Vector3 &b);

/// a + factor * b
Vector3 sum(const Vector3 &a, double factor, const Vector3 &b);

/// The way along one axis.
Vector3 along(int axis, double length);

/// The directions of the picture in the room: to its right and to its top.
extern const Vector3 kPictureRight;
extern const Vector3 kPictureTop;

/// The place that the room is seen from.
extern const Vector3 kEye;

/// Where a place in the room is seen on the picture.
SketchPoint project(const Vector3 &place);

/// An ellipse in the room, by its centre and two half axes at right angles.
struct Ring {
    Vector3 centre{};
    Vector3 u{};
    Vector3 v{};

    Vector3 at(double angle) const;
};

/// The angles, in radians, of a ring around a solid at which the solid's side faces the eye: up to `half` before and
/// behind `middle`.
struct VisibleArc {
    double middle = 0;
    double half = 0;
};

VisibleArc visibleArcOf(const Ring &ring);

/// The edge that an ellipsoid about the middle of the room shows to the eye.
Ring rimOfEllipsoid(const Vector3 &half);

}  // namespace penwright
