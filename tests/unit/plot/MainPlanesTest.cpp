#include "plot/MainPlanes.h"

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
