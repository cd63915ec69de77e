#include "RemarkTest.h"

namespace penwright::test {
namespace {

class DimensionRemarks : public testing::TestWithParam<RuleCase> {};

TEST_P(DimensionRemarks, areThese)
{
    expectRemarks(GetParam());
}

Change dimensions(const std::string &version, float width, float length, float height, std::int16_t units = kMeters)
{
    return [=](PhotometricRecord &record) {
        record.Keywords(1) = version;
        record.Width = width;
        record.Length = length;
        record.Height = height;
        record.UnitsType = units;
    };
}

const std::string kOtherShape = "use another shape or a rectangle.";
const std::string kOtherVersion = "use the 2002 version, another shape or a rectangle.";

RuleCase refused(const std::string &version, float w, float l, float h, const std::string &numbers,
                 const std::string &cure)
{
    return {version + numbers,
            RemarkRule::RefusedShape,
            dimensions(version, w, l, h),
            {{"Some programs refuse the dimensions " + numbers + ": " + cure, {RecordField::Width}}}};
}

RuleCase passed(const std::string &version, float w, float l, float h)
{
    return {version + std::to_string(w), RemarkRule::RefusedShape, dimensions(version, w, l, h), {}};
}

INSTANTIATE_TEST_SUITE_P(Shapes, DimensionRemarks,
                         testing::ValuesIn(std::vector<RuleCase>{
                             passed(kVersion2002, 0, 0, 0),
                             passed(kVersion2002, 0.6F, 1.2F, 0),
                             passed(kVersion2002, 0.6F, 1.2F, 0.1F),
                             passed(kVersion2002, -2, -2, 0),
                             passed(kVersion2002, -2, -3, 1),
                             passed(kVersion2002, -2, -2, -2),
                             passed(kVersion2002, -2, 3, -2),
                             passed(kVersion2002, 3, -2, -2),
                             passed(kVersion2002, -2, 0, -3),
                             passed(kVersion2002, -2, -2, -0.0F),
                             refused(kVersion2002, 2, 0, 0, "2 x 0 x 0", kOtherShape),
                             refused(kVersion2002, 0, -3, -0.5F, "0 x -3 x -0.5", kOtherShape),
                             refused(kVersion2002, -2, 0, 0, "-2 x 0 x 0", kOtherShape),
                             refused(kVersion2002, 0, 3, -0.2F, "0 x 3 x -0.2", kOtherShape),
                             refused(kVersion1995, -2, -2, 0, "-2 x -2 x 0", kOtherVersion),
                             refused(kVersion1995, 2, 0, 0, "2 x 0 x 0", kOtherShape),
                             refused(kVersion1991, 0, -3, -0.5F, "0 x -3 x -0.5", kOtherShape),
                             refused(kVersion1991, -2, -2, 3, "-2 x -2 x 3", kOtherVersion),
                             refused(kVersion1991, -2, -2, -2, "-2 x -2 x -2", kOtherVersion),
                             passed(kVersion1995, -2, 0, 0),
                             passed(kVersion1995, -2, 0, 3),
                             passed(kVersion1991, -2, 0, -2),
                             passed(kVersion1991, 0.6F, 1.2F, 0),
                             passed("IES:LM-63-2019", -2, -2, 0),
                             passed("IES:LM-63-2030", -2, -2, 0),
                             passed("IES:LM-63-2002", -2, -2, 0),
                             passed("IESNA:LM-63-1991", -2, 0, 0),
                             refused("IESNA86", -2, -2, 0, "-2 x -2 x 0", kOtherVersion),
                             refused("IESNA:LM-63-1986", -2, -2, 0, "-2 x -2 x 0", kOtherVersion),
                             refused("[TEST] of 1986", -2, -2, 0, "-2 x -2 x 0", kOtherVersion),
                         }));

RuleCase turned(const std::string &name, float width, float length, std::int16_t units, const std::string &side)
{
    return {
        name,
        RemarkRule::TurnedTable,
        dimensions(kVersion2002, width, length, 0, units),
        {{"The long side, " + side + ", lies along 90: is this table turned by 90 degrees?", {RecordField::Width}}}};
}

INSTANTIATE_TEST_SUITE_P(
    TurnedTable, DimensionRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        turned("in meters", 1.2F, 0.6F, kMeters, "1.2 m"),
        turned("in feet", 4, 2, kFeet, "4 ft"),
        turned("round", -4, -2, kMeters, "4 m"),
        turned("just too wide", 0.76F, 0.5F, kMeters, "0.76 m"),
        {"nearly square", RemarkRule::TurnedTable, dimensions(kVersion2002, 0.75F, 0.5F, 0), {}},
        {"without length", RemarkRule::TurnedTable, dimensions(kVersion2002, -2, 0, -2), {}},
        {"one plane",
         RemarkRule::TurnedTable,
         [](PhotometricRecord &record) {
             record = withTable(record, kTypeC, {0}, {0, 90}, [](double, double v) { return 100 - v; });
             record.Width = 3;
         },
         {}},
        {"type B",
         RemarkRule::TurnedTable,
         [](PhotometricRecord &record) {
             record.PhotometricType = kTypeB;
             record.Width = 3;
         },
         {}},
    }));

INSTANTIATE_TEST_SUITE_P(
    OddDimensions, DimensionRemarks,
    testing::ValuesIn(std::vector<RuleCase>{
        {"millimeters",
         RemarkRule::OddDimensions,
         dimensions(kVersion2002, 600, 1200, 5),
         {{"Width 600 m: millimeters?", {RecordField::Width}},
          {"Length 1,200 m: millimeters?", {RecordField::Length}}}},
        {"round",
         RemarkRule::OddDimensions,
         dimensions(kVersion2002, -2, -2, -5.01F),
         {{"Height 5.01 m: millimeters?", {RecordField::Height}}}},
        {"just not too large", RemarkRule::OddDimensions, dimensions(kVersion2002, 5, 5, 5), {}},
        {"inches",
         RemarkRule::OddDimensions,
         dimensions(kVersion2002, 24, 16.41F, 0, kFeet),
         {{"Width 24 ft: inches?", {RecordField::Width}}, {"Length 16.41 ft: inches?", {RecordField::Length}}}},
        {"large in feet", RemarkRule::OddDimensions, dimensions(kVersion2002, 16.4F, 16.4F, 0, kFeet), {}},
        {"none",
         RemarkRule::OddDimensions,
         dimensions(kVersion2002, 0, 0, -0.0F),
         {{"Without dimensions glare cannot be calculated.", {RecordField::Width}}}},
        {"one", RemarkRule::OddDimensions, dimensions(kVersion2002, 0, 0, 0.1F), {}},
    }));

}  // namespace
}  // namespace penwright::test
