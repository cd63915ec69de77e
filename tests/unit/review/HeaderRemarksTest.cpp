#include "RemarkTest.h"

namespace penwright::test {
namespace {

class HeaderRemarks : public testing::TestWithParam<RuleCase> {};

TEST_P(HeaderRemarks, areThese)
{
    expectRemarks(GetParam());
}

Change lines(const OneBased<std::string> &keywords)
{
    return [=](PhotometricRecord &record) { record.Keywords = keywords; };
}

constexpr RecordPlace kNoRow{RecordField::Keywords};
constexpr RecordPlace row(int i)
{
    return {RecordField::Keywords, i};
}

INSTANTIATE_TEST_SUITE_P(
    Keywords, HeaderRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"2002, empty and missing",
         RemarkRule::Keywords,
         lines({kVersion2002, "[TEST] 1", "[TESTLAB]  ", "[MANUFAC] M"}),
         {{"[TESTLAB] is empty; the 2002 format requires it.", row(3)},
          {"[ISSUEDATE] is missing; the 2002 format requires it.", kNoRow}}},
        {"filled in the second time",
         RemarkRule::Keywords,
         lines({kVersion2002, "[TEST] ", "[TEST] 1", "[TESTLAB] L", "[ISSUEDATE] D", "[MANUFAC] M"}),
         {}},
        {"2002, of older versions",
         RemarkRule::Keywords,
         lines({kVersion2002, "[TEST] 1", "[TESTLAB] L", "[ISSUEDATE] D", "[MANUFAC] M", "[DATE] D"}),
         {{"[DATE] is unknown to the 2002 format.", row(6)}}},
        {"1995 requires none", RemarkRule::Keywords, lines({kVersion1995, "[OTHER] text"}), {}},
        {"1995, of later versions",
         RemarkRule::Keywords,
         lines({kVersion1995, "[TESTLAB] L", "[ISSUEDATE] D"}),
         {{"[TESTLAB] is unknown to the 1995 format.", row(2)},
          {"[ISSUEDATE] is unknown to the 1995 format.", row(3)}}},
        {"1991",
         RemarkRule::Keywords,
         lines({kVersion1991, "[TEST] 1", "[SEARCH] office", "[_OWN] text"}),
         {{"[MANUFAC] is missing; the 1991 format requires it.", kNoRow},
          {"[SEARCH] is unknown to the 1991 format.", row(3)}}},
        {"1991 by its longer name",
         RemarkRule::Keywords,
         lines({"IESNA:LM-63-1991", "[TEST] 1"}),
         {{"[MANUFAC] is missing; the 1991 format requires it.", kNoRow}}},
        {"2002 by its later name, in small letters and with more behind it",
         RemarkRule::Keywords,
         lines({"ies:lm-63-2002 of a luminaire", "[TEST] 1", "[TESTLAB] L", "[ISSUEDATE] D", "[BLOCK] B"}),
         {{"[MANUFAC] is missing; the 2002 format requires it.", kNoRow},
          {"[BLOCK] is unknown to the 2002 format.", row(5)}}},
        {"1991, complete", RemarkRule::Keywords, lines({kVersion1991, "[TEST] 1", "[MANUFAC] M"}), {}},
        {"a later version", RemarkRule::Keywords, lines({"IES:LM-63-2019 ", "[DATE] D"}), {}},
        {"no version", RemarkRule::Keywords, lines({"Recessed luminaire"}), {}},
        {"no lines", RemarkRule::Keywords, lines({}), {}},
        {"text in another's brackets",
         RemarkRule::Keywords,
         lines({kVersion1991, "[OTHERS] x", "no [OTHER] x", "[OTHER", "[TEST] 1", "[MANUFAC] M"}),
         {}},
    }));

std::string lineOf(int characters)
{
    return "[OTHER] " + std::string(static_cast<std::size_t>(characters) - 8, 'x');
}

