#include "pages/luminaire/InputUnits.h"

#include <gtest/gtest.h>

#include "support/ToolBench.h"

namespace penwright::test {
namespace {

TEST(InputUnits, areFeetForAZeroAndWhereNothingIsSet)
{
    ToolBench bench;
    EXPECT_TRUE(inputUnitsAreFeet(bench.store));
    bench.store.write("Lumentor32", "Lumentor32", "InputUnits", "0");
    EXPECT_TRUE(inputUnitsAreFeet(bench.store));
    for (const char *text : {"1", "", "0 ", "00", "feet"}) {
        bench.store.write("Lumentor32", "Lumentor32", "InputUnits", text);
        EXPECT_FALSE(inputUnitsAreFeet(bench.store)) << '"' << text << '"';
    }
}

TEST(InputUnits, areTheUsersOwnAndNobodyElses)
{
    ToolBench bench;
    bench.store.write("Lumentor_PE", "Lumentor32", "InputUnits", "1");
    bench.store.write("Lumentor32", "Lumentor_PE", "InputUnits", "1");
    bench.store.write("Lumentor32", "Lumentor32", "inputunits", "1");
    EXPECT_TRUE(inputUnitsAreFeet(bench.store));
    EXPECT_EQ(bench.store.readAll("Lumentor32", "Lumentor32").size(), 1U) << "asking sets nothing";
}

}  // namespace
}  // namespace penwright::test
