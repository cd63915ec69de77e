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

TEST(GridBlock, takesAsLongAsItIs)
{
    for (const char *part : {"1\t2\r\n", "\r\n", "\n", "\t"})
        EXPECT_LT(growth(part, 40000, splitGridBlock), kMostGrowth) << testing::PrintToString(part);
}

}  // namespace
}  // namespace penwright::test
