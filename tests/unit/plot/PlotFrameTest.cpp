#include "plot/PlotFrame.h"

#include <gtest/gtest.h>

#include <cmath>

namespace penwright::test {
namespace {

PlotFrame frameIn(const PlotBox &area, double largest = 0)
{
    const auto none = [](std::string_view) { return 0.0; };
    return plotFrame(area, {.figureWidth = none, .letterSize = {}}, largest);
}

TEST(PlotFrame, standsInTheMiddleOfAPixelWithAWholeRadius)
{
    for (const double side : {200.0, 201.0, 202.5}) {
        const PlotFrame frame = frameIn({10, 20, side, side});
        EXPECT_EQ(frame.centre.x - std::floor(frame.centre.x), 0.5) << side;
        EXPECT_EQ(frame.centre.y - std::floor(frame.centre.y), 0.5) << side;
        EXPECT_NEAR(frame.centre.x, 10 + side / 2, 0.5);
        EXPECT_NEAR(frame.centre.y, 20 + side / 2, 0.5);
        EXPECT_EQ(frame.radius, std::floor(frame.radius));
    }
}

TEST(PlotFrame, shorterSideSettlesTheRadius)
{
    EXPECT_EQ(frameIn({0, 0, 200, 600}).radius, frameIn({0, 0, 200, 300}).radius);
    EXPECT_EQ(frameIn({0, 0, 600, 200}).radius, frameIn({0, 0, 300, 200}).radius);
    EXPECT_EQ(frameIn({0, 0, 1, 1}).radius, 0);
}

TEST(PlotFrame, largestCandelaIsAtTheOuterRing)
{
    const PlotFrame frame = frameIn({0, 0, 300, 300}, 250);
    const PlotPixel right = frame.placeOf({250, 0});
    EXPECT_DOUBLE_EQ(right.x, frame.centre.x + frame.radius);
    EXPECT_DOUBLE_EQ(right.y, frame.centre.y);
    const PlotPixel top = frame.placeOf({0, 125});
    EXPECT_DOUBLE_EQ(top.x, frame.centre.x);
    EXPECT_DOUBLE_EQ(top.y, frame.centre.y - frame.radius / 2);
}

TEST(PlotFrame, degreesTurnLeftFromTheRight)
{
    const PlotFrame frame = frameIn({0, 0, 300, 300});
    EXPECT_NEAR(frame.polar(10, 0).x, frame.centre.x + 10, 1e-9);
    EXPECT_NEAR(frame.polar(10, 90).y, frame.centre.y - 10, 1e-9);
    EXPECT_NEAR(frame.polar(10, 180).x, frame.centre.x - 10, 1e-9);
}

TEST(PlotFrame, withoutAValueThereIsNoScale)
{
    EXPECT_EQ(frameIn({0, 0, 300, 300}, 0).perCandela, 0);
}

}  // namespace
}  // namespace penwright::test
