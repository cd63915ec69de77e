#include "PlotTest.h"

#include <limits>

#include "platform/RunTimeError.h"

namespace penwright::test {
namespace {

// Directions of the corners below: nadir is 270 or -90, the horizontal right 0, left 180, the zenith 90.

TEST(PlotCurves, oneHorizontalAngleIsTheSameAllAround)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0}, {0, 45, 90}, {{100, 80, 20}}, 0, 45));
    expectRuns(curves.plane, {{{-90, 100}, {-45, 80}, {0, 20}}, {{270, 100}, {225, 80}, {180, 20}}});
    expectRuns(curves.cone, {{{0, 80}, {360, 80}}});
    EXPECT_EQ(curves.largest(), 100);
}

TEST(PlotCurves, oneHorizontalAngleAtNinetyIsTheSameAllAround)
{
    const auto curves = curvesOf(tableOf(kTypeC, {90}, {90, 180}, {{50, 60}}, 90, 180));
    expectRuns(curves.plane, {{{0, 50}, {90, 60}}, {{180, 50}, {90, 60}}});
    expectRuns(curves.cone, {{{90, 60}, {450, 60}}});
}

TEST(PlotCurves, quadrantsAreMirroredTwice)
{
    const auto table = tableOf(kTypeC, {0, 30, 90}, {0, 90}, {{10, 1}, {10, 2}, {10, 4}}, 30, 90);
    const auto curves = curvesOf(table);
    expectRuns(curves.plane, {{{-90, 10}, {0, 2}}, {{270, 10}, {180, 2}}});
    expectRuns(curves.cone, {{{0, 1}, {30, 2}, {90, 4}, {150, 2}, {180, 1}, {210, 2}, {270, 4}, {330, 2}, {360, 1}}});
}

TEST(PlotCurves, quadrantsMayStartAtNinety)
{
    const auto curves = curvesOf(tableOf(kTypeC, {90, 120, 180}, {0, 90}, {{10, 1}, {10, 2}, {10, 4}}, 120, 90));
    expectRuns(curves.plane, {{{-90, 10}, {0, 2}}, {{270, 10}, {180, 2}}});
    expectRuns(curves.cone,
               {{{90, 1}, {120, 2}, {180, 4}, {240, 2}, {270, 1}, {300, 2}, {360, 4}, {420, 2}, {450, 1}}});
}

TEST(PlotCurves, halfACircleIsMirroredAtItsEnds)
{
    const auto table = tableOf(kTypeC, {0, 60, 180}, {0, 90}, {{8, 1}, {8, 3}, {8, 7}}, 60, 90);
    const auto curves = curvesOf(table);
    // 60 + 180 is the mirror of 120, half way from 60 to 180.
    expectRuns(curves.plane, {{{-90, 8}, {0, 3}}, {{270, 8}, {180, 5}}});
    expectRuns(curves.cone, {{{0, 1}, {60, 3}, {180, 7}, {300, 3}, {360, 1}}});
}

TEST(PlotCurves, halfACircleFromNinetyIsMirroredAtNinety)
{
    const auto table = tableOf(kTypeC, {90, 180, 270}, {0, 90}, {{8, 1}, {8, 3}, {8, 7}}, 90, 90);
    const auto curves = curvesOf(table);
    expectRuns(curves.plane, {{{-90, 8}, {0, 1}}, {{270, 8}, {180, 7}}});
    expectRuns(curves.cone, {{{90, 1}, {180, 3}, {270, 7}, {360, 3}, {450, 1}}});
    EXPECT_EQ(curves.plane.largest->candela, 8);
}

TEST(PlotCurves, aFullCircleIsDrawnAsGiven)
{
    const auto table =
        tableOf(kTypeC, {0, 90, 180, 270, 360}, {0, 180}, {{6, 1}, {6, 2}, {6, 3}, {6, 4}, {6, 5}}, 90, 180);
    const auto curves = curvesOf(table);
    expectRuns(curves.plane, {{{-90, 6}, {90, 2}}, {{270, 6}, {90, 4}}});
    expectRuns(curves.cone, {{{0, 1}, {90, 2}, {180, 3}, {270, 4}, {360, 5}}});
}

