#include "grid/GridBlock.h"

#include <gtest/gtest.h>

#include "support/Growth.h"

namespace penwright::test {
namespace {

TEST(GridBlock, ofOneCellIsATextWhateverLineEndStandsBehindIt)
{
    EXPECT_EQ(textOfOneCell(""), "");
    for (const char *text : {"1 2", "1 2\n", "1 2\r\n", "1 2\r", "1 2\r\n\r\n"})
        EXPECT_EQ(textOfOneCell(text), "1 2") << testing::PrintToString(text);
    for (const char *text : {"1\t2", "1\t", "\t1", "1\n2", "1\r2\n", "1\n\n2", "1\n\t"})
        EXPECT_EQ(textOfOneCell(text), std::nullopt) << testing::PrintToString(text);
}

struct SplitCase {
    const char *text;
    GridLines lines;
};

TEST(GridBlock, endsBehindItsLastText)
{
    const SplitCase kCases[]{
        {"", {}},
        {"1", {{"1"}}},
        {"1\r\n", {{"1"}}},
        {"1\t2\r\n3\t4", {{"1", "2"}, {"3", "4"}}},
        {"1\n2\t3\n", {{"1"}, {"2", "3"}}},
        {"1\r2\t3\r", {{"1"}, {"2", "3"}}},
        {"1\n\n\n", {{"1"}}},
        {"1\t\t\n\t\t\n", {{"1"}}},
        {"\t1\t\n\n2\n", {{"", "1"}, {""}, {"2"}}},
        {"1\t\n\t\n\t2\n\t\n", {{"1", ""}, {"", ""}, {"", "2"}}},
    };
    for (const SplitCase &row : kCases)
        EXPECT_EQ(splitGridBlock(row.text), row.lines) << row.text;
}

TEST(GridBlock, ofEmptyCellsAloneIsTakenAsItIs)
{
    EXPECT_EQ(splitGridBlock("\n"), (GridLines{{""}}));
    EXPECT_EQ(splitGridBlock("\t\n\t\n"), (GridLines{{"", ""}, {"", ""}}));
}

TEST(GridBlock, takesACellInQuotesWithALineEndInsideAsOneLine)
{
    const SplitCase kCases[]{
        {"\"two\nlines\"\tB\nC\tD\n", {{"two lines", "B"}, {"C", "D"}}},
        {"A\t\"two\r\nlines\"\r\nC\t\"x\rz\n\"", {{"A", "two lines"}, {"C", "x z"}}},
        {"\"say \"\"a\nb\"\"\"\t\"\"\"\n\"\"\"", {{"say \"a b\"", "\" \""}}},
        {"\"with\ttab\nand line\"", {{"with tab and line"}}},
        {"\"\n\"\tB", {{"", "B"}}},
    };
    for (const SplitCase &row : kCases)
        EXPECT_EQ(splitGridBlock(row.text), row.lines) << row.text;
    EXPECT_EQ(textOfOneCell("\"two\nlines\"\n"), "two lines");
}

TEST(GridBlock, leavesAllOtherQuotesToTheirCells)
{
    const SplitCase kCases[]{
        {"\"a\"\t6\"\n\"b\"", {{"\"a\"", "6\""}, {"\"b\""}}},
        {"\"a\nb\tc", {{"\"a"}, {"b", "c"}}},
        {"\"a\nb\"c\td", {{"\"a"}, {"b\"c", "d"}}},
        {"\"\"\"\"", {{"\"\"\"\""}}},
        {"a \"b\nc\"", {{"a \"b"}, {"c\""}}},
        {"\"", {{"\""}}},
    };
    for (const SplitCase &row : kCases)
        EXPECT_EQ(splitGridBlock(row.text), row.lines) << row.text;
}

TEST(GridBlock, takesAsLongAsItIs)
{
    for (const char *part :
         {"1\t2\r\n", "\r\n", "\n", "\t", "\"a\n", "\"a\nb\"\n", "\"\"\n", "\"\"\"\"a\t", "\"\t\"\"\n"})
        EXPECT_LT(growth(part, 2500, splitGridBlock), kMostGrowth) << testing::PrintToString(part);
}

}  // namespace
}  // namespace penwright::test
