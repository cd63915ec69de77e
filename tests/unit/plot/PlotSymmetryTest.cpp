#include <algorithm>
#include <random>

#include "plot/PlotSymmetry.h"
#include "PlotTest.h"

namespace penwright::test {
namespace {

struct SpanCase {
    float first;
    float last;
    PlotSymmetry symmetry;
};

class PlotSpan : public testing::TestWithParam<SpanCase> {};

TEST_P(PlotSpan, tellsTheSymmetry)
{
    EXPECT_EQ(PlotCircle(GetParam().first, GetParam().last).symmetry(), GetParam().symmetry);
}

INSTANTIATE_TEST_SUITE_P(Lists, PlotSpan,
                         testing::ValuesIn(std::vector<SpanCase>{
                             {0, 0, PlotSymmetry::Rotational},
                             {90, 90, PlotSymmetry::Rotational},
                             {0, 90, PlotSymmetry::Quadrants},
                             {90, 180, PlotSymmetry::Quadrants},
                             {0, 180, PlotSymmetry::Mirrored},
                             {90, 270, PlotSymmetry::Mirrored},
                             {0, 360, PlotSymmetry::AsGiven},
                             {90, 360, PlotSymmetry::AsGiven},
                             {0, 45, PlotSymmetry::AsGiven},
                         }));

struct DirectionCase {
    float first;
    float last;
    double direction;
    std::optional<float> listed;
};

class PlotDirection : public testing::TestWithParam<DirectionCase> {};

TEST_P(PlotDirection, findsTheListedAngle)
{
    const DirectionCase &given = GetParam();
    EXPECT_EQ(PlotCircle(given.first, given.last).listedAngle(given.direction), given.listed);
}

INSTANTIATE_TEST_SUITE_P(
    Directions, PlotDirection,
    testing::ValuesIn(std::vector<DirectionCase>{
        {0, 0, 217, 0},      {90, 90, 10, 90},    {0, 90, 0, 0},      {0, 90, 100, 80},
        {0, 90, 180, 0},     {0, 90, 200, 20},    {0, 90, 270, 90},   {0, 90, 350, 10},
        {0, 90, -10, 10},    {90, 180, 10, 170},  {90, 180, 80, 100}, {90, 180, 200, 160},
        {90, 180, 350, 170}, {0, 180, 181, 179},  {0, 180, 359, 1},   {0, 180, 540, 180},
        {90, 270, 80, 100},  {90, 270, 280, 260}, {90, 270, 0, 180},  {0, 360, 350, 350},
        {0, 360, 370, 10},   {0, 360, -90, 270},  {90, 360, 45, {}},  {90, 360, 405, {}},
        {90, 360, 0, 360},   {0, 45, 46, {}},     {0, 45, 360, 0},    {0, 360, double{0.1F} + 180, 180.1F},
    }));

/// The value of a quadrant or half list in any direction by trying every mirror image of every listed angle.
double valueByImages(const std::vector<double> &images, const std::vector<double> &values, double direction)
{
    std::vector<std::pair<double, double>> around;
    for (std::size_t i = 0; i < images.size(); ++i)
        for (int turn = -2; turn <= 2; ++turn)
            around.emplace_back(images[i] + 360 * turn, values[i]);
    std::sort(around.begin(), around.end());
    const auto above = std::find_if(around.begin(), around.end(), [&](const auto &p) { return p.first > direction; });
    const auto below = above - 1;
    const double width = above->first - below->first;
    return (below->second * (above->first - direction) + above->second * (direction - below->first)) / width;
}

class PlotMirrors : public testing::TestWithParam<SpanCase> {};

TEST_P(PlotMirrors, everyPointOfTheConeIsTheValueOfItsMirrorImage)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> candela(1, 1000);
    const auto [first, last, symmetry] = GetParam();
    const auto table = plotTable(
        "", kTypeC, anglesTo(last, 15, first), {0, 90}, [&](double, double) { return candela(random); }, first, 90);
    std::vector<double> images;
    std::vector<double> values;
    for (int h = 1; h <= table.cells.rows(); ++h)
        for (const double image : {0.0, 180.0}) {
            const double angle = double{table.record.HorAngles(h)};
            // A half from 0 mirrors at 0, one from 90 at 90; quadrants do both.
            if (symmetry == PlotSymmetry::Quadrants || image == 2 * first)
                images.push_back(image - angle), values.push_back(*numberOf(table.cells(h, 2)));
            if (symmetry == PlotSymmetry::Quadrants || image == 0)
                images.push_back(image + angle), values.push_back(*numberOf(table.cells(h, 2)));
        }
    const PlotCurves curves = curvesOf(table);
    ASSERT_EQ(curves.cone.runs.size(), 1U);
    ASSERT_EQ(curves.cone.runs[0].size(), 73U);
    for (const PlotPoint &point : curves.cone.runs[0]) {
        const double direction = std::atan2(point.y, point.x) * 180 / std::numbers::pi;
        EXPECT_NEAR(std::hypot(point.x, point.y), valueByImages(images, values, direction), 0.01) << direction;
    }
}

INSTANTIATE_TEST_SUITE_P(Lists, PlotMirrors,
                         testing::ValuesIn(std::vector<SpanCase>{
                             {0, 90, PlotSymmetry::Quadrants},
                             {90, 180, PlotSymmetry::Quadrants},
                             {0, 180, PlotSymmetry::Mirrored},
                             {90, 270, PlotSymmetry::Mirrored},
                         }));

}  // namespace
}  // namespace penwright::test
