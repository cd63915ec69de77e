#include "PlotTest.h"

namespace penwright::test {
namespace {

TEST(PlotDescription, namesBothCurvesWithTheirLargestValues)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0, 45, 90}, {0, 30}, {{5, 1234.5}, {5, 1200}, {5, 900}}, 45, 30));
    EXPECT_EQ(plotDescription(curves),
              "Vertical plane through horizontal angle 45: largest 1200 candela at 30 degrees; "
              "horizontal cone through vertical angle 30: largest 1234.5 candela at 0 degrees.");
}

TEST(PlotDescription, tellsWhenTheLargestStandsOpposite)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0, 180}, {0, 30, 60}, {{5, 6, 0.5}, {5, 6, 12.25}}, 0, 60));
    EXPECT_EQ(plotDescription(curves),
              "Vertical plane through horizontal angle 0: largest 12.25 candela at 60 degrees on the opposite side; "
              "horizontal cone through vertical angle 60: largest 12.25 candela at 180 degrees.");
}

TEST(PlotDescription, tellsOfNoValues)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0}, {0, 30}, {{kBlank, 1}}, 0, 0));
    EXPECT_EQ(plotDescription(curves),
              "Vertical plane through horizontal angle 0: largest 1 candela at 30 degrees; "
              "horizontal cone through vertical angle 0: no values.");
}

TEST(PlotDescription, ofTypeBHasNoCone)
{
    const auto curves = curvesOf(tableOf(kTypeB, {0, 90}, {0, 90}, {{1, 2}, {4, 5}}, 90, 0));
    EXPECT_EQ(plotDescription(curves), "Vertical plane through horizontal angle 90: largest 5 candela at 90 degrees.");
}

}  // namespace
}  // namespace penwright::test
