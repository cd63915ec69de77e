#include "pages/luminaire/LuminousShapes.h"

#include <cmath>

namespace penwright {
namespace {

constexpr std::optional<std::string_view> kKept;
constexpr std::string_view kEmpty = "";
constexpr bool kOn = true;
constexpr bool kOff = false;

constexpr Stored kZero = Stored::Zero;
constexpr Stored kTyped = Stored::Typed;
constexpr Stored kPlus = Stored::Magnitude;
constexpr Stored kMinus = Stored::NegatedMagnitude;
constexpr Stored kAsWidth = Stored::SameAsWidth;
constexpr Stored kAsLength = Stored::SameAsLength;

float stored(Stored rule, float typed, float width, float length)
{
    switch (rule) {
        case Stored::Zero:
            return 0;
        case Stored::Typed:
            return typed;
        case Stored::Magnitude:
            return std::fabs(typed);
        case Stored::NegatedMagnitude:
            return -std::fabs(typed);
        case Stored::SameAsWidth:
            return width;
        case Stored::SameAsLength:
            return length;
    }
    return typed;
}

}  // namespace

// The box of the vertical circle's height is both emptied and disabled, so that its page never passes its checks: that
// is meant.
// clang-format off
constexpr std::array<LuminousShape, kShapeCount> kLuminousShapes = std::to_array<LuminousShape>({
    {"Point",
     {"Width: (90-270)", kOff, "0"}, {"Length: (0-180)", kOff, "0"}, {"Height:", kOff, "0"},
     kZero, kZero, kZero},
    {"Rectangle",
     {"Width: (90-270)", kOn, kKept}, {"Length: (0-180)", kOn, kKept}, {"Height:", kOff, " 0"},
     kTyped, kTyped, kZero},
    {"Rectangle w/ Luminous Sides",
     {"Width: (90-270)", kOn, kKept}, {"Length: (0-180)", kOn, kKept}, {"Height:", kOn, kKept},
     kPlus, kPlus, kPlus},
    {"Circle",
     {"Diameter > 0", kOn, kEmpty}, {"Length: (0-180)", kOff, "0"}, {"Height:", kOff, "0"},
     kMinus, kAsWidth, kZero},
    {"Ellipse",
     {"Width > 0", kOn, kEmpty}, {"Length: (0-180)", kOn, kKept}, {"Height:", kOff, "0"},
     kMinus, kMinus, kZero},
    {"Vertical Cylinder",
     {"Diameter > 0", kOn, kEmpty}, {"Length: (0-180)", kOff, "0"}, {"Height:", kOn, kEmpty},
     kMinus, kAsWidth, kTyped},
    {"Vertical Ellipsoidal Cylinder",
     {"Width (90-270)", kOn, kEmpty}, {"Length: (0-180)", kOn, kEmpty}, {"Height:", kOn, kEmpty},
     kMinus, kMinus, kTyped},
    {"Sphere",
     {"Diameter > 0", kOn, kEmpty}, {"Length: (0-180)", kOff, "0"}, {"Vertical Diameter > 0", kOff, "0"},
     kTyped, kTyped, kTyped},
    {"Ellipsoidal Spheroid",
     {"Width (90-270)", kOn, kEmpty}, {"Length: (0-180)", kOn, kEmpty}, {"Height", kOn, kEmpty},
     kMinus, kAsWidth, kAsWidth},
    {"Horz Cylinder along Photometric Horz.",
     {"Width:", kOff, "0"}, {"Length: (0-180)", kOn, kEmpty}, {"Diameter > 0", kOn, kEmpty},
     kMinus, kMinus, kMinus},
    {"Horz Ellipsoidal Cylinder along Photometric Horz.",
     {"Width:", kOn, kEmpty}, {"Length: (0-180)", kOn, kEmpty}, {"Height", kOn, kEmpty},
     kMinus, kTyped, kAsWidth},
    {"Horz Cylinder Perpendicular to Photometric Horz.",
     {"Width:", kOn, kEmpty}, {"Length: (0-180)", kOff, "0"}, {"Diameter > 0", kOn, kEmpty},
     kMinus, kPlus, kMinus},
    {"Horz Ellipsoidal Cylinder Perpendicular to Photometric Horz.",
     {"Width: (90-270)", kOn, kEmpty}, {"Length: (0-180)", kOn, kEmpty}, {"Height", kOn, kEmpty},
     kPlus, kMinus, kAsLength},
    {"Vertical Circle Facing Photometric Horizontal",
     {"Diameter", kOn, kEmpty}, {"Length: (0-180)", kOff, "0"}, {"Height", kOff, kEmpty},
     kMinus, kZero, kAsWidth},
    {"Vertical Ellipse Facing Photometric Horizontal",
     {"Width: (90-270)", kOn, kEmpty}, {"Length: (0-180)", kOff, "0"}, {"Height", kOn, kEmpty},
     kMinus, kZero, kMinus},
});
// clang-format on

const LuminousShape *luminousShapeAt(int position)
{
    if (position < 0 || position >= static_cast<int>(kLuminousShapes.size()))
        return nullptr;
    return &kLuminousShapes[static_cast<std::size_t>(position)];
}

Dimensions storedDimensions(int position, const Dimensions &typed)
{
    const LuminousShape *shape = luminousShapeAt(position);
    if (!shape)
        return typed;
    const float width = stored(shape->storedWidth, typed.width, 0, 0);
    const float length = stored(shape->storedLength, typed.length, width, 0);
    return {width, length, stored(shape->storedHeight, typed.height, width, length)};
}

}  // namespace penwright
