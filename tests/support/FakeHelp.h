#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/HelpViewer.h"

namespace penwright::test {

/// A help window that only notes what it was asked to show: paths with context ids or links.
struct FakeHelp : HelpViewer {
    void showTopic(const std::string &path, int contextId) override { topics.emplace_back(path, contextId); }
    void showLink(const std::string &path, const std::string &link) override { links.emplace_back(path, link); }
    std::vector<std::pair<std::string, int>> topics;
    std::vector<std::pair<std::string, std::string>> links;
};

}  // namespace penwright::test