TEST(PlotCurves, theLastPlaneOfAFullCircleIsItsOwn)
{
    const auto table = tableOf(kTypeC, {0, 180, 360}, {0, 90}, {{6, 1}, {6, 2}, {6, 5}}, 360, 0);
    expectRuns(curvesOf(table).plane, {{{-90, 6}, {0, 5}}, {{270, 6}, {180, 2}}});
}

TEST(PlotCurves, whatAListFromNinetyLeavesOutIsAGap)
{
    auto table = tableOf(kTypeC, {90, 180, 360}, {0, 90}, {{6, 1}, {6, 2}, {6, 5}}, 180, 90);
    const auto curves = curvesOf(table);
    // The opposite of 180 is 0, listed as 360.
    expectRuns(curves.plane, {{{-90, 6}, {0, 2}}, {{270, 6}, {180, 5}}});
    expectRuns(curves.cone, {{{90, 1}, {180, 2}, {360, 5}}});
    // Opposite of 225 would be 45: nothing is known there.
    table.horizontal = 225;
    EXPECT_EQ(curvesOf(table).plane.runs.size(), 1U);
}

TEST(PlotCurves, theOppositeBetweenTwoListedAnglesGoesInProportion)
{
    const auto table =
        tableOf(kTypeC, {0, 90, 180, 240, 360}, {0, 90}, {{6, 1}, {6, 0}, {6, 0}, {6, 10}, {6, 22}}, 90, 90);
    // 270 is a quarter of the way from 240 to 360.
    expectRuns(curvesOf(table).plane, {{{-90, 6}, {0, 0}}, {{270, 6}, {180, 13}}});
}

TEST(PlotCurves, theOppositeBesideABlankIsAGap)
{
    auto table =
        tableOf(kTypeC, {0, 90, 180, 240, 360}, {0, 90}, {{6, 1}, {6, 0}, {6, 0}, {6, kBlank}, {6, 22}}, 90, 90);
    expectRuns(curvesOf(table).plane, {{{-90, 6}, {0, 0}}, {{270, 6}}});
}

TEST(PlotCurves, typeBIsOneCurveFromTheRight)
{
    const auto curves = curvesOf(tableOf(kTypeB, {-90, 0, 90}, {-90, 0, 90}, {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, 0, 90));
    expectRuns(curves.plane, {{{-90, 4}, {0, 5}, {90, 6}}});
    expectRuns(curves.cone, {});
    EXPECT_FALSE(curves.typeC);
    EXPECT_EQ(curves.largest(), 6);
}

TEST(PlotCurves, typeBFromZeroIsNotMirrored)
{
    const auto curves = curvesOf(tableOf(kTypeB, {0, 90}, {0, 90}, {{1, 2}, {4, 5}}, 90, 0));
    expectRuns(curves.plane, {{{0, 4}, {90, 5}}});
}

TEST(PlotCurves, anyOtherTypeIsDrawnLikeTypeB)
{
    for (const std::int16_t type : {std::int16_t{0}, std::int16_t{3}, std::int16_t{-7}}) {
        const auto curves = curvesOf(tableOf(type, {0, 90}, {0, 90}, {{1, 2}, {4, 5}}, 90, 0));
        expectRuns(curves.plane, {{{0, 4}, {90, 5}}});
        expectRuns(curves.cone, {});
    }
}

TEST(PlotCurves, oneValueIsAPointOnEitherSideAndACircle)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0}, {90}, {{100}}, 0, 90));
    expectRuns(curves.plane, {{{0, 100}}, {{180, 100}}});
    expectRuns(curves.cone, {{{0, 100}, {360, 100}}});
}

TEST(PlotCurves, aSpikeReachesItsNeighboursAndNoFurther)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0, 180}, {0, 10, 20, 90}, {{0, 500, 0, 0}, {0, 0, 0, 0}}, 0, 10));
    expectRuns(curves.plane, {{{-90, 0}, {-80, 500}, {-70, 0}, {0, 0}}, {{270, 0}, {260, 0}, {250, 0}, {180, 0}}});
    expectRuns(curves.cone, {{{0, 500}, {180, 0}, {360, 500}}});
}

