// The display of the test process comes first: the toolkit reads its environment when the application object is made.
#include <gtest/gtest.h>

#include <cstdlib>
#include <QApplication>
#include <string>

#include "platform/x11/Display.h"
#include "support/Xvfb.h"

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    const penwright::test::Xvfb server(penwright::test::managerAskedFor());
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    const penwright::Display display;
    if (!display.isUsable())
        return 1;
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
