#include <gtest/gtest.h>

#include <limits>

#include "review/ShownNumber.h"

namespace penwright::test {
namespace {

TEST(ShownNumber, isWholeFromAHundredUp)
{
    EXPECT_EQ(roundedText(12437.4), "12,437");
    EXPECT_EQ(roundedText(1234567.5), "1,234,568");
    EXPECT_EQ(roundedText(999.5), "1,000");
    EXPECT_EQ(roundedText(100), "100");
    EXPECT_EQ(roundedText(-12437.4), "-12,437");
    EXPECT_EQ(roundedText(-123.4), "-123");
}

TEST(ShownNumber, hasThreeDigitsBelow)
{
    EXPECT_EQ(roundedText(99.96), "100");
    EXPECT_EQ(roundedText(34.21), "34.2");
    EXPECT_EQ(roundedText(8.9), "8.9");
    EXPECT_EQ(roundedText(0.04567), "0.0457");
    EXPECT_EQ(roundedText(-0.5), "-0.5");
    EXPECT_EQ(roundedText(0), "0");
}

TEST(ShownNumber, hasThreeDigitsWhenItIsHugeOrNextToNothing)
{
    EXPECT_EQ(roundedText(4.2e38), "4.2E+38");
    EXPECT_EQ(roundedText(6.28318530717959e38), "6.28E+38");
    EXPECT_EQ(roundedText(-6.28318530717959e37), "-6.28E+37");
    EXPECT_EQ(roundedText(2e16), "2E+16");
    EXPECT_EQ(roundedText(123456789012345), "123,456,789,012,345");
    EXPECT_EQ(roundedText(1234567890123456), "1.23E+15");
    EXPECT_EQ(roundedText(4.9e-324), "4.94E-324");
}

TEST(TypedNumber, hasTheDigitsOfTheTable)
{
    EXPECT_EQ(typedText(double{2.481F}), "2.481");
    EXPECT_EQ(typedText(double{12.3F}), "12.3");
    EXPECT_EQ(typedText(4500), "4,500");
    EXPECT_EQ(typedText(12345.5), "12,345.5");
    EXPECT_EQ(typedText(9999998), "9,999,998");
    EXPECT_EQ(typedText(double{1e10F}), "1E+10");
    EXPECT_EQ(typedText(1e300), "1E+300");
    EXPECT_EQ(typedText(-1234), "-1,234");
}

}  // namespace
}  // namespace penwright::test
