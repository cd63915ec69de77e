#pragma once

#include <array>
#include <string_view>

namespace penwright {

/// The luminous shapes by their list position, which is the shape code used everywhere.
inline constexpr std::array<std::string_view, 15> kLuminousShapes{
    "Point",
    "Rectangle",
    "Rectangle w/ Luminous Sides",
    "Circle",
    "Ellipse",
    "Vertical Cylinder",
    "Vertical Ellipsoidal Cylinder",
    "Sphere",
    "Ellipsoidal Spheroid",
    "Horz Cylinder along Photometric Horz.",
    "Horz Ellipsoidal Cylinder along Photometric Horz.",
    "Horz Cylinder Perpendicular to Photometric Horz.",
    "Horz Ellipsoidal Cylinder Perpendicular to Photometric Horz.",
    "Vertical Circle Facing Photometric Horizontal",
    "Vertical Ellipse Facing Photometric Horizontal",
};

}  // namespace penwright
