#include "pages/keywords/KeywordTable.h"

#include <gtest/gtest.h>

#include <string>

namespace penwright::test {
namespace {

// The table once more as it must be shown, a line for each entry.
const std::string kTable =
    "1 [TEST] Test report number\n"
    "2 [TESTLAB] Photometric testing laboratory\n"
    "3 [TESTDATE] Date that the photometric report was generated\n"
    "4 [NEARFIELD] This indicates that the report was tested using near field photometry.\n"
    "5 [MANUFAC] Manufacturer of luminaire\n"
    "6 [LUMCAT] Luminaire catalog number\n"
    "7 [LUMINAIRE] Luminaire description\n"
    "8 [LAMPCAT] Lamp catalog number\n"
    "9 [LAMP] Lamp description (i.e., type, wattage, size, etc.)\n"
    "10 [BALLAST] Ballast description (i.e., watts, volts, magnetic or electronic, etc.)\n"
    "11 [BALLASTCAT] Ballast catalog number\n"
    "12 [MAINTCAT] A digit (1-6) indicating the IESNA maintenance category (see help)\n"
    "13 [DISTRIBUTION] General description of the photometric distribution (e.g., Type II, Medium, Direct, SC=1.5)\n"
    "14 [FLASHAREA] Light emitting area of the luminaire projected under 76 degrees in square meters. Used in "
    "calculation of CIE Discomfort Glare Mark.\n"
    "15 [COLORCONSTANT] Used in calculation of CIE glare control\n"
    "16 [LAMPPOSITION] Two angles, separated by a space or comma delimiter, that determine lamp position within the "
    "luminaire with respect to the photometric angles (see help)\n"
    "17 [ISSUEDATE] Date that the manufacturer issued the IES file\n"
    "18 [OTHER] Other information about this file\n"
    "19 [SEARCH] User created search string\n"
    "20 [MORE] More information tied to previous keyword\n";

TEST(KeywordTable, holdsTheStandardKeywordsAtTheirPositions)
{
    std::string table;
    for (const KeywordEntry &entry : kStandardKeywords)
        table.append(std::to_string(gfnIsValidKeyword(entry.keyword)) + " ")
            .append(entry.keyword)
            .append(" ")
            .append(entry.description)
            .append("\n");
    EXPECT_EQ(table, kTable);
}

class NoKeyword : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Keys, NoKeyword,
                         testing::Values("", "[test]", "[Test]", "TEST", "[TEST", "TEST]", " [TEST]", "[TEST] ",
                                         "[TEST]]", "[]", "[_TEST]", "[FOO]", "IESNA:LM-63-2002", "[TESTLA]"));

TEST_P(NoKeyword, hasPositionZero)
{
    EXPECT_EQ(gfnIsValidKeyword(GetParam()), 0);
}

TEST(KeywordTable, versionLineIsKnownByItsFirstThreeCharacters)
{
    for (const char *key : {"IES", "IESNA91", "IESNA:LM-63-2002", "IES anything"})
        EXPECT_TRUE(isVersionLine(key)) << key;
    for (const char *key : {"", "IE", "ies", "iesna91", " IES", "[IES"})
        EXPECT_FALSE(isVersionLine(key)) << key;
}

TEST(KeywordTable, userKeywordIsKnownByItsFirstTwoCharacters)
{
    for (const char *key : {"[_", "[_MYKEY]", "[__]"})
        EXPECT_TRUE(isUserKeyword(key)) << key;
    for (const char *key : {"", "[", "_", "[MYKEY]", " [_X]", "[ _X]"})
        EXPECT_FALSE(isUserKeyword(key)) << key;
}

}  // namespace
}  // namespace penwright::test
