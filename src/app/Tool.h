#pragma once

#include <memory>

#include "app/PlatformChoice.h"
#include "app/Services.h"
#include "core/ToolState.h"
#include "help/window/QtHelpViewer.h"
#include "platform/posix/PosixTextFiles.h"
#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventWait.h"
#include "wizard/WizardWindow.h"

namespace penwright {

/// Everything that one run of the tool is made of. The parts are destroyed in the reverse order: the
/// window before what it stands on.
class Tool {
public:
    /// Opens the settings store; its errors are raised. What it is given outlives it.
    Tool(Closing &closing, ChosenEmbedding &embedding);

    ToolState &state() { return m_state; }
    const Services &services() { return m_services; }
    Closing &closing() { return m_closing; }

    /// Makes the wizard, hidden and loaded; the errors of the store are raised.
    WizardWindow &loadWindow();

private:
    ToolState m_state;
    Closing &m_closing;
    OwnerWindow m_owner;
    ChosenStore m_store;
    PosixTextFiles m_files;
    QtDialogs m_dialogs;
    QtEventWait m_wait;
    QtHelpViewer m_help;
    Services m_services;
    std::unique_ptr<WizardWindow> m_window;
};

}  // namespace penwright
