#include "grid/HeldCells.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace penwright::test {
namespace {

template <typename Number>
std::string textOf(Number value)
{
    std::string text;
    appendHeldNumber(text, value);
    return text;
}

TEST(HeldNumber, comesBackToTheLastBit)
{
    for (const float value : {0.1F, 1.0F / 3, -0.0F, 1e-45F, 3.4028235e38F, 16777217.0F}) {
        const auto back = heldNumber<float>(textOf(value));
        ASSERT_TRUE(back) << value;
        EXPECT_EQ(*back, value);
        EXPECT_EQ(std::signbit(*back), std::signbit(value));
    }
    for (const double value : {0.1, 1.0 / 3, 5e-324, 1.7976931348623157e308})
        EXPECT_EQ(heldNumber<double>(textOf(value)), value);
}

TEST(HeldNumber, isNoOtherText)
{
    for (const char *text : {"", " 1", "1 ", "x", "1,5", "inf", "nan", "-", "1e999"})
        EXPECT_EQ(heldNumber<double>(text), std::nullopt) << text;
    EXPECT_EQ(heldNumber<float>("1e300"), std::nullopt);
}

TEST(HeldText, comesBackInOneCell)
{
    const std::string text = "a\tb\nc\rd\\e\\n \xC3\xA4";
    std::string held;
    appendHeldText(held, text);
    EXPECT_EQ(held.find_first_of("\t\n\r"), std::string::npos);
    EXPECT_EQ(heldText(held), text);
}

TEST(HeldText, isNoTextWithAStrayMark)
{
    for (const char *text : {"\\", "a\\", "\\x"})
        EXPECT_EQ(heldText(text), std::nullopt) << text;
}

TEST(HeldCells, comeOneByOneUntilTheSeparatorIsAnother)
{
    HeldCells cells("a\t\nb\n");
    EXPECT_EQ(cells.next('\t'), "a");
    EXPECT_EQ(cells.next('\n'), "");
    EXPECT_EQ(cells.next('\t'), std::nullopt);
    EXPECT_EQ(cells.next('\n'), "b");
    EXPECT_TRUE(cells.isAtEnd());
    EXPECT_EQ(HeldCells("no end").next('\n'), std::nullopt);
}

TEST(BytesOfText, countWhatTheTextHasTaken)
{
    EXPECT_EQ(bytesOfText("short"), 0U);
    EXPECT_GE(bytesOfText(std::string(1000, 'x')), 1000U);
}

}  // namespace
}  // namespace penwright::test
