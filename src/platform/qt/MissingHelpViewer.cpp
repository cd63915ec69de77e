#include "platform/qt/MissingHelpViewer.h"

#include "platform/Dialogs.h"

namespace penwright {

void MissingHelpViewer::showTopic(const std::string &helpFilePath, int /*contextId*/)
{
    m_dialogs.show({.text = "The help file is missing: " + helpFilePath, .flags = kOkOnly + kExclamation});
}

}  // namespace penwright