TEST(PlotCurves, aThousandAnglesAreDrawnOneByOne)
{
    const auto table = plotTable("", kTypeC, evenAngles(1000, 360), evenAngles(1000, 180), forward, 0, 180.0F / 3);
    const auto value = [&](int h, int v) { return *numberOf(table.cells(h, v)); };
    Corners right, left, around;
    for (int i = 1; i <= 1000; ++i) {
        const double up = 180.0 * (i - 1) / 999;
        right.push_back({up - 90, value(1, i)});
        // 180 lies half way between the 500th and the 501st of 1,000 horizontal angles.
        left.push_back({270 - up, (value(500, i) + value(501, i)) / 2});
        around.push_back({360.0 * (i - 1) / 999, value(i, 334)});
    }
    const auto curves = curvesOf(table);
    expectRuns(curves.plane, {right, left});
    expectRuns(curves.cone, {around});
}

TEST(PlotCurves, zerosAreValues)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0}, {0, 90}, {{0, 0}}, 0, 0));
    EXPECT_EQ(curves.plane.runs.size(), 2U);
    EXPECT_EQ(curves.largest(), 0);
    EXPECT_EQ(curves.plane.largest->candela, 0);
}

TEST(PlotCurves, blanksAreGaps)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0}, {0, 10, 20, 30, 40}, {{kBlank, 7, 6, kBlank, 5}}, 0, 30));
    expectRuns(curves.plane, {{{-80, 7}, {-70, 6}}, {{-50, 5}}, {{260, 7}, {250, 6}}, {{230, 5}}});
    expectRuns(curves.cone, {});
}

TEST(PlotCurves, blanksInTheConeAreMirroredToo)
{
    const auto curves = curvesOf(
        tableOf(kTypeC, {0, 45, 90, 135, 180}, {0, 90}, {{1, 1}, {1, kBlank}, {1, 3}, {1, 4}, {1, kBlank}}, 0, 90));
    expectRuns(curves.cone, {{{0, 1}}, {{90, 3}, {135, 4}}, {{225, 4}, {270, 3}}, {{360, 1}}});
}

TEST(PlotCurves, aBlankTableHasNoCurves)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0, 90}, {0, 90}, {}, 0, 0));
    expectRuns(curves.plane, {});
    expectRuns(curves.cone, {});
    EXPECT_EQ(curves.largest(), 0);
    EXPECT_FALSE(curves.plane.largest);
}

TEST(PlotCurves, negativesAreGapsAndNeverTheLargest)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0, 90}, {0, 10, 20}, {{-900, 7, -1}, {3, -800, 4}}, 0, 10));
    expectRuns(curves.plane, {{{-80, 7}}, {{260, 7}}});
    expectRuns(curves.cone, {{{0, 7}}, {{180, 7}}, {{360, 7}}});
    EXPECT_EQ(curves.largest(), 7);
}

TEST(PlotCurves, valuesThatAreNotFiniteAreGaps)
{
    auto table = tableOf(kTypeC, {0}, {0, 10, 20}, {{1, 2, 3}}, 0, 20);
    table.cells(1, 1) = std::numeric_limits<float>::infinity();
    table.cells(1, 2) = std::numeric_limits<double>::quiet_NaN();
    expectRuns(curvesOf(table).plane, {{{-70, 3}}, {{250, 3}}});
}

TEST(PlotCurves, doublesAreDrawnLikeSingles)
{
    auto table = tableOf(kTypeC, {0}, {0, 10}, {{1, 2}}, 0, 10);
    table.cells(1, 1) = 12.5;
    expectRuns(curvesOf(table).plane, {{{-90, 12.5}, {-80, 2}}, {{270, 12.5}, {260, 2}}});
}

