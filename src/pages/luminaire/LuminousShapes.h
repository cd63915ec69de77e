#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace penwright {

/// How the page presents one of the three dimensions: the caption of its label, whether label and box are enabled, and
/// the text that is put into the box; nothing keeps the text that is there.
struct DimensionLook {
    std::string_view caption;
    bool isEnabled = true;
    std::optional<std::string_view> text;
};

/// What the record holds of a typed dimension. The signs tell readers of the file the shape. A typed zero is negated
/// too, to negative zero.
enum class Stored {
    Zero,
    Typed,
    Magnitude,
    NegatedMagnitude,
    SameAsWidth,   ///< what has just been stored as the width
    SameAsLength,  ///< what has just been stored as the length
};

struct LuminousShape {
    std::string_view name;
    DimensionLook width;
    DimensionLook length;
    DimensionLook height;
    Stored storedWidth = Stored::Typed;
    Stored storedLength = Stored::Typed;
    Stored storedHeight = Stored::Typed;
};

inline constexpr std::size_t kShapeCount = 15;

/// The luminous shapes by their list position, which is the shape code used everywhere. The captions differ from row to
/// row in colon, blank and wording on purpose. So do names and stored signs from the sphere on: rows 8 to 12 carry the
/// signs of the shape one row above them.
extern const std::array<LuminousShape, kShapeCount> kLuminousShapes;

/// How the page looks while no shape is chosen.
inline constexpr LuminousShape kNoShape{"", {"Width:", true, {}}, {"Length:", true, {}}, {"Height:", true, {}}};

/// The shape at a list position, null outside the list.
const LuminousShape *luminousShapeAt(int position);

/// The luminous opening, in feet or meters.
struct Dimensions {
    float width = 0;
    float length = 0;
    float height = 0;
};

/// What the record holds of typed dimensions; outside the list no shape is chosen, and they stay as typed.
Dimensions storedDimensions(int position, const Dimensions &typed);

}  // namespace penwright
