#include "pages/luminaire/SketchGeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace penwright::test {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

/// An ellipsoid about the middle of the room, by half its extent each way.
struct Ellipsoid {
    Vector3 half;
    friend void PrintTo(const Ellipsoid &solid, std::ostream *out)
    {
        *out << solid.half[0] << " x " << solid.half[1] << " x " << solid.half[2];
    }

    /// 1 on its surface, less inside.
    double level(const Vector3 &place) const
    {
        const Vector3 squeezed{place[0] / half[0], place[1] / half[1], place[2] / half[2]};
        return dot(squeezed, squeezed);
    }

    /// Above zero where the surface faces the eye, zero where the line of sight touches it.
    double facing(const Vector3 &place) const
    {
        const Vector3 outwards{place[0] / (half[0] * half[0]), place[1] / (half[1] * half[1]),
                               place[2] / (half[2] * half[2])};
        return dot(outwards, sum(kEye, -1, place)) / std::sqrt(dot(outwards, outwards));
    }
};

class EllipsoidOutline : public testing::TestWithParam<Ellipsoid> {
protected:
    const Ellipsoid &solid = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Solids, EllipsoidOutline,
                         testing::Values(Ellipsoid{{0.75, 0.75, 0.75}}, Ellipsoid{{1.1, 0.7, 0.5}},
                                         Ellipsoid{{0.2, 1.5, 0.4}}, Ellipsoid{{0.3, 0.4, 2}}));

TEST_P(EllipsoidOutline, liesOnTheSurfaceWhereTheLineOfSightTouchesIt)
{
    const Ring rim = rimOfEllipsoid(solid.half);
    for (int i = 0; i < 48; ++i) {
        const Vector3 place = rim.at(kTurn * i / 48);
        EXPECT_NEAR(solid.level(place), 1, 1e-9) << i;
        EXPECT_NEAR(solid.facing(place), 0, 1e-9) << i;
    }
}

TEST_P(EllipsoidOutline, goesAllTheWayAround)
{
    const Ring rim = rimOfEllipsoid(solid.half);
    EXPECT_LT(dot(rim.at(0), kPictureRight) * dot(rim.at(kTurn / 2), kPictureRight), 0);
    EXPECT_LT(dot(rim.at(kTurn / 4), kPictureTop) * dot(rim.at(3 * kTurn / 4), kPictureTop), 0);
}

TEST_P(EllipsoidOutline, meetsTheRingAroundTheMiddleWhereThatGoesOutOfSight)
{
    const Ring ring{{}, along(kTo0, solid.half[kTo0]), along(kTo90, solid.half[kTo90])};
    const auto [middle, half] = visibleArcOf(ring);
    EXPECT_GT(solid.facing(ring.at(middle)), 0);
    EXPECT_LT(solid.facing(ring.at(middle + kTurn / 2)), 0);
    for (const double end : {middle - half, middle + half})
        EXPECT_NEAR(solid.facing(ring.at(end)), 0, 1e-9);
}

TEST(SketchGeometry, showsWhatIsNearerLarger)
{
    const auto length = [](const Vector3 &from) {
        const SketchPoint low = project(from);
        const SketchPoint high = project(sum(from, 1, along(kUp, 0.5)));
        EXPECT_NEAR(low.x, high.x, 0.1);
        return low.y - high.y;
    };
    EXPECT_GT(length(sum({}, 0.1, kEye)), length({}));
    EXPECT_GT(length({}), length(sum({}, -0.1, kEye)));
}

}  // namespace
}  // namespace penwright::test
