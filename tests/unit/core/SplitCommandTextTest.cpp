#include "core/SplitCommandText.h"

namespace penwright {
namespace {

std::string shown(const SplitText &split)
{
    std::string text;
    for (int line = 1; line <= split.table.lines(); ++line) {
        for (int field = 1; field <= split.table.fields(); ++field)
            text.append("[").append(split.table(line, field)).append("]");
        text += ";";
    }
    return text;
}

struct SplitCase {
    std::string text;
    std::string fields;
    int lines;
};

class Split : public testing::TestWithParam<SplitCase> {};

INSTANTIATE_TEST_SUITE_P(Texts, Split,
                         testing::ValuesIn(std::vector<SplitCase>{
                             {"", "", 0},
                             {"a", "[a];", 1},
                             {"a,b", "[a][b];", 1},
                             {" a , b ", "[ a ][ b ];", 1},
                             {",", "[][];", 1},
                             {"a,b\r\nc,d", "[a][b];[c][d];", 2},
                             {"a,b\r\nc,d\r\n", "[a][b];[c][d];", 2},
                             {"a\r\nc,d", "[a][];[c][d];", 2},
                             {"a,b,c\r\nd,e", "[a][b,c];[d][e];", 2},
                             {"a\r\n\r\nb", "[a];[b];", 2},
                             {"ab\nc", "[a];[c];", 2},  // whatever stands before the line feed is dropped
                             {"a\nc", "[c];", 1},
                             {"\n", "", 0},
                             {"\n\n\r\n", "", 0},
                             {"\na", "[a];", 1},
                         }));

TEST_P(Split, cutsLinesAndFields)
{
    const SplitText split = SplitCommandText(GetParam().text);
    EXPECT_EQ(shown(split), GetParam().fields);
    EXPECT_EQ(split.lineCount, GetParam().lines);
    EXPECT_EQ(split.lines.size(), GetParam().lines);
}

TEST(SplitCommandText, fieldCountIsThatOfTheLastKeptLine)
{
    EXPECT_EQ(SplitCommandText("a,b,c\r\nd\r\n").fieldCount, 1);
    EXPECT_EQ(SplitCommandText("a\r\nb,c,d").fieldCount, 3);
    EXPECT_EQ(SplitCommandText("").fieldCount, 0);
}

TEST(SplitCommandText, tableCanBeSkipped)
{
    const SplitText split = SplitCommandText("a,b\r\nc,d", true);
    EXPECT_EQ(split.lines, (OneBased<std::string>{"a,b", "c,d"}));
    EXPECT_EQ(split.table.lines(), 0);
    EXPECT_EQ(split.fieldCount, 0);
}

TEST(SplitCommandText, fieldsBeyondTheTableRaiseNine)
{
    const SplitText split = SplitCommandText("a,b");
    for (const auto &[line, field] : {std::pair{0, 1}, {1, 0}, {2, 1}, {1, 3}}) {
        try {
            split.table(line, field);
            ADD_FAILURE() << line << "," << field;
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), 9);
        }
    }
}

// Lines times fields would be 10^12 cells here.
TEST(SplitCommandText, hostileTextStaysAsLargeAsItIs)
{
    std::string text;
    for (int i = 0; i < 1000000; ++i)
        text += "x\r\n";
    text += std::string(1000000, ',');
    const SplitText split = SplitCommandText(text);
    EXPECT_EQ(split.lineCount, 1000001);
    EXPECT_EQ(split.fieldCount, 1000001);
    EXPECT_EQ(split.table(5, 1), "x");
    EXPECT_EQ(split.table(5, 1000001), "");
}

}  // namespace
}  // namespace penwright
