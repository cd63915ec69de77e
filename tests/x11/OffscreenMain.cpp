// Without a display: what the toolkit side does for itself, in a home folder of the test's own.
#include <gtest/gtest.h>

#include <cstdlib>
#include <QApplication>

#include "support/TempFolder.h"

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    const penwright::test::TempFolder home;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        setenv(name, home.path().c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
