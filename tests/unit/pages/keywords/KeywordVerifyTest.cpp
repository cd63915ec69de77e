#include <gtest/gtest.h>

#include "pages/keywords/KeywordLines.h"

namespace penwright::test {
namespace {

const std::string kNoVersion = "file must start with IES version number (i.e. IESNA:LM-63-1995)\r\n";
const std::string kVersionAlone = "line: 1  first line must contain only IESNA:LM-63-2002 or IESNA:LM-63-1995\r\n";
const std::string kTooLong = " must be less than 254 characters total. please use a [MORE]\r\n";

const KeywordRow kVersion{"IESNA:LM-63-2002", ""};

std::string repeated(const std::string &text, int times)
{
    std::string all;
    for (; times > 0; --times)
        all += text;
    return all;
}

struct VerifyCase {
    std::string name;
    OneBased<KeywordRow> rows;
    std::string warnings;
    int faultRow = 0;
    int faultColumn = 0;
};

void PrintTo(const VerifyCase &verify, std::ostream *out)
{
    *out << verify.name;
}

class KeywordVerify : public testing::TestWithParam<VerifyCase> {};

TEST_P(KeywordVerify, givesTheseLinesAndTheFirstPlace)
{
    WarningList list;
    EXPECT_TRUE(gfnKeyVerify(GetParam().rows, list));
    EXPECT_EQ(list.text(), GetParam().warnings);
    if (GetParam().faultRow)
        EXPECT_EQ(list.firstFault(), (FaultPlace{.row = GetParam().faultRow, .column = GetParam().faultColumn}));
    else
        EXPECT_EQ(list.firstFault(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, KeywordVerify,
    testing::Values(
        VerifyCase{"version alone", {kVersion}, ""}, VerifyCase{"any text behind IES", {{"IES", ""}}, ""},
        VerifyCase{"the older ones", {{"IESNA91", ""}, {"[TEST]", "1"}}, ""},
        VerifyCase{"no rows", {}, kNoVersion, 1, 0},
        VerifyCase{"first row is a keyword", {{"[TEST]", "7"}}, kNoVersion, 1, 0},
        VerifyCase{"first row is empty",
                   {{"", ""}, kVersion},
                   "line:2 IESNA:LM-63-2002 not a valid IES or user keyword.\r\n" + kNoVersion,
                   2,
                   0},
        VerifyCase{"version has a value", {{"IESNA:LM-63-2002", "x"}}, kVersionAlone + kNoVersion, 1, 1},
        VerifyCase{
            "small letters", {{"ies", ""}}, "line:1 ies not a valid IES or user keyword.\r\n" + kNoVersion, 1, 0},
        VerifyCase{"two letters", {{"IE", ""}}, "line:1 IE not a valid IES or user keyword.\r\n" + kNoVersion, 1, 0},
        VerifyCase{"version again in row 3",
                   {kVersion, {"[TEST]", ""}, kVersion},
                   "line:3 IESNA:LM-63-2002 not a valid IES or user keyword.\r\n",
                   3,
                   0},
        VerifyCase{"first row is a user keyword", {{"[_IES]", "x"}}, kNoVersion, 1, 0}));

INSTANTIATE_TEST_SUITE_P(
    Keys, KeywordVerify,
    testing::Values(
        VerifyCase{"user keyword", {kVersion, {"[_MYKEY]", "x"}, {"[_", ""}}, ""},
        VerifyCase{"unknown keyword",
                   {kVersion, {"[TEST]", ""}, {"[LAMP]", ""}, {"[FOO]", "x"}},
                   "line:4 [FOO] not a valid IES or user keyword.\r\n",
                   4,
                   0},
        VerifyCase{
            "no underscore", {kVersion, {"[MYKEY]", ""}}, "line:2 [MYKEY] not a valid IES or user keyword.\r\n", 2, 0},
        VerifyCase{"case and brackets",
                   {kVersion, {"[test]", ""}, {"TEST", ""}},
                   "line:2 [test] not a valid IES or user keyword.\r\n"
                   "line:3 TEST not a valid IES or user keyword.\r\n",
                   2,
                   0},
        VerifyCase{"value without keyword",
                   {kVersion, {"", "some text"}},
                   "line:2 value must have a keyword, like [MORE] or [OTHER].\r\n",
                   2,
                   0},
        VerifyCase{"value without keyword in row 1",
                   {{"", "text"}},
                   "line:1 value must have a keyword, like [MORE] or [OTHER].\r\n" + kNoVersion,
                   1,
                   0},
        VerifyCase{"empty row", {kVersion, {"", ""}, {"[TEST]", ""}}, ""},
        VerifyCase{"all empty", {{"", ""}}, kNoVersion, 1, 0}));

INSTANTIATE_TEST_SUITE_P(
    Lengths, KeywordVerify,
    testing::Values(
        VerifyCase{"254", {kVersion, {"[TEST]", std::string(248, 'x')}}, ""},
        VerifyCase{"255", {kVersion, {"[TEST]", std::string(249, 'x')}}, "line:2" + kTooLong, 2, 1},
        VerifyCase{"254 in the user key", {kVersion, {"[_" + std::string(252, 'x'), ""}}, ""},
        VerifyCase{"255 in the user key", {kVersion, {"[_" + std::string(253, 'x'), ""}}, "line:2" + kTooLong, 2, 1},
        VerifyCase{"254 in two-byte characters", {kVersion, {"[TEST]", repeated("\u00FC", 248)}}, ""},
        VerifyCase{"254 in four-byte characters", {kVersion, {"[TEST]", repeated("\U0001F4A1", 248)}}, ""},
        VerifyCase{
            "255 in two-byte characters", {kVersion, {"[TEST]", repeated("\u00FC", 249)}}, "line:2" + kTooLong, 2, 1},
        VerifyCase{"version line of 254", {{"IES" + std::string(251, 'x'), ""}}, ""},
        VerifyCase{"version line of 255", {{"IES" + std::string(252, 'x'), ""}}, "line:1" + kTooLong, 1, 1},
        VerifyCase{"long version line with value",
                   {{"IES", std::string(252, 'x')}},
                   kVersionAlone + "line:1" + kTooLong + kNoVersion,
                   1,
                   1},
        VerifyCase{"long value without keyword",
                   {kVersion, {"", std::string(255, 'x')}},
                   "line:2 value must have a keyword, like [MORE] or [OTHER].\r\nline:2" + kTooLong,
                   2,
                   0},
        VerifyCase{"long unknown keyword",
                   {kVersion, {"[FOO]", std::string(250, 'x')}},
                   "line:2 [FOO] not a valid IES or user keyword.\r\nline:2" + kTooLong,
                   2,
                   0}));

TEST(KeywordVerifyAll, everyStandardKeywordPassesInAnyRowButTheFirst)
{
    OneBased<KeywordRow> rows{kVersion};
    for (const char *key :
         {"[TEST]",         "[TESTLAB]",   "[TESTDATE]",      "[NEARFIELD]",    "[MANUFAC]",    "[LUMCAT]",
          "[LUMINAIRE]",    "[LAMPCAT]",   "[LAMP]",          "[BALLAST]",      "[BALLASTCAT]", "[MAINTCAT]",
          "[DISTRIBUTION]", "[FLASHAREA]", "[COLORCONSTANT]", "[LAMPPOSITION]", "[ISSUEDATE]",  "[OTHER]",
          "[SEARCH]",       "[MORE]",      "[MORE]"})
        rows.append({key, "text"});
    WarningList list;
    gfnKeyVerify(rows, list);
    EXPECT_EQ(list.text(), "");
}

TEST(KeywordVerifyAll, allFaultsComeTogetherInTheOrderOfTheRows)
{
    OneBased<KeywordRow> rows(12);
    rows(1) = {"IESNA:LM-63-1995", "and more"};
    rows(3) = {"", "lost"};
    rows(10) = {"[FOO]", std::string(300, 'x')};
    rows(12) = {"[bar]", ""};
    WarningList list;
    gfnKeyVerify(rows, list);
    EXPECT_EQ(list.text(), kVersionAlone + "line:3 value must have a keyword, like [MORE] or [OTHER].\r\n" +
                               "line:10 [FOO] not a valid IES or user keyword.\r\n" + "line:10" + kTooLong +
                               "line:12 [bar] not a valid IES or user keyword.\r\n" + kNoVersion);
}

}  // namespace
}  // namespace penwright::test
