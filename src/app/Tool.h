#pragma once

#include <memory>

#include "core/Services.h"
#include "core/ToolState.h"
#include "help/window/QtHelpViewer.h"
#include "pages/candela/CandelaState.h"
#include "platform/posix/PosixTextFiles.h"
#include "platform/qt/Closing.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventWait.h"
#include "platform/qt/TerminationSignals.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "platform/x11/X11Embedding.h"
#include "wizard/WizardWindow.h"

namespace penwright {

/// Everything that one run of the tool is made of, wired together. The parts are destroyed in the reverse order: the
/// window before what it stands on.
class Tool {
public:
    /// Opens the settings store; its errors are raised.
    Tool();

    ToolState &state() { return m_state; }
    const Services &services() { return m_services; }
    X11Embedding &embedding() { return m_embedding; }
    Closing &closing() { return m_closing; }

    /// Makes the window with its six pages, hidden, and runs its load handler.
    WizardWindow &loadWindow();

private:
    void letEventsRunWhileLocked();

    ToolState m_state;
    CandelaState m_candelaState;
    Closing m_closing;
    TerminationSignals m_signals;
    SqliteSettingsStore m_store;
    PosixTextFiles m_files;
    QtDialogs m_dialogs;
    QtEventWait m_wait;
    X11Embedding m_embedding;
    QtHelpViewer m_help;
    Services m_services;
    std::unique_ptr<WizardWindow> m_window;
};

}  // namespace penwright
