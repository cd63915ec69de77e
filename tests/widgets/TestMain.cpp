// No display is needed; the home folder is not the user's.
#include <gtest/gtest.h>

#include <cstdlib>
#include <QApplication>

#include "support/TempFolder.h"

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    const penwright::test::TempFolder home;
    setenv("HOME", home.path().c_str(), 1);
    setenv("XDG_CONFIG_HOME", home.path().c_str(), 1);
    setenv("XDG_STATE_HOME", home.path().c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
