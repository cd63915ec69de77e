#pragma once

#include <algorithm>
#include <ctime>
#include <limits>
#include <string>
#include <string_view>

namespace penwright::test {

/// What a routine that looks at each part of a text once may take for one that is kLarger times as long, in times of
/// the short one: three times its share. One that looks at all of them for each takes kLarger times its share.
inline constexpr int kLarger = 16;
inline constexpr double kMostGrowth = 3.0 * kLarger;

/// The least time of the processor, in seconds, that a routine takes for a text of many repetitions.
template <typename Routine>
double secondsFor(std::string_view part, int times, const Routine &routine)
{
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    double least = std::numeric_limits<double>::max();
    for (int run = 0; run < 3; ++run) {
        const std::clock_t begin = std::clock();
        routine(text);
        least = std::min(least, static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    return least;
}

/// How many times longer a routine takes for a text that is kLarger times as long.
template <typename Routine>
double growth(std::string_view part, int times, const Routine &routine)
{
    return secondsFor(part, kLarger * times, routine) / secondsFor(part, times, routine);
}

}  // namespace penwright::test
