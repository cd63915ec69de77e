#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "grid/TableReading.h"

namespace penwright {

/// What stands for a minus: the hyphen, the minus sign, and the dash that word processors make of it.
inline constexpr std::array<std::string_view, 3> kMinusSigns{"-", "\xE2\x88\x92", "\xE2\x80\x93"};

/// The value of a cell that is one number with these signs; nothing for any other cell and beyond a single. Thousands
/// come in groups of three.
std::optional<double> tableNumber(std::string_view cell, const TableReading &reading);

/// Whether a cell is a number with whatever signs.
bool isLikeNumber(std::string_view cell);

/// What to do with a text that is no number and would be one by other signs, as "2481,37" and "2,481"; "" for any
/// other.
std::string_view signAdvice(std::string_view text);

/// What a message says behind a text that is refused because it is no number, with the advice.
std::string whyNoNumber(std::string_view text);

}  // namespace penwright
