#include "grid/TableWords.h"

#include <gtest/gtest.h>

namespace penwright {
namespace {

std::string numbersOf(const std::vector<CutLine> &lines)
{
    std::string text;
    for (const CutLine &line : lines)
        text += std::to_string(line.number) + " ";
    return text;
}

TEST(TableWords, sayHowATextIsRead)
{
    EXPECT_EQ(readingWords({}), "Tabs between cells, decimal point, no sign between thousands.");
    EXPECT_EQ(readingWords(
                  {.separator = TableSeparator::Semicolon, .decimalSign = ',', .thousandsSign = '.', .linesToSkip = 1}),
              "Semicolons between cells, decimal comma, points between thousands, 1 line skipped.");
    EXPECT_EQ(readingWords({.separator = TableSeparator::Comma, .thousandsSign = '\'', .linesToSkip = 2}),
              "Commas between cells, decimal point, apostrophes between thousands, 2 lines skipped.");
    EXPECT_EQ(readingWords({.separator = TableSeparator::Blanks, .thousandsSign = ' '}),
              "Blanks between cells, decimal point, blanks between thousands.");
    EXPECT_EQ(readingWords({.thousandsSign = ','}), "Tabs between cells, decimal point, commas between thousands.");
}

TEST(TableWords, sayWhatWasRead)
{
    TableContent table;
    table.values.reset(2, 3);
    table.vertical = {0, 45, 90};
    EXPECT_EQ(
        contentWords(table, {}),
        "Read: 3 vertical angles from 0 to 90 down the text; no horizontal angles, but 2 values across the text.");
    table.horizontal = {0};
    table.vertical.clear();
    EXPECT_EQ(contentWords(table, {.verticalDown = false}),
              "Read: no vertical angles, but 3 values across the text; 1 horizontal angle from 0 down the text.");
}

TEST(TableWords, sayWhichAnglesWereTurnedRound)
{
    TableContent table;
    table.values.reset(2, 3);
    table.vertical = {0, 45, 90};
    table.horizontal = {0, 90};
    table.verticalFalls = true;
    EXPECT_EQ(
        contentWords(table, {}),
        "Read: 3 vertical angles from 0 to 90, falling down the text; 2 horizontal angles from 0 to 90 across the "
        "text.");
    table.horizontalFalls = true;
    EXPECT_EQ(
        contentWords(table, {.verticalDown = false}),
        "Read: 3 vertical angles from 0 to 90, falling across the text; 2 horizontal angles from 0 to 90, falling "
        "down the text.");
}

TEST(TableWords, sayOfAListWhichAnglesItHas)
{
    TableContent table;
    table.values.reset(2, 3);
    table.vertical = {0, 45, 90};
    table.horizontal = {0, 90};
    EXPECT_EQ(contentWords(table, {.isList = true}),
              "Read: 3 vertical angles from 0 to 90; 2 horizontal angles from 0 to 90.");
}

TEST(FirstPart, isWholeLinesOfALongText)
{
    EXPECT_EQ(firstPart("1\t2\n3"), "1\t2\n3");
    std::string text;
    for (int line = 0; line < 40'000; ++line)
        text += "12345\r\n";
    const std::string_view part = firstPart(text);
    EXPECT_LT(part.size(), 210'000U);
    EXPECT_GT(part.size(), 190'000U);
    EXPECT_TRUE(part.ends_with("\n12345\r") || part.ends_with("\n12345"));
    const std::string oneLine(300'000, '1');
    EXPECT_LT(firstPart(oneLine).size(), 210'000U);
}

TEST(CutLines, areTheFirstOnesBehindThoseSkippedAndThoseAroundOne)
{
    std::string text;
    for (int line = 1; line <= 1000; ++line)
        text += std::to_string(line) + ";x\n";
    const TableReading reading{.separator = TableSeparator::Semicolon, .linesToSkip = 2};
    const std::vector<CutLine> first = cutLines(text, reading, 0);
    EXPECT_EQ(first.size(), 200U);
    EXPECT_EQ(first.front().number, 3U);
    EXPECT_EQ(first.front().cells, (std::vector<std::string>{"3", "x"}));
    const std::vector<CutLine> around = cutLines(text, reading, 900);
    EXPECT_EQ(around.size(), 241U);
    EXPECT_EQ(around[200].number, 880U);
    EXPECT_EQ(around[220].cells.front(), "900");
    EXPECT_EQ(around.back().number, 920U);
    EXPECT_EQ(numbersOf(cutLines("1\n2\n", {}, 2)), "1 2 ");
    EXPECT_EQ(numbersOf(cutLines("", {}, 0)), "");
}

}  // namespace
}  // namespace penwright
