#include "plot/PlotReading.h"

#include "PlotTest.h"

namespace penwright::test {
namespace {

/// A picture of one pixel for each candela around (0, 0), y down.
constexpr PlotScales kScales{{{0, 0}, 1, 1}, {{0, 0}, 1, 1}};

PlotCurves lobeCurves(float vertical = 45, PlotShape shape = PlotShape::Polar)
{
    const PlotTableCase table = plotTable(
        "", kTypeC, {0, 90, 180}, {0, 30, 60, 90},
        [](double h, double v) { return std::round((h == 180 ? 800 : 1000) * cosine(v)); }, 0, vertical);
    return plotCurves(table.record, table.cells, 0, vertical, shape);
}

std::string at(const PlotCurves &curves, double x, double y, const PlotScales &scales = kScales)
{
    const auto reading = readingAt(curves, scales, {x, y});
    return reading ? readingText(*reading) : "none";
}

TEST(PlotReading, isTheValueNearestToThePointer)
{
    const PlotCurves curves = lobeCurves(60);
    EXPECT_EQ(at(curves, 0, 1100), "H 0, V 0: 1000 cd");
    EXPECT_EQ(at(curves, 460, 760), "H 0, V 30: 866 cd");
    EXPECT_EQ(at(curves, 0.1, 0), "H 0, V 90: 0 cd");
}

TEST(PlotReading, onTheLeftHalfIsOneOfTheOppositePlane)
{
    EXPECT_EQ(at(lobeCurves(), -350, 600), "H 180, V 30: 693 cd");
}

TEST(PlotReading, isOfTheCurveWhoseLineIsNearestHoweverFarItsValuesAre)
{
    // The cone is a circle of four values; its line is right under the pointer, the plane's values are nearer.
    const PlotTableCase table = plotTable(
        "", kTypeC, {0, 90, 180, 270, 360}, {0, 90}, [](double, double v) { return v == 0 ? 100 : 60; }, 0, 90);
    const PlotCurves curves = plotCurves(table.record, table.cells, 0, 90);
    EXPECT_EQ(at(curves, 60 * cosine(50), -60 * cosine(40)), "H 90, V 90: 60 cd");
    EXPECT_EQ(at(curves, 60 * cosine(40), -60 * cosine(50)), "H 0, V 90: 60 cd");
}

TEST(PlotReading, onTheConeNamesTheDirectionThatTheListStandsFor)
{
    const PlotTableCase table = plotTable(
        "", kTypeC, {0, 90}, {0, 90}, [](double h, double) { return h == 0 ? 100 : 60; }, 0, 90);
    const PlotCurves curves = plotCurves(table.record, table.cells, 45, 90);
    EXPECT_EQ(at(curves, 0, 62), "H 270, V 90: 60 cd");
    EXPECT_EQ(at(curves, -99, 0), "H 180, V 90: 100 cd");
}

TEST(PlotReading, aGapIsNoValue)
{
    const PlotTableCase table = plotTable(
        "", kTypeB, {0}, {0, 30, 90}, [](double, double v) { return v == 30 ? 9 : -1; }, 0, 0);
    EXPECT_EQ(at(curvesOf(table), 0, -1000), "H 0, V 30: 9 cd");
}

TEST(PlotReading, withoutAValueThereIsNone)
{
    const PlotTableCase table = plotTable(
        "", kTypeC, {0}, {0, 90}, [](double, double) { return std::nullopt; }, 0, 0);
    EXPECT_EQ(at(curvesOf(table), 3, 3), "none");
    EXPECT_EQ(at({}, 3, 3), "none");
    EXPECT_FALSE(readingAfter({}, std::nullopt, PlotStep::Next));
}

TEST(PlotReading, inTheLinearShapeIsTheNearestToo)
{
    const PlotScales scales{{{0, 0}, 10, 1}, {{0, 0}, 5, 1}};
    EXPECT_EQ(at(lobeCurves(60, PlotShape::Linear), 10 * 30, -870, scales), "H 0, V 30: 866 cd");
    EXPECT_EQ(at(lobeCurves(60, PlotShape::Linear), 10 * -30, -690, scales), "H 180, V 30: 693 cd");
    EXPECT_EQ(at(lobeCurves(60, PlotShape::Linear), 5 * 270, -495, scales), "H 270, V 60: 500 cd");
}

TEST(PlotReading, isOfASlopingLineWhoseCornersAreFartherThanTheOtherCurve)
{
    // The plane's last piece falls from (850, -150) to (900, -100), where the cone lies level. The pointer is 3.5 from
    // that piece, 32 from its nearer end, and 20 from the cone.
    const PlotTableCase table = plotTable(
        "", kTypeC, {0, 90}, {0, 90}, [](double, double v) { return v == 0 ? 1000 : 100; }, 0, 90);
    const PlotCurves curves = plotCurves(table.record, table.cells, 0, 90, PlotShape::Linear);
    const PlotScales scales{{{0, 0}, 10, 1}, {{0, 0}, 5, 1}};
    EXPECT_EQ(at(curves, 875, -120, scales), "H 0, V 90: 100 cd");
    EXPECT_EQ(at(curves, 875, -105, scales), "H 180, V 90: 100 cd");
}

class PlotSteps : public testing::Test {
protected:
    std::string step(PlotStep step)
    {
        reading = readingAfter(curves, reading, step);
        return reading ? readingText(*reading) : "none";
    }

