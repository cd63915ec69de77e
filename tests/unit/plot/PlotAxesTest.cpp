#include "plot/PlotAxes.h"

#include "PlotTest.h"

namespace penwright::test {
namespace {

double even(double, double)
{
    return 7;
}

PlotCurves linearOf(std::int16_t type, const std::vector<float> &horizontal, const std::vector<float> &vertical,
                    float h = 0)
{
    const PlotTableCase table = plotTable("", type, horizontal, vertical, even, h, vertical.front());
    return plotCurves(table.record, table.cells, table.horizontal, table.vertical, PlotShape::Linear);
}

struct AxisCase {
    const char *name;
    std::int16_t type;
    std::vector<float> horizontal;
    std::vector<float> vertical;
    PlotAxis plane;
    PlotAxis cone;
};

void PrintTo(const AxisCase &row, std::ostream *out)
{
    *out << row.name;
}

class PlotAxes : public testing::TestWithParam<AxisCase> {};

void expectAxis(const PlotAxis &axis, const PlotAxis &expected)
{
    EXPECT_EQ(axis.first, expected.first);
    EXPECT_EQ(axis.last, expected.last);
    EXPECT_EQ(axis.step, expected.step);
}

TEST_P(PlotAxes, areThoseOfTheListedAngles)
{
    const PlotCurves curves = linearOf(GetParam().type, GetParam().horizontal, GetParam().vertical);
    expectAxis(planeAxis(curves), GetParam().plane);
    expectAxis(coneAxis(curves), GetParam().cone);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, PlotAxes,
    testing::Values(
        AxisCase{"a downlight has its opposite plane on the left",
                 kTypeC,
                 {0, 90},
                 {0, 45, 90},
                 {-90, 90, 30},
                 {0, 360, 45}},
        AxisCase{"up to the zenith", kTypeC, {0, 180}, {0, 180}, {-180, 180, 45}, {0, 360, 45}},
        AxisCase{"an opposite plane that is not known", kTypeC, {0, 60}, {0, 60}, {0, 60, 10}, {0, 360, 45}},
        AxisCase{
            "a list that starts at 90 goes around from there", kTypeC, {0, 90}, {0, 90}, {-90, 90, 30}, {0, 360, 45}},
        AxisCase{"type B as listed", kTypeB, {0}, {-90, 0, 90}, {-90, 90, 30}, {0, 360, 45}},
        AxisCase{"type B on one side", kTypeB, {0}, {0, 40}, {0, 40, 5}, {0, 360, 45}},
        AxisCase{"one angle has a little room", kTypeB, {0}, {12}, {11, 13, 1}, {0, 360, 45}},
        AxisCase{"one angle down", kTypeC, {0}, {0}, {-1, 1, 1}, {0, 360, 45}}));

TEST(PlotAxis, aConeGoesOnceAroundFromItsFirstAngle)
{
    expectAxis(coneAxis(linearOf(kTypeC, {90, 180, 270}, {0, 90}, 90)), {90, 450, 45});
}

TEST(PlotAxis, withoutCurvesIsHalfATurnAndAWholeOne)
{
    expectAxis(planeAxis({}), {-90, 90, 30});
    expectAxis(coneAxis({}), {0, 360, 45});
}

TEST(PlotAxis, figuresStandAtMultiplesOfTheStep)
{
    EXPECT_EQ(figuredAngles({-90, 90, 30}), (std::vector<double>{-90, -60, -30, 0, 30, 60, 90}));
    EXPECT_EQ(figuredAngles({7, 21, 5}), (std::vector<double>{10, 15, 20}));
    EXPECT_EQ(figuredAngles({90, 450, 45}).size(), 9U);
}

TEST(PlotAxis, angleListsOfNoLuminaireHaveFewFiguresToo)
{
    for (const float last : {0.5F, 1000.0F, 1e6F, 3e38F}) {
        const PlotAxis axis = planeAxis(linearOf(kTypeB, {0}, {0, last}));
        EXPECT_GT(axis.step, 0) << last;
        EXPECT_GE(figuredAngles(axis).size(), 1U) << last;
        EXPECT_LE(figuredAngles(axis).size(), 9U) << last;
    }
}

TEST(PlotAxis, directionsAroundTheCircleAreHorizontalAngles)
{
    const std::vector<std::pair<double, double>> rows{{0, 0}, {360, 360}, {450, 90}, {-90, 270}, {765, 45}};
    for (const auto &[direction, angle] : rows)
        EXPECT_EQ(horizontalAngle(direction), angle) << direction;
}

}  // namespace
}  // namespace penwright::test
