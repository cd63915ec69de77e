#pragma once

#include <chrono>
#include <memory>

#include "app/Services.h"
#include "core/ToolState.h"
#include "hostlink/Patience.h"
#include "platform/DraftStore.h"
#include "wizard/WizardWindow.h"

namespace penwright {

class Closing;
class HostEmbedding;
struct OwnerWindow;

/// Makes the wizard of a run, hidden: the window with its pages, wired to each other and to the services, and loaded.
/// What it is given outlives it. What is typed is kept in `drafts`, unless there is no such store or the user wants
/// none. Raises the errors of the store.
std::unique_ptr<WizardWindow> assembleWizard(ToolState &state, const Services &services, Closing &closing,
                                             OwnerWindow &owner, std::unique_ptr<DraftStore> drafts = nullptr);

/// Opens a wizard that has been made: a child of the host's window, which is watched from here on. It stays hidden
/// until the host says "START". Where the number names no window, nobody's end would end the wizard: it ends by itself
/// once nobody has wanted anything of it for ten minutes of `clock`.
void openWizard(WizardWindow &window, StartupState &start, HostEmbedding &embedding,
                Patience::Clock clock = std::chrono::steady_clock::now);

}  // namespace penwright