TEST(PlotCurves, repeatedAnglesAreJoinedAlongTheirRay)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0}, {0, 45, 45, 90}, {{9, 8, 2, 1}}, 0, 45));
    expectRuns(curves.plane, {{{-90, 9}, {-45, 8}, {-45, 2}, {0, 1}}, {{270, 9}, {225, 8}, {225, 2}, {180, 1}}});
    expectRuns(curves.cone, {{{0, 8}, {360, 8}}});
}

TEST(PlotCurves, anAngleThatIsNotListedHasNoPlaneAndNoCone)
{
    const auto curves = curvesOf(tableOf(kTypeC, {90}, {90, 180}, {{50, 60}}, 0, 0));
    EXPECT_EQ(curves.cone.runs.size(), 0U);
    EXPECT_FALSE(curves.cone.largest);
}

TEST(PlotCurves, aRecordWithoutAnglesIsEmpty)
{
    PlotTableCase empty;
    empty.record.PhotometricType = kTypeC;
    expectRuns(curvesOf(empty).plane, {});
    expectRuns(curvesOf(empty).cone, {});
}

/// 180 degrees show both: 180 * 0.01745329 has the sine 4.53590e-07, rounded to single precision 3.89414e-07.
TEST(PlotCurves, radiansAreShortAndSingle)
{
    const auto curves = curvesOf(tableOf(kTypeC, {0}, {0, 180}, {{0, 1e6}}, 0, 0));
    EXPECT_NEAR(curves.plane.runs.at(0).back().x, 0.389414, 1e-6);
}

TEST(PlotCurves, tooFewAnglesOrCellsAreOutOfRange)
{
    const auto whole = tableOf(kTypeC, {0, 90}, {0, 90}, {{1, 2}, {3, 4}}, 0, 0);
    const auto number = [](const PlotTableCase &table) {
        try {
            curvesOf(table);
        } catch (const RunTimeError &error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(number(whole), 0);
    auto table = whole;
    table.record.HorAngles.resize(1);
    EXPECT_EQ(number(table), 9);
    table = whole;
    table.record.VertAngles.clear();
    EXPECT_EQ(number(table), 9);
    table = whole;
    table.cells.reset(2, 1);
    EXPECT_EQ(number(table), 9);
    table = whole;
    table.record.NumHorzAngles = -1;
    EXPECT_EQ(number(table), 9);
}

TEST(PlotCurves, anglesOfAnySizeEndInGapsOrPoints)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const auto curves = curvesOf(tableOf(kTypeC, {0, 1e30F}, {0, 1e30F, infinity}, {{1, 2, 3}, {4, 5, 6}}, 0, 0));
    EXPECT_EQ(curves.largest(), 4);
}

TEST(PlotCurves, anAngleThatIsListedTwiceIsReadAtItsOwnPlace)
{
    const PlotTableCase table = tableOf(kTypeC, {0, 90, 90}, {0, 60, 60}, {{1, 2, 5}, {1, 3, 6}, {1, 4, 7}}, 90, 60);
    const auto largestAt = [&table](const PlotAngle &horizontal, const PlotAngle &vertical) {
        const PlotCurves curves = plotCurves(table.record, table.cells, horizontal, vertical);
        return std::pair(curves.plane.largest->candela, curves.cone.largest->candela);
    };
    EXPECT_EQ(largestAt({90, 3}, {60, 2}), std::pair(7.0, 4.0));
    EXPECT_EQ(largestAt({90, 2}, {60, 3}), std::pair(6.0, 7.0));
    EXPECT_EQ(largestAt(90, 60), std::pair(6.0, 4.0)) << "the first of them";
    for (const int place : {-1, 0, 1, 4})  // places of no angle, or of another
        EXPECT_EQ(largestAt({90, place}, {60, place}), std::pair(6.0, 4.0)) << place;
    const PlotTableCase typeB = tableOf(kTypeB, {-90, 0, 0}, {-90, 90}, {{1, 1}, {2, 2}, {3, 3}}, 0, 0);
    EXPECT_EQ(plotCurves(typeB.record, typeB.cells, {0, 3}, 90).plane.largest->candela, 3);
}

}  // namespace
}  // namespace penwright::test
