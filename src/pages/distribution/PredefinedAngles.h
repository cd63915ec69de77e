#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace penwright {

/// One of the two lists of angles of a photometric distribution.
enum class AngleAxis { Vertical, Horizontal };

/// What stands in the drop-down list of an axis until a number is typed or an entry is picked.
inline constexpr std::string_view kAnglePrompt = "Type in a number or select a pre-defined distribution";

/// The entries of the drop-down list of an axis for a photometric type, in their order. The angles are read back out
/// of an entry's text when it is picked, so that every character counts.
std::span<const std::string_view> predefinedAngles(std::int16_t photometricType, AngleAxis axis);

}  // namespace penwright
