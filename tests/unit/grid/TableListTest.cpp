#include "grid/TableList.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <string>

#include "grid/TableText.h"
#include "support/Growth.h"

namespace penwright {
namespace {

constexpr TableReading kPlanesFirst{.verticalDown = false, .isList = true};

std::string faultOf(std::string_view text, const TableReading &reading = kPlanesFirst)
{
    const auto table = readTable(text, reading);
    const TableFault *fault = std::get_if<TableFault>(&table);
    return fault != nullptr ? fault->text : "read";
}

/// A line for each direction of a square of angles, in an order of its own.
std::string square(int side, std::mt19937 random)
{
    std::vector<int> order(static_cast<std::size_t>(side) * side);
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), random);
    std::string text;
    for (const int at : order)
        text += std::to_string(at / side) + "\t" + std::to_string(at % side) + "\t" + std::to_string(at) + "\n";
    return text;
}

TEST(TableList, manyLinesInAnyOrderAreRead)
{
    const auto table = readTable(square(300, std::mt19937(13)), kPlanesFirst);
    const auto *content = std::get_if<TableContent>(&table);
    ASSERT_TRUE(content);
    ASSERT_EQ(content->horizontal.size(), 300);
    ASSERT_EQ(content->vertical.size(), 300);
    for (int h = 1; h <= 300; ++h)
        for (int v = 1; v <= 300; ++v)
            ASSERT_EQ(content->values(h, v), 300 * (h - 1) + v - 1);
}

/// Lines of five planes of 300 angles each, so that the first one fills the sample.
std::string longPlanes(int firstAngle)
{
    std::string text;
    for (int plane = 0; plane < 50; plane += 10)
        for (int angle = firstAngle; angle < firstAngle + 300; ++angle)
            text += std::to_string(plane) + "\t" + std::to_string(angle) + "\t5\n";
    return text;
}

TEST(TableList, ofOnePlaneInTheSampleIsKnownByAnglesThatLookLikeThem)
{
    EXPECT_TRUE(guessTable(longPlanes(0)).isList);
    EXPECT_FALSE(guessTable(longPlanes(7)).isList);
}

TEST(TableList, takesTimeInProportion)
{
    const auto read = [](std::string_view text) { readTable(text, kPlanesFirst); };
    for (const char *part : {"0\t1\t2\n", "C\tGamma\n"})
        EXPECT_LT(test::growth(part, 500, read), test::kMostGrowth) << part;
}

TEST(TableList, anglesThatHardlyMeetTakeNoRoomForTheirPairs)
{
    std::string text;
    for (int line = 0; line < 3000; ++line)
        text += std::to_string(line) + "\t" + std::to_string(line) + "\t5\n";
    EXPECT_EQ(faultOf(text),
              "Line 1, cell 1: angle 0 stands in no other line; a list has one line for each pair of angles.");
}

TEST(TableList, hasNoMoreAnglesThanATable)
{
    std::string text;
    for (int line = 1; line <= 32768; ++line)
        text += "0\t" + std::to_string(line) + "\t5\n";
    EXPECT_EQ(faultOf(text),
              "Line 32768: a table has 1 to 32767 lines and columns of values. Read before it: 32767 lines.");
}

TEST(TableList, faultOfTwoByTwoNamesThePairThatIsMissing)
{
    EXPECT_EQ(
        faultOf("0\t0\t5\n0\t90\t4\n90\t90\t3\n"),
        "Line 3: vertical angle 0, horizontal angle 90 is missing before it; a list has one line for each pair of "
        "angles.");
}

TEST(TableList, whatIsNoListIsRefused)
{
    EXPECT_EQ(faultOf(""), "No line of numbers was found; a table has one for each angle.");
    EXPECT_EQ(faultOf("Dear all\n"),
              "No line of numbers was found; a table has one for each angle. Line 1, cell 1: \"Dear all\" is no "
              "angle.");
    EXPECT_EQ(faultOf("0\t1\t2\t3\n"), "Line 1: 4 cells where a list has 3: two angles and a value.");
    EXPECT_EQ(faultOf("0\tx\t2\n"), "Line 1, cell 2: \"x\" is no angle.");
    EXPECT_EQ(faultOf("0\t1\t\n0\t2\t5\n"), "Line 1: 2 cells where a list has 3: two angles and a value.");
}

TEST(TableList, readingCanBeStopped)
{
    std::string text;
    for (int line = 0; line < 12'000; ++line)
        text += std::to_string(line) + std::string(100, ' ') + "\t0\t5\n";
    const auto table = readTable(text, kPlanesFirst, [](double) { return false; });
    ASSERT_TRUE(std::holds_alternative<TableFault>(table));
    EXPECT_EQ(std::get<TableFault>(table).text, "");
}

}  // namespace
}  // namespace penwright
