#include "app/WizardAssembly.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <utility>

#include "app/TablePaste.h"
#include "pages/candela/CandelaPage.h"
#include "pages/distribution/DistributionPage.h"
#include "pages/finish/FinishPage.h"
#include "pages/keywords/KeywordPage.h"
#include "pages/luminaire/LampPage.h"
#include "pages/luminaire/TiltPage.h"
#include "platform/EventWait.h"
#include "platform/HostEmbedding.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/SettingsStore.h"
#include "wizard/UnwantedEnd.h"
#include "wizard/WizardDrafts.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

void addPages(WizardWindow &window, const Services &services, const Closing &closing)
{
    const PageContext context = window.pageContext();
    auto *candelaPage = new CandelaPage(context);
    window.addPage(new LampPage(context, services.store));
    window.addPage(new TiltPage(context));
    window.addPage(new KeywordPage(context, services.store));
    auto *distributionPage = new DistributionPage(context, [candelaPage] { candelaPage->lsbStart(); });
    window.addPage(distributionPage);
    window.addPage(candelaPage);
    new TablePaste(window, *distributionPage, *candelaPage, services.files, closing);
    window.addPage(
        new FinishPage(context, services.store, services.files, services.wait, [&window] { emit window.fileTaken(); }));
}

// Once there is a window, a store that another process keeps locked must not stop it from painting, nor hold up the end
// of the program.
void letEventsRunWhileLocked(const Services &services)
{
    services.store.setBusyWait(
        [&wait = services.wait] { return wait.until([] { return false; }, 20ms) != WaitEnd::Cancelled; });
}

// The user's own word against drafts stands in the store, beside the units of the first page.
bool areDraftsWanted(SettingsStore &store)
{
    return store.read("Lumentor32", "Lumentor32", "DraftsOff", "0") != "1";
}

void printMissingHost(std::uint32_t host)
{
    const std::string line =
        "PenwrightPE: window " + std::to_string(host) + " is not there; the wizard opens as a window of its own.";
    std::fprintf(stderr, "%s\n", line.c_str());
}

}  // namespace

std::unique_ptr<WizardWindow> assembleWizard(ToolState &state, const Services &services, Closing &closing,
                                             OwnerWindow &owner, std::unique_ptr<DraftStore> drafts)
{
    const WindowServices forWindow{services.store, services.dialogs, services.wait, services.embedding, services.help};
    auto window = std::make_unique<WizardWindow>(state, forWindow, closing);
    addPages(*window, services, closing);
    owner.widget = window.get();
    services.embedding.adopt(window->winId());
    window->load();
    if (drafts && areDraftsWanted(services.store))
        new WizardDrafts(*window, closing, std::move(drafts));
    letEventsRunWhileLocked(services);
    return window;
}

void openWizard(WizardWindow &window, StartupState &start, HostEmbedding &embedding, Patience::Clock clock)
{
    const auto host = static_cast<std::uint32_t>(start.HostWindow);
    window.startDeathTimer();
    // The window is a source of the host link under the topic InstanceTag; here all commands travel through the store.
    window.setWindowTitle(QString::fromStdString(start.ToolName));
    if (!embedding.watchHost(host)) {
        printMissingHost(host);
        new UnwantedEnd(window, std::move(clock));
    }
    // Unconditionally, and overwriting what the first call returned: an embedded window's former parent is its host.
    start.PreviousParent = embedding.SetParent(host);
    start.DesignWidth = window.width() * kTwipsPerLogicalPixel;
    start.DesignHeight = window.height() * kTwipsPerLogicalPixel;
}

}  // namespace penwright