    PlotCurves curves = lobeCurves(60);
    std::optional<PlotReading> reading;
};

TEST_F(PlotSteps, leadFromTheOppositePlaneThroughNadirAndStopAtTheEnds)
{
    EXPECT_EQ(step(PlotStep::Next), "H 180, V 90: 0 cd");
    EXPECT_EQ(step(PlotStep::Previous), "H 180, V 90: 0 cd");
    EXPECT_EQ(step(PlotStep::Next), "H 180, V 60: 400 cd");
    EXPECT_EQ(step(PlotStep::Last), "H 0, V 90: 0 cd");
    EXPECT_EQ(step(PlotStep::Next), "H 0, V 90: 0 cd");
    EXPECT_EQ(step(PlotStep::Previous), "H 0, V 60: 500 cd");
    EXPECT_EQ(step(PlotStep::First), "H 180, V 90: 0 cd");
}

TEST_F(PlotSteps, leadToTheOtherCurveAndBack)
{
    step(PlotStep::Next);
    EXPECT_EQ(step(PlotStep::OtherCurve), "H 0, V 60: 500 cd");
    EXPECT_EQ(step(PlotStep::Next), "H 90, V 60: 500 cd");
    EXPECT_EQ(step(PlotStep::Last), "H 360, V 60: 500 cd");
    EXPECT_EQ(step(PlotStep::OtherCurve), "H 180, V 90: 0 cd");
}

TEST_F(PlotSteps, stayWhereThereIsNoOtherCurve)
{
    curves = curvesOf(plotTable(
        "", kTypeB, {0}, {0, 90}, [](double, double) { return 5; }, 0, 0));
    step(PlotStep::Next);
    step(PlotStep::Last);
    EXPECT_EQ(step(PlotStep::OtherCurve), "H 0, V 90: 5 cd");
}

TEST_F(PlotSteps, aPlaceStaysInAnotherPictureThatHasIt)
{
    step(PlotStep::Next);
    step(PlotStep::Last);
    EXPECT_EQ(readingText(*readingAgain(lobeCurves(30), *reading)), "H 0, V 90: 0 cd");
    const PlotCurves shorter = curvesOf(plotTable(
        "", kTypeB, {0}, {0, 90}, [](double, double) { return 5; }, 0, 0));
    EXPECT_FALSE(readingAgain(shorter, *reading));
    EXPECT_EQ(readingText(*readingAfter(shorter, reading, PlotStep::Next)), "H 0, V 0: 5 cd");
    reading->place = readingsOf(shorter, false).size();
    EXPECT_EQ(readingText(*readingAfter(shorter, reading, PlotStep::Last)), "H 0, V 0: 5 cd");
}

}  // namespace
}  // namespace penwright::test
