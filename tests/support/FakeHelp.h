#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/HelpViewer.h"

namespace penwright::test {

/// A help window that only notes what it was asked to show: paths with context ids.
struct FakeHelp : HelpViewer {
    void showTopic(const std::string &path, int contextId) override { topics.emplace_back(path, contextId); }
    std::vector<std::pair<std::string, int>> topics;
};

}  // namespace penwright::test
