#include <csignal>
#include <filesystem>
#include <QApplication>
#include <string>
#include <system_error>

#include "app/PlatformChoice.h"
#include "app/StartUp.h"
#include "controls/OutlinedStyle.h"

namespace {

/// All arguments joined by single blanks, taken before the toolkit strips options of its own.
std::string commandLineOf(int argc, char **argv)
{
    std::string text;
    for (int i = 1; i < argc; ++i)
        text.append(i > 1 ? " " : "").append(argv[i]);
    return text;
}

/// Makes errors of what would end the process: a host that no longer reads stderr, a file beyond the size limit.
void surviveBrokenPipesAndFullFiles()
{
    for (const int number : {SIGPIPE, SIGXFSZ})
        std::signal(number, SIG_IGN);
}

}  // namespace

int main(int argc, char **argv)
{
    surviveBrokenPipesAndFullFiles();
    const std::string commandLine = commandLineOf(argc, argv);
    std::error_code ignored;
    const std::string folder = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().string();
    const penwright::ChosenDisplay display;
    if (!display.isUsable())
        return 1;
    int nameAlone = 1;
    QApplication app(nameAlone, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    penwright::OutlinedStyle::install();
    return penwright::runTool(commandLine, folder);
}
