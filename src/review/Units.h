#pragma once

namespace penwright {

inline constexpr double kMetersPerFoot = 0.3048;

}  // namespace penwright
