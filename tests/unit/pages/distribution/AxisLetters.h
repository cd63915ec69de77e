// Short names for the two axes, for tables of cases.
#pragma once

#include "pages/distribution/PredefinedAngles.h"

namespace penwright::test {

inline constexpr AngleAxis V = AngleAxis::Vertical;
inline constexpr AngleAxis H = AngleAxis::Horizontal;

}  // namespace penwright::test
