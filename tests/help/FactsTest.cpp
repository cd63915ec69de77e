// What the topics say of the format and of the programs that read it, each where somebody looks for it.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pages/keywords/KeywordTable.h"
#include "review/FormatRules.h"
#include "TopicFolder.h"

namespace penwright::test {
namespace {

struct Fact {
    const char *name;
    Statement statement;
};

void PrintTo(const Fact &fact, std::ostream *out)
{
    *out << fact.name;
}

class Facts : public testing::TestWithParam<Fact> {};

TEST_P(Facts, standInTheirSection)
{
    expectSaid(GetParam().statement);
}

INSTANTIATE_TEST_SUITE_P(
    Directions, Facts,
    testing::ValuesIn(std::vector<Fact>{
        {"street",
         {"angles.html", "zero", {"0 is the street side, 180 the house side. 90 and 270 lie along the road."}}},
        {"otherFormat",
         {"angles.html",
          "zero",
          {"turned by 90 degrees",
           "C90 becomes the column of 0, C180 that of 90, C270 that of 180, and C0 that of 270"}}},
        {"turning", {"angles.html", "zero", {"they run counterclockwise", "they run clockwise"}}},
        {"aim", {"angles.html", "zero", {"straight down until the luminaire is aimed"}}},
        {"olderSymmetry",
         {"angles.html", "symmetry", {"2002 knows no lists from 90", "Older versions have 90 to 270, which do not"}}},
        {"equalAngles",
         {"angles.html", "messages", {"Equal angles pass, here and in all programs, but each takes them differently"}}},
        {"polesOfTypeB", {"candela.html", "poles", {"Type B has no nadir row", "the columns of -90 and 90"}}},
    }),
    [](const auto &row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Numbers, Facts,
    testing::ValuesIn(std::vector<Fact>{
        {"pastedTooLarge", {"candela.html", "paste", {"values of 9999999 and more never are"}}},
        {"fourWays", {"lamp.html", "absolute", {"luminaire's own lumens", "-1 lumens of the luminaire \u00F7 1000"}}},
        {"perKilolumen", {"lamp.html", "absolute", {"give 300 to 1000 at multiplier 1"}}},
        {"lumensByHand", {"finish.html", "lumens", {"Page 6 shows them", "in equal steps", "a single one whole"}}},
        {"changesByHand", {"format.html", "trouble", {"numbers 4 and 5 of the photometric line"}}},
        {"boundOfLumens", {"finish.html", "check", {"lamps \u00D7 lumens per lamp \u00D7 ballast factor"}}},
        {"folds", {"format.html", "width", {"one splits a number there, one stumbles over the blank"}}},
        {"lines",
         {"format.html",
          "versions",
          {"Keyword lines up to 80 characters, others up to 132", "254 characters, 256 with the line end"}}},
    }),
    [](const auto &row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    OtherPrograms, Facts,
    testing::ValuesIn(std::vector<Fact>{
        {"refusedShapes",
         {"lamp.html",
          "shapes",
          {"One widely used program refuses the whole file at D 0 0", "\u2212W 0 \u2212H",
           "under the version lines of 1991 and 1995, the round shapes of this list"}}},
        {"dimensionsOfTypeB", {"lamp.html", "opening", {"In type B: left to right", "In type B: up and down"}}},
        {"tiltRefused", {"tilt.html", "include", {"2019 ended that"}}},
        {"blankBehindTheVersion", {"keywords.html", "version", {"harmed none of 19 programs"}}},
        {"tiltInAText", {"keywords.html", "table", {"Never the word TILT: 3 or 4 of 19 programs fail"}}},
        {"oneTakes253", {"keywords.html", "table", {"one program takes 253 at most"}}},
    }),
    [](const auto &row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Keywords, Facts,
    testing::ValuesIn(std::vector<Fact>{
        {"lampPosition", {"keywords.html", "lampposition", {"horizontal angle, blank, vertical angle"}}},
        {"nearField", {"keywords.html", "keywords", {"three distances, blanks between"}}},
        {"length", {"keywords.html", "user", {"18 characters at most"}}},
        {"ofThe1995Format", {"keywords.html", "version", {"Delete the rows [TESTLAB] and [ISSUEDATE]"}}},
    }),
    [](const auto &row) { return std::string(row.param.name); });

TEST(TiltTopic, warnsOfProgramsThatRefuseTiltData)
{
    EXPECT_NE(topic("tilt.html").text().find("8 of 19 programs refuse a file with tilt data, and one ignores them."),
              std::string::npos);
}

bool isOneOf(std::span<const std::string_view> names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// What the table of keywords must say of the versions that demand a keyword, or do not know it.
std::string wordsOnVersions(std::string_view keyword)
{
    const bool isNew = isOneOf(formatRules("IESNA:LM-63-1995").unknown, keyword);
    const bool isRequired = isOneOf(formatRules("IESNA:LM-63-2002").required, keyword);
    if (isOneOf(formatRules("IESNA91").required, keyword))
        return "Required in 1991 and 2002.";
    if (isNew)
        return isRequired ? "New and required in 2002." : "New in 2002.";
    return "";
}

TEST(KeywordTopic, saysOfEachKeywordWhichVersionsDemandAndKnowIt)
{
    const std::string section = topic("keywords.html").sectionAt("keywords");
    for (const KeywordEntry &entry : kStandardKeywords) {
        const std::size_t begin = section.find(std::string(entry.keyword) + " ");
        ASSERT_NE(begin, std::string::npos) << entry.keyword;
        const std::string row = section.substr(begin, section.find('[', begin + 1) - begin);
        const std::string expected = wordsOnVersions(entry.keyword);
        EXPECT_NE(row.find(expected), std::string::npos) << row << "\n" << expected;
        if (expected.empty())
            EXPECT_EQ(row.find(" 2002"), std::string::npos) << row;
    }
}

TEST(KeywordTopic, namesWhatTheOldestVersionLineLacks)
{
    std::string lacking;
    for (const std::string_view keyword : formatRules("IESNA91").unknown)
        if (!isOneOf(formatRules("IESNA:LM-63-1995").unknown, keyword))
            lacking += ", " + std::string(keyword);
    EXPECT_NE(topic("keywords.html").sectionAt("version").find("Lacks what is new in 2002, and" + lacking.substr(1)),
              std::string::npos)
        << lacking;
}

}  // namespace
}  // namespace penwright::test
