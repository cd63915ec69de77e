// Plays the scripts of the file that PENWRIGHT_SCRIPT names, or runs the tests. No display is needed.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <QApplication>

#include "disorder/Player.h"

namespace {

/// Says before each script which one it is: after a crash nobody is left to say so.
int playAll(const std::string &path)
{
    int number = 0;
    for (const auto &script : penwright::test::scriptsIn(penwright::test::contentOf(path))) {
        std::printf("script %d\n", ++number);
        std::fflush(stdout);
        const auto tally = penwright::test::Player(script).play();
        std::printf("runs %d, pages %d, last pages %d, under dialogs %d, files taken %d, drafts taken %d, left %d\n",
                    tally.runs, tally.pagesTurned, tally.lastPages, tally.underDialog, tally.filesTaken,
                    tally.draftsTaken, tally.draftsLeft);
    }
    std::printf("played\n");
    return 0;
}

}  // namespace

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    const char *script = std::getenv("PENWRIGHT_SCRIPT");
    if (!script)
        return RUN_ALL_TESTS();
    const penwright::test::TempFolder home;
    setenv("HOME", home.path().c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return playAll(script);
}
