#include "review/Beam.h"
#include "review/Photometry.h"
#include "ReviewTest.h"

namespace penwright::test {
namespace {

std::vector<BeamWidth> widthsOf(std::int16_t type, const std::vector<float> &horizontal,
                                const std::vector<float> &vertical, const Solid &solid)
{
    const PhotometricRecord record = withTable(plainRecord(), type, horizontal, vertical, solid);
    return photometryOf(record).planes;
}

/// Falls from the axis in a straight line to 0 at 40 degrees: half at 20, a tenth at 36.
double tent(double, double v)
{
    return std::max(0.0, 1000 - 25 * std::fabs(v));
}

void expectWidth(const BeamWidth &width, const std::string &plane, double beam, double field)
{
    EXPECT_EQ(width.plane, plane);
    ASSERT_TRUE(width.beam.isKnown()) << width.beam.reason();
    ASSERT_TRUE(width.field.isKnown()) << width.field.reason();
    EXPECT_NEAR(width.beam.value(), beam, 1e-4);
    EXPECT_NEAR(width.field.value(), field, 1e-4);
}

TEST(Beam, isMeasuredOnBothSidesOfTheAxis)
{
    for (const auto &horizontal : {std::vector<float>{0}, anglesTo(90, 30), anglesTo(180, 30), anglesTo(360, 30)}) {
        const auto widths = widthsOf(kTypeC, horizontal, anglesTo(90, 5), tent);
        expectWidth(widths.at(0), "in plane 0-180", 40, 72);
        expectWidth(widths.at(1), "in plane 90-270", 40, 72);
    }
}

TEST(Beam, goesInProportionBetweenTheAngles)
{
    expectWidth(widthsOf(kTypeC, {0}, {0, 8, 40, 90}, tent).at(0), "in plane 0-180", 40, 72);
}

TEST(Beam, ofEachPlaneIsItsOwn)
{
    const auto oval = [](double h, double v) { return tent(0, v * (h == 90 ? 2 : 1)); };
    const auto widths = widthsOf(kTypeC, {0, 90}, anglesTo(90, 1), oval);
    expectWidth(widths.at(0), "in plane 0-180", 40, 72);
    expectWidth(widths.at(1), "in plane 90-270", 20, 36);
}

TEST(Beam, ofAPlaneBetweenTheListedOnesIsMeantInProportion)
{
    const auto rising = [](double h, double v) { return tent(0, v) * (1 + h / 180); };
    const auto widths = widthsOf(kTypeC, {0, 60, 180}, anglesTo(90, 1), rising);
    expectWidth(widths.at(1), "in plane 90-270", 40, 72);
}

TEST(Beam, isThatAroundTheLargestValueOffTheAxis)
{
    const auto aside = [](double h, double v) { return tent(0, (h == 0 ? v : -v) - 50); };
    expectWidth(widthsOf(kTypeC, {0, 90, 180}, anglesTo(90, 1), aside).at(0), "in plane 0-180", 40, 72);
}

TEST(Beam, upwardsGoesThroughTheZenith)
{
    const auto up = [](double, double v) { return tent(0, 180 - v); };
    expectWidth(widthsOf(kTypeC, {0}, anglesTo(180, 5, 90), up).at(0), "in plane 0-180", 40, 72);
    expectWidth(widthsOf(kTypeC, {0}, anglesTo(180, 5), up).at(0), "in plane 0-180", 40, 72);
}

TEST(Beam, endsWithTheList)
{
    const auto even = [](double, double) { return 500; };
    expectWidth(widthsOf(kTypeC, {0}, anglesTo(90, 5), even).at(0), "in plane 0-180", 180, 180);
    expectWidth(widthsOf(kTypeC, {0}, {30, 60}, even).at(0), "in plane 0-180", 30, 30);
}

TEST(Beam, ofASphereIsNone)
{
    const auto widths = widthsOf(kTypeC, {0, 90}, anglesTo(180, 5), [](double, double) { return 500; });
    for (const BeamWidth &width : widths)
        EXPECT_EQ(width.beam.reason(), "The light falls that far nowhere in this plane.");
}

TEST(Beam, ofTypeBIsThatOfBothItsAxes)
{
    const auto floodlight = [](double h, double v) { return tent(0, h) * tent(0, 2 * v) / 1000; };
    for (const float first : {-90.0F, 0.0F}) {
        const auto widths = widthsOf(kTypeB, anglesTo(90, 5, first), anglesTo(90, 1, first), floodlight);
        expectWidth(widths.at(0), "in the vertical plane", 20, 36);
        expectWidth(widths.at(1), "in the horizontal plane", 40, 72);
    }
}

TEST(Beam, knowsTheStepsAtTheLargestValue)
{
    const BeamWidth width =
        widthsOf(kTypeC, {0}, {0, 2, 5, 12, 20, 90}, [](double, double v) { return v == 5 ? 900 : 10; }).at(0);
    EXPECT_EQ(width.largestAt, 3);
    EXPECT_EQ(width.step, 7);
}

struct NoBeamCase {
    std::vector<float> horizontal;
    std::vector<float> vertical;
    double value;
    std::string reason;
};

class NoBeam : public testing::TestWithParam<NoBeamCase> {};

TEST_P(NoBeam, saysWhy)
{
    const auto widths =
        widthsOf(kTypeC, GetParam().horizontal, GetParam().vertical, [](double, double) { return GetParam().value; });
    EXPECT_EQ(widths.at(1).beam.reason(), GetParam().reason);
    EXPECT_EQ(widths.at(1).field.reason(), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(Tables, NoBeam,
                         testing::ValuesIn(std::vector<NoBeamCase>{
                             {{0}, {0, 90}, 0, "No value of this plane is above 0."},
                             {{0}, {0}, 1, "This plane has one value only."},
                             {{0, 45}, {0, 90}, 1, "The lists do not hold this plane."},
                             {{0}, {90, 0}, 1, "The vertical angles do not rise."},
                             {{0}, {}, 1, "The table has no values."},
                         }));

}  // namespace
}  // namespace penwright::test
