#include "pages/keywords/KeywordHints.h"

#include <gtest/gtest.h>

namespace penwright::test {
namespace {

struct HintCase {
    int row;
    KeywordRow line;
    std::string hint;
};

class KeywordHint : public testing::TestWithParam<HintCase> {};

INSTANTIATE_TEST_SUITE_P(
    Keys, KeywordHint,
    testing::Values(HintCase{2, {"[TEST]", ""}, "Test report number"},
                    HintCase{9, {"[MORE]", "x"}, "More information tied to previous keyword"},
                    HintCase{1, {"[LAMP]", ""}, "Lamp description (i.e., type, wattage, size, etc.)"},
                    HintCase{1, {"IESNA:LM-63-1995", ""}, "Version line of the format of 1995"},
                    HintCase{1, {"IESNA91", ""}, "Version line of the format of 1991"},
                    HintCase{1, {"IESNA:LM-63-2019", ""}, "Version line"},
                    HintCase{1, {"IESNA:LM-63-2002", "x"}, "The version line takes no description: Next refuses it."},
                    HintCase{1, {"IES", "x"}, "The version line takes no description: Next refuses it."},
                    HintCase{1, {"[TEST]", "x"}, "Test report number"},
                    HintCase{2, {"IESNA91", ""}, "Not a standard keyword. A user keyword begins with \"[_\"."},
                    HintCase{2, {"[_MYKEY]", "x"}, "User keyword"},
                    HintCase{2, {"[test]", ""}, "Not a standard keyword. A user keyword begins with \"[_\"."},
                    HintCase{2, {"", "x"}, "A description needs a keyword, like [MORE] or [OTHER]."},
                    HintCase{2, {"", ""}, ""}));

TEST_P(KeywordHint, saysWhatTheKeywordIs)
{
    EXPECT_EQ(keywordHint(GetParam().row, GetParam().line, false), GetParam().hint);
}

TEST(KeywordHints, rowToAppendSaysWhichLineItBecomes)
{
    EXPECT_EQ(keywordHint(10, {"", ""}, true), "Type here to add line 10.");
    EXPECT_EQ(keywordHint(10, {"[TEST]", ""}, true), "Test report number");
}

TEST(KeywordHints, lengthIsTooManyBeyond254)
{
    EXPECT_EQ(lengthHint(0), "0 of 254 characters");
    EXPECT_EQ(lengthHint(254), "254 of 254 characters");
    EXPECT_EQ(lengthHint(255), "255 of 254 characters, 1 too many");
    EXPECT_EQ(lengthHint(300), "300 of 254 characters, 46 too many");
}

TEST(KeywordHints, emptyRowsAreNamed)
{
    EXPECT_EQ(emptyRowsHint({}), "");
    EXPECT_EQ(emptyRowsHint({4}), "Row 4 is empty: it is written to the file as an empty line.");
    EXPECT_EQ(emptyRowsHint({4, 6}), "Rows 4 and 6 are empty: each is written to the file as an empty line.");
    EXPECT_EQ(emptyRowsHint({4, 6, 9}), "Rows 4, 6 and 9 are empty: each is written to the file as an empty line.");
    EXPECT_EQ(emptyRowsHint({4, 6, 9, 10, 12}),
              "Rows 4, 6, 9 and 2 more are empty: each is written to the file as an empty line.");
}

}  // namespace
}  // namespace penwright::test
