#pragma once

#include "platform/HelpViewer.h"

namespace penwright {

class Dialogs;

/// Tells in one message which help file is missing.
class MissingHelpViewer : public HelpViewer {
public:
    explicit MissingHelpViewer(Dialogs &dialogs) : m_dialogs(dialogs) {}

    void showTopic(const std::string &helpFilePath, int contextId) override;

private:
    Dialogs &m_dialogs;
};

}  // namespace penwright
