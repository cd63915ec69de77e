// Each test process has a display of its own; the tools that it starts use it, or none.
#include <gtest/gtest.h>

#include "support/Xvfb.h"

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const penwright::test::Xvfb display(penwright::test::managerAskedFor());
    return RUN_ALL_TESTS();
}