INSTANTIATE_TEST_SUITE_P(KeywordText, HeaderRemarks,
                         testing::ValuesIn(std::vector<RuleCase>{
                             {"TILT",
                              RemarkRule::KeywordText,
                              lines({kVersion2002, "[OTHER] TILTED lamp", "[OTHER] tilted lamp"}),
                              {{"Row 2 contains TILT; some programs stop there.", row(2)}}},
                             {"letters",
                              RemarkRule::KeywordText,
                              lines({kVersion2002, "[MANUFAC] Caf\u00e9", "[OTHER] ~"}),
                              {{"Row 2 has letters beyond ASCII; some programs garble them.", row(2)}}},
                             {"empty",
                              RemarkRule::KeywordText,
                              lines({kVersion2002, "", "[OTHER] text", "  "}),
                              {{"Row 2 is empty; some programs stop there.", row(2)},
                               {"Row 4 is empty; some programs stop there.", row(4)}}},
                             {"long in 2002",
                              RemarkRule::KeywordText,
                              lines({kVersion2002, lineOf(253), lineOf(254)}),
                              {{"Row 3 has 254 characters; some programs take only 253.", row(3)}}},
                             {"long in 1995",
                              RemarkRule::KeywordText,
                              lines({kVersion1995, lineOf(80), lineOf(81)}),
                              {{"Row 3 has 81 characters; some programs take only 80.", row(3)}}},
                             {"long in 1991",
                              RemarkRule::KeywordText,
                              lines({kVersion1991, lineOf(80), lineOf(81)}),
                              {{"Row 3 has 81 characters; some programs take only 80.", row(3)}}},
                             {"counted as characters",
                              RemarkRule::KeywordText,
                              lines({kVersion1991, lineOf(79) + "\u00e9"}),
                              {{"Row 2 has letters beyond ASCII; some programs garble them.", row(2)}}},
                             {"all at once",
                              RemarkRule::KeywordText,
                              lines({kVersion1991, lineOf(90) + "TILT \u00e9"}),
                              {{"Row 2 contains TILT; some programs stop there.", row(2)},
                               {"Row 2 has letters beyond ASCII; some programs garble them.", row(2)},
                               {"Row 2 has 96 characters; some programs take only 80.", row(2)}}},
                         }));

Change tilt(const OneBased<float> &angles, const OneBased<float> &factors, bool isIncluded = true)
{
    return [=](PhotometricRecord &record) {
        record.TiltIncl = isIncluded;
        record.NumTiltAngles = 3;
        record.TiltAngles = angles;
        record.TiltMultipliers = factors;
    };
}

constexpr RecordPlace factor(int i)
{
    return {RecordField::TiltMultipliers, i};
}

const RuleCase kPlainTilt{"", RemarkRule::TiltData, {}, {{"Many programs refuse tilt data.", {RecordField::TiltIncl}}}};

INSTANTIATE_TEST_SUITE_P(
    TiltData, HeaderRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"included", RemarkRule::TiltData, tilt({0, 30, 60}, {1, 1.5F, 0.5F}), kPlainTilt.remarks},
        {"a factor of 0",
         RemarkRule::TiltData,
         tilt({0, 30, 60}, {1, 0, 0.5F}),
         {{"Many programs refuse tilt data; the factor at 30 degrees is 0.", factor(2)}}},
        {"a large factor",
         RemarkRule::TiltData,
         tilt({0, 30, 60}, {1, 0.9F, 1.51F}),
         {{"Many programs refuse tilt data; the factor at 60 degrees is 1.51.", factor(3)}}},
        {"another first factor",
         RemarkRule::TiltData,
         tilt({0, 30, 60}, {0.95F, 1, 1}),
         {{"Many programs refuse tilt data; the factor at 0 degrees is 0.95, the first one should be 1.", factor(1)}}},
        {"not included", RemarkRule::TiltData, tilt({0, 30, 60}, {0.95F, 0, 2}, false), {}},
        {"fewer than counted", RemarkRule::TiltData, tilt({0, 30}, {1}), kPlainTilt.remarks},
    }));

}  // namespace
}  // namespace penwright::test
