#pragma once

#include <string>

namespace penwright {

/// Shows topics of a compiled help file in a window that no other window owns.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;

    /// Opens the file at the topic of a context id. What prevents it is told in one message that names the file.
    virtual void showTopic(const std::string &helpFilePath, int contextId) = 0;

    /// The same at a page and a place in it, "page.html#anchor".
    virtual void showLink(const std::string &helpFilePath, const std::string &link) = 0;
};

}  // namespace penwright
