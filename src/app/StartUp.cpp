#include "app/StartUp.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <QApplication>

#include "app/Tool.h"
#include "app/WizardAssembly.h"
#include "core/CommandLine.h"
#include "core/NumberText.h"
#include "hostlink/HostPost.h"
#include "platform/qt/TerminationSignals.h"

namespace penwright {
namespace {

constexpr const char *kFullText =
    "There is already the maximum number of photometric files open. Please close some before creating a new one.";
constexpr const char *kRefusalText =
    "This 'tool' can not be used directly. Must be called from Lumentor32 or Quellux32.";

/// Shows a message whose reader may as well sit at a terminal.
void showAndPrint(Dialogs &dialogs, const MessageBox &box)
{
    std::fprintf(stderr, "%s\n", box.text.c_str());
    dialogs.show(box);
}

void readSettings(StartupState &start, SettingsStore &store)
{
    start.SleepInterval =
        toSingle(leadingNumber(store.read(start.SettingsApp, start.SettingsApp, "SleepIntervalDE", "0.3")));
}

int run(Tool &tool, const std::string &commandLine, const std::string &executableFolder)
{
    ToolState &state = tool.state();
    StartupState &start = state.start;
    state.PhotFiles.clear();
    state.CandelaWorkRecord.clear();
    readSettings(start, tool.services().store);
    start.HelpFilePath = executableFolder + "/Lumentor_PE-HTML.chm";
    parseCommandLine(commandLine, start);
    if (start.OpenFileCount >= kMaxFiles) {
        showAndPrint(tool.services().dialogs, {kFullText});
        if (!tool.closing().isClosing())
            HostPost(start, tool.services().store, tool.services().wait).postCommand("ReturnClose,");
        return 1;
    }
    state.PhotFiles.reset(1);
    if (start.HostWindow == 0) {
        showAndPrint(tool.services().dialogs,
                     {kRefusalText + commandLine, kExclamation + kSystemModal, start.ToolName});
        return 1;
    }
    openWizard(tool.loadWindow(), start, tool.services().embedding);
    return QApplication::exec();
}

}  // namespace

int runTool(const std::string &commandLine, const std::string &executableFolder)
{
    Closing closing;
    const TerminationSignals terminationSignals(closing);  // a signal dismisses a box, and the status is the same
    ChosenEmbedding embedding([&closing] { closing.hostVanished(); });
    embedding.watchHost(static_cast<std::uint32_t>(hostWindowOf(commandLine)));  // a box must not outlive the host
    try {
        Tool tool(closing, embedding);
        return run(tool, commandLine, executableFolder);
    } catch (const RunTimeError &error) {
        const OwnerWindow none;
        QtDialogs dialogs(closing, none);
        showAndPrint(dialogs,
                     {"died in sub Main. reason: #" + std::to_string(error.number()) + " Msg:" + error.description()});
        return 1;
    }
}

}  // namespace penwright
