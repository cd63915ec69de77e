#include <gtest/gtest.h>

#include <QApplication>

#include "support/Xvfb.h"

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    using penwright::test::Xvfb;
    // Where a host names no window, the wizard is a window among others, which a manager gives the focus to.
    const Xvfb display("openbox");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("LSAN_OPTIONS", "print_suppressions=0:suppressions=" LEAK_SUPPRESSIONS);
    qputenv("PATH", BIN_FOLDER ":" + qgetenv("PATH"));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
