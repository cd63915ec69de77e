#include "RemarkTest.h"

namespace penwright::test {
namespace {

class LumenRemarks : public testing::TestWithParam<RuleCase> {};

TEST_P(LumenRemarks, areThese)
{
    expectRemarks(GetParam());
}

Change lumens(double table, float lamps = 10000, float ballast = 1)
{
    return [=](PhotometricRecord &record) {
        setLumens(record, table);
        record.LumensPerLamp = lamps;
        record.CandelaMultiplier = 1 / ballast;
        record.BallastFactor = ballast;
    };
}

Change watts(float input, double table = 7854, float lamps = 10000)
{
    return [=](PhotometricRecord &record) {
        lumens(table, lamps)(record);
        record.InputWatts = input;
    };
}

Change absolute(float ballast, float multiplier)
{
    return [=](PhotometricRecord &record) {
        record.LumensPerLamp = -1;
        record.BallastFactor = ballast;
        record.CandelaMultiplier = multiplier;
    };
}

constexpr RecordPlace kLumens{RecordField::LumensPerLamp};
constexpr RecordPlace kMultiplier{RecordField::CandelaMultiplier};
constexpr RecordPlace kWatts{RecordField::InputWatts};

INSTANTIATE_TEST_SUITE_P(
    MoreThanLamps, LumenRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"more",
         RemarkRule::MoreThanLamps,
         lumens(12400, 8900),
         {{"The table gives 12,400 lm, more than the lamps' 8,900 lm: check lumens, lamps and multiplier.", kLumens}}},
        {"just above",
         RemarkRule::MoreThanLamps,
         lumens(10201),
         {{"The table gives 10,201 lm, more than the lamps' 10,000 lm: check lumens, lamps and multiplier.", kLumens}}},
        {"just below", RemarkRule::MoreThanLamps, lumens(10199), {}},
        {"less by the ballast",
         RemarkRule::MoreThanLamps,
         lumens(9300, 10000, 0.9F),
         {{"The table gives 9,300 lm, more than the lamps' 9,000 lm: check lumens, lamps and multiplier.", kLumens}}},
        {"just below by the ballast", RemarkRule::MoreThanLamps, lumens(9170, 10000, 0.9F), {}},
        {"absolute", RemarkRule::MoreThanLamps, lumens(12400, -1), {}},
    }));

INSTANTIATE_TEST_SUITE_P(
    PerKilolumen, LumenRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"per kilolumen",
         RemarkRule::PerKilolumen,
         lumens(785, 8900),
         {{"This looks like candela per kilolumen: should the multiplier be 8.9?", kMultiplier}}},
        {"just a kilolumen",
         RemarkRule::PerKilolumen,
         lumens(1009, 1501),
         {{"This looks like candela per kilolumen: should the multiplier be 1.501?", kMultiplier}}},
        {"lamps too weak", RemarkRule::PerKilolumen, lumens(1009, 1500), {}},
        {"more than a kilolumen", RemarkRule::PerKilolumen, lumens(1011, 1600), {}},
        {"hardly any light",
         RemarkRule::PerKilolumen,
         lumens(299, 1001),
         {{"This looks like candela per kilolumen: should the multiplier be 1.001?", kMultiplier}}},
        {"of a kilolumen, which candela are already", RemarkRule::PerKilolumen, lumens(299, 1000), {}},
        {"of many digits",
         RemarkRule::PerKilolumen,
         lumens(785, 12350),
         {{"This looks like candela per kilolumen: should the multiplier be 12.35?", kMultiplier}}},
        {"of thousands",
         RemarkRule::PerKilolumen,
         lumens(785, 1e6F),
         {{"This looks like candela per kilolumen: should the multiplier be 1000?", kMultiplier}}},
        {"enough light", RemarkRule::PerKilolumen, lumens(3001), {}},
        {"too little light",
         RemarkRule::PerKilolumen,
         lumens(2999),
         {{"This looks like candela per kilolumen: should the multiplier be 10?", kMultiplier}}},
        {"a multiplier", RemarkRule::PerKilolumen, lumens(785, 8900, 0.5F), {}},
        {"absolute", RemarkRule::PerKilolumen, lumens(785, -1), {}},
        {"no light at all", RemarkRule::PerKilolumen, lumens(0), {}},
    }));

INSTANTIATE_TEST_SUITE_P(OddEfficacy, LumenRemarks,
                         testing::ValuesIn(std::vector<RuleCase>{
                             {"weak",
                              RemarkRule::OddEfficacy,
                              watts(790),
                              {{"9.94 lm/W is unusual: check watts, lumens and multiplier.", kWatts}}},
                             {"just enough", RemarkRule::OddEfficacy, watts(785), {}},
                             {"strong",
                              RemarkRule::OddEfficacy,
                              watts(34),
                              {{"231 lm/W is unusual: check watts, lumens and multiplier.", kWatts}}},
                             {"just not too strong", RemarkRule::OddEfficacy, watts(34.2F), {}},
                             {"no watts", RemarkRule::OddEfficacy, watts(0), {}},
                             {"weak for 1000 lm",
                              RemarkRule::OddEfficacy,
                              watts(16, 785, 1000),
                              {{"49.1 lm/W is unusual: check watts, lumens and multiplier.", kWatts}}},
                             {"just enough for 1000 lm", RemarkRule::OddEfficacy, watts(15.6F, 785, 1000), {}},
                             {"weak, but of 1001 lm", RemarkRule::OddEfficacy, watts(16, 785, 1001), {}},
                             {"absolute",
                              RemarkRule::OddEfficacy,
                              watts(790, 7854, -1),
                              {{"9.94 lm/W is unusual: check watts, lumens and multiplier.", kWatts}}},
                             {"no light at all",
                              RemarkRule::OddEfficacy,
                              watts(100, 0),
                              {{"0 lm/W is unusual: check watts, lumens and multiplier.", kWatts}}},
                         }));

INSTANTIATE_TEST_SUITE_P(FullEfficiency, LumenRemarks,
                         testing::ValuesIn(std::vector<RuleCase>{
                             {"full",
                              RemarkRule::FullEfficiency,
                              lumens(10000),
                              {{"Efficiency is 100 %: for a luminaire measured as a whole write -1 lumens.", kLumens}}},
                             {"nearly full",
                              RemarkRule::FullEfficiency,
                              lumens(9801),
                              {{"Efficiency is 98 %: for a luminaire measured as a whole write -1 lumens.", kLumens}}},
                             {"less", RemarkRule::FullEfficiency, lumens(9799), {}},
                             {"a little more",
                              RemarkRule::FullEfficiency,
                              lumens(10099),
                              {{"Efficiency is 101 %: for a luminaire measured as a whole write -1 lumens.", kLumens}}},
                             {"more", RemarkRule::FullEfficiency, lumens(10101), {}},
                             {"absolute", RemarkRule::FullEfficiency, lumens(10000, -1), {}},
                             {"nothing of nothing", RemarkRule::FullEfficiency, lumens(0, 0), {}},
                         }));

INSTANTIATE_TEST_SUITE_P(
    BallastTwice, LumenRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"absolute",
         RemarkRule::BallastTwice,
         absolute(0.9F, 1),
         {{"Absolute values already contain the ballast: write 1, not 0.9.", {RecordField::BallastFactor}}}},
        {"absolute with a multiplier", RemarkRule::BallastTwice, absolute(1, 2.5F), {}},
        {"relative", RemarkRule::BallastTwice, lumens(7854, 10000, 0.9F), {}},
    }));

}  // namespace
}  // namespace penwright::test
