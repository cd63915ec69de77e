#pragma once

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace penwright::test {

/// What random acts begin with: the seeds of every run, and the one of $PENWRIGHT_SEED.
inline std::vector<unsigned> seeds()
{
    std::vector<unsigned> all{1, 2, 3};
    if (const char *wanted = std::getenv("PENWRIGHT_SEED")) {
        const auto seed = static_cast<unsigned>(std::strtoul(wanted, nullptr, 10));
        if (std::find(all.begin(), all.end(), seed) == all.end())
            all.push_back(seed);
    }
    return all;
}

}  // namespace penwright::test
