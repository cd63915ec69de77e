#pragma once

#include <chrono>

namespace penwright {

/// How long a piece of work takes, in seconds of the clock.
template <typename Work>
double seconds(const Work &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace penwright
