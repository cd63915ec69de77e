#include <algorithm>
#include <map>

#include "RemarkTest.h"
#include "support/RandomRecord.h"

namespace penwright::test {
namespace {

TEST(Remarks, aGoodRecordHasNone)
{
    EXPECT_EQ(textsOf(remarksOf(goodRecord())), std::vector<std::string>());
}

// One slip after the other in one file: what weighs most comes first.
TEST(Remarks, comeInTheOrderOfTheirWeight)
{
    PhotometricRecord record = goodRecord();
    setLumens(record, 800);
    record.Candela(2, 6) = 9000;
    record.InputWatts = 500;
    record.Width = 600;
    record.Keywords(3) = "[TESTLAB] ";
    EXPECT_EQ(textsOf(remarksOf(record)),
              (std::vector<std::string>{
                  "This looks like candela per kilolumen: should the multiplier be 10?",
                  "2.61 lm/W is unusual: check watts, lumens and multiplier.",
                  "The long side, 600 m, lies along 90: is this table turned by 90 degrees?",
                  "Width 600 m: millimeters?",
                  "[TESTLAB] is empty; the 2002 format requires it.",
                  "9,000 at V 25, H 22.5 stands out from its neighbours: a slip?",
              }));
}

TEST(Remarks, ofOneRuleAreTenAndACount)
{
    PhotometricRecord record =
        withTable(goodRecord(), kTypeC, {0}, anglesTo(180, 5), [](double, double v) { return int(v) % 10 ? 900 : 1; });
    std::vector<std::string> texts;
    for (const Remark &remark : remarksOf(record))
        if (remark.rule == RemarkRule::Spike)
            texts.push_back(remark.text);
    ASSERT_EQ(texts.size(), kMostOfOneRule);
    EXPECT_EQ(texts.at(8), "900 at V 85, H 0 stands out from its neighbours: a slip?");
    EXPECT_EQ(texts.at(9), "900 at V 95, H 0 stands out from its neighbours: a slip? (and 8 more)");
}

// Absolute candela with a multiplier, an LED luminaire as one lamp, and the tails of single precision are all right.
TEST(Remarks, areNotMadeOnWhatIsRight)
{
    PhotometricRecord record = goodRecord();
    record.LumensPerLamp = -1;
    record.CandelaMultiplier = 0.1F;
    setLumens(record, 7854);
    record.NumLamps = 36;
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(h, v) = double{static_cast<float>(record.Candela(h, v) + 0.3)} - (v == 19 ? 0.3 : 0);
    EXPECT_EQ(textsOf(remarksOf(record)), std::vector<std::string>());
}

TEST(Remarks, ofARuleLeadToItsHeading)
{
    const std::map<RemarkRule, std::string_view> anchors{
        {RemarkRule::MoreThanLamps, "more-than-lamps"},
        {RemarkRule::PerKilolumen, "per-kilolumen"},
        {RemarkRule::OddEfficacy, "efficacy"},
        {RemarkRule::FullEfficiency, "efficiency"},
        {RemarkRule::BallastTwice, "ballast"},
        {RemarkRule::RefusedShape, "shape"},
        {RemarkRule::AngleList, "angle-list"},
        {RemarkRule::FirstAndLastPlane, "first-last"},
        {RemarkRule::StopsAtHorizon, "horizon"},
        {RemarkRule::TurnedTable, "turned"},
        {RemarkRule::OddDimensions, "dimensions"},
        {RemarkRule::Keywords, "keywords"},
        {RemarkRule::KeywordText, "keyword-text"},
        {RemarkRule::TiltData, "tilt"},
        {RemarkRule::TypeBList, "type-b"},
        {RemarkRule::Spike, "spike"},
        {RemarkRule::CoarseSteps, "coarse-steps"},
        {RemarkRule::ThousandsSign, "thousands"},
    };
    EXPECT_EQ(anchors.size(), kRemarkRuleCount);
    for (const auto &[rule, anchor] : anchors)
        EXPECT_EQ(anchorOf(rule), anchor);
}

double lambertian(double, double v)
{
    return 1000 * cosine(v);
}

double nan(double, double)
{
    return std::nan("");
}

double endless(double, double v)
{
    return v == 45 ? 1 : HUGE_VAL;
}

double huge(double, double)
{
    return 1e38;
}

struct BadRecordCase {
    std::string name;
    Change damage;
};

class BadRecord : public testing::TestWithParam<BadRecordCase> {};

// Whatever the table is, the remarks on lamps, keywords and dimensions are still made, and nothing breaks.
TEST_P(BadRecord, isStillRemarkedOn)
{
    PhotometricRecord record = goodRecord();
    record.Keywords(3) = "[TESTLAB] ";
    GetParam().damage(record);
    const std::vector<std::string> texts = textsOf(remarksOf(record));
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "[TESTLAB] is empty; the 2002 format requires it."), 1)
        << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Damages, BadRecord,
    testing::ValuesIn(std::vector<BadRecordCase>{
        {"fewer vertical angles", [](PhotometricRecord &r) { r.VertAngles.resize(3); }},
        {"fewer horizontal angles", [](PhotometricRecord &r) { r.HorAngles.clear(); }},
        {"no values", [](PhotometricRecord &r) { r.Candela.reset(0, 0); }},
        {"negative counts", [](PhotometricRecord &r) { r.NumHorzAngles = r.NumVertAngles = -5; }},
        {"more than counted", [](PhotometricRecord &r) { r.NumHorzAngles = r.NumVertAngles = 1; }},
        {"zeros", [](PhotometricRecord &r) { r.Candela.reset(5, 19); }},
        {"one angle of each", [](PhotometricRecord &r) { r = withTable(r, kTypeC, {0}, {0}, lambertian); }},
        {"one angle of each in type B", [](PhotometricRecord &r) { r = withTable(r, kTypeB, {0}, {0}, lambertian); }},
        {"equal angles",
         [](PhotometricRecord &r) {
             r = withTable(r, kTypeC, {0, 0, 0}, {90, 90, 90}, lambertian);
         }},
        {"no numbers",
         [](PhotometricRecord &r) {
             r = withTable(r, kTypeC, {0, 90}, {0, 45, 90}, nan);
         }},
        {"angles that are none", [](PhotometricRecord &r) { r.VertAngles(2) = r.HorAngles(1) = std::nanf(""); }},
        {"endless",
         [](PhotometricRecord &r) {
             r = withTable(r, kTypeC, {0, 90}, {0, 45, 90}, endless);
         }},
        {"huge",
         [](PhotometricRecord &r) {
             r = withTable(r, kTypeC, {0, 360}, {0, 45, 90}, huge);
         }},
        {"tilt without data", [](PhotometricRecord &r) { r.TiltIncl = true, r.NumTiltAngles = 9; }},
    }));

TEST(Remarks, areMadeOnAnyRecord)
{
    RandomRecord random(1);
    for (int i = 0; i < 3000; ++i) {
        const PhotometricRecord record = random.make();
        const auto remarks = remarksOf(record);
        EXPECT_TRUE(std::is_sorted(remarks.begin(), remarks.end(),
                                   [](const Remark &a, const Remark &b) { return a.rule < b.rule; }));
        for (const Remark &remark : remarks)
            EXPECT_NE(remark.text, "");
    }
}

}  // namespace
}  // namespace penwright::test
