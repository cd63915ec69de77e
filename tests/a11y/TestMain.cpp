// Each test process has a display and a bus of screen readers of its own.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "a11y/AccessibilityBus.h"
#include "support/Xvfb.h"

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const penwright::test::Xvfb display;
    const QCoreApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
