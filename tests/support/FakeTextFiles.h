#pragma once

#include <cerrno>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/TextFiles.h"

namespace penwright::test {

/// Files that are only noted, in their order, each as path and text; failures are taken from a queue of errno values.
struct FakeTextFiles : TextFiles {
    int replace(const std::string &path, std::string_view text) override
    {
        written.emplace_back(path, text);
        if (failures.empty())
            return 0;
        const int failure = failures.front();
        failures.pop_front();
        return failure;
    }

    FileContent read(const std::string &, std::size_t, const std::function<bool(double)> &) override
    {
        return {ENOENT, {}};
    }

    std::vector<std::pair<std::string, std::string>> written;
    std::deque<int> failures;
};

}  // namespace penwright::test
