#include "plot/MainPlanes.h"

#include "plot/PlotAxes.h"
#include "plot/PlotReading.h"

#include <gtest/gtest.h>

#include "support/PlotTables.h"

namespace penwright::test {
namespace {

/// A record whose values tell the places of their angles: 1000 for each horizontal one and 1 for each vertical one.
PhotometricRecord recordOf(std::int16_t type, const std::vector<float> &horizontal, const std::vector<float> &vertical)
{
    PhotometricRecord record;
    setAngles(record, type, horizontal, vertical);
    record.Candela.reset(record.NumHorzAngles, record.NumVertAngles);
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(h, v) = 1000 * h + v;
    return record;
}

TEST(MainPlanes, ofTypeCAreThoseOf0And90WithTheirOpposites)
{
    const MainPlanes planes = mainPlanes(recordOf(kTypeC, {0, 90, 180, 270, 360}, {0, 90}));
    EXPECT_EQ(planes.first, "Plane 0-180");
    EXPECT_EQ(planes.second, "Plane 90-270");
    EXPECT_EQ(planes.picture.words,
              "Plane 0-180: largest 3002 candela at 90 degrees on the opposite side; "
              "Plane 90-270: largest 4002 candela at 90 degrees on the opposite side.");
    EXPECT_EQ(planes.picture.curves.largest(), 4002);
    EXPECT_TRUE(planes.picture.curves.typeC);
    ASSERT_FALSE(planes.picture.rings.empty());
    EXPECT_EQ(planes.picture.rings.back().candela, 4002);
}

std::string readingsOfBoth(const MainPlanes &planes)
{
    std::string all;
    for (const bool isSecond : {false, true})
        for (const PlotReading &reading : readingsOf(planes.picture.curves, isSecond))
            all += readingText(reading) + "\n";
    return all;
}

TEST(MainPlanes, areReadByTheirOwnDirections)
{
    EXPECT_EQ(readingsOfBoth(mainPlanes(recordOf(kTypeC, {0, 90, 180, 270, 360}, {0, 90}))),
              "H 180, V 90: 3002 cd\nH 180, V 0: 3001 cd\nH 0, V 0: 1001 cd\nH 0, V 90: 1002 cd\n"
              "H 270, V 90: 4002 cd\nH 270, V 0: 4001 cd\nH 90, V 0: 2001 cd\nH 90, V 90: 2002 cd\n");
    EXPECT_EQ(readingsOfBoth(mainPlanes(recordOf(kTypeB, {-90, 0, 90}, {0, 45}))),
              "H 0, V 0: 2001 cd\nH 0, V 45: 2002 cd\n"
              "H -90, V 0: 1001 cd\nH 0, V 0: 2001 cd\nH 90, V 0: 3001 cd\n");
}

TEST(MainPlanes, haveOneAxisInALinearPicture)
{
    const PlotCurves typeC = mainPlanes(recordOf(kTypeC, {0, 90, 180, 270, 360}, {0, 90})).picture.curves;
    const PlotCurves typeB = mainPlanes(recordOf(kTypeB, {-90, 0, 90}, {0, 45})).picture.curves;
    for (const PlotCurves &curves : {typeC, typeB})
        for (const PlotAxis &axis : {planeAxis(curves), coneAxis(curves)}) {
            EXPECT_EQ(axis.first, -90);
            EXPECT_EQ(axis.last, 90);
        }
}

TEST(MainPlanes, areFoundByTheSymmetryOfTheList)
{
    EXPECT_EQ(mainPlanes(recordOf(kTypeC, {0, 90}, {0, 90})).picture.words,
              "Plane 0-180: largest 1002 candela at 90 degrees; Plane 90-270: largest 2002 candela at 90 degrees.");
    EXPECT_EQ(mainPlanes(recordOf(kTypeC, {90, 180, 270}, {0, 90})).picture.words,
              "Plane 0-180: largest 2002 candela at 90 degrees; "
              "Plane 90-270: largest 3002 candela at 90 degrees on the opposite side.");
    EXPECT_EQ(mainPlanes(recordOf(kTypeC, {0, 45}, {0, 90})).picture.words,
              "Plane 0-180: largest 1002 candela at 90 degrees; Plane 90-270: no values.");
}

TEST(MainPlanes, areOneWhereAllAreTheSame)
{
    for (const float only : {0.0F, 45.0F}) {
        const MainPlanes planes = mainPlanes(recordOf(kTypeC, {only}, {0, 90}));
        EXPECT_EQ(planes.first, "All planes");
        EXPECT_EQ(planes.second, "");
        EXPECT_EQ(planes.picture.words, "All planes: largest 1002 candela at 90 degrees.");
        EXPECT_FALSE(planes.picture.curves.plane.runs.empty());
        EXPECT_TRUE(planes.picture.curves.cone.runs.empty());
    }
}

TEST(MainPlanes, ofTypeBAreTheVerticalAndTheHorizontalOne)
{
    const MainPlanes planes = mainPlanes(recordOf(kTypeB, {-90, 0, 90}, {-45, 0, 45}));
    EXPECT_EQ(planes.first, "Vertical plane");
    EXPECT_EQ(planes.second, "Horizontal plane");
    EXPECT_EQ(planes.picture.words,
              "Vertical plane: largest 2003 candela at 45 degrees; Horizontal plane: largest 3002 candela at 90 "
              "degrees.");
    EXPECT_FALSE(planes.picture.curves.typeC);
}

TEST(MainPlanes, ofARecordThatCannotBeDrawnAreTheEmptyGrid)
{
    PhotometricRecord torn = recordOf(kTypeC, {0, 90}, {0, 90});
    torn.NumVertAngles = 3;
    PhotometricRecord huge = recordOf(kTypeC, {0, 90}, {0, 90});
    huge.Candela(1, 1) = 1E39;
    for (const PhotometricRecord &record : {PhotometricRecord{}, torn, huge}) {
        const MainPlanes planes = mainPlanes(record);
        EXPECT_TRUE(planes.picture.rings.empty());
        EXPECT_TRUE(planes.picture.curves.plane.runs.empty());
        EXPECT_NE(planes.picture.words.find("no values"), std::string::npos);
        EXPECT_EQ(planes.picture.curves.typeC, record.PhotometricType == kTypeC);
    }
}

}  // namespace
}  // namespace penwright::test
