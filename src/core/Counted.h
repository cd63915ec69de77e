#pragma once

#include <concepts>
#include <string>

namespace penwright {

/// A number of things, as a message says it: "1 row", "3 rows".
template <std::integral Number>
std::string counted(Number number, const std::string &thing)
{
    return std::to_string(number) + " " + thing + (number == 1 ? "" : "s");
}

}  // namespace penwright
