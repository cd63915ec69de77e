#pragma once

#include <vector>

namespace penwright {

/// Whether all numbers are between -360 and 360.
bool areInRange(const std::vector<double> &numbers);

/// Whether all numbers rise, or all fall, between -360 and 360.
bool isMonotone(const std::vector<double> &numbers);

/// Whether numbers without a word look like a list of angles: few steps, and a beginning or end as lists have it. Those
/// that fall, as values do, have one step alone.
bool looksLikeAngles(const std::vector<double> &numbers);

/// Whether several values are one above 0, as those in one direction are, to two in a thousand.
bool areEqual(const std::vector<double> &values);

}  // namespace penwright
