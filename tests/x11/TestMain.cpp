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
    using penwright::test::Xvfb;
    const char *manager = std::getenv("PENWRIGHT_TEST_MANAGER");
    const Xvfb server(manager && *manager ? Xvfb::Manager::Openbox : Xvfb::Manager::None);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    const penwright::Display display;
    if (!display.isUsable())
        return 1;
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
