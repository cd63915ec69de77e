#include "pages/luminaire/ShapeSketch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "pages/luminaire/LuminousShapes.h"

namespace penwright::test {
namespace {

constexpr int kShapes = kShapeCount;

std::vector<SketchPoint> pointsOf(const ShapeSketch &sketch, StrokeKind kind)
{
    std::vector<SketchPoint> points;
    for (const SketchStroke &stroke : sketch.strokes)
        if (stroke.kind == kind)
            points.insert(points.end(), stroke.points.begin(), stroke.points.end());
    return points;
}

std::vector<SketchStroke> straightLines(const ShapeSketch &sketch, StrokeKind kind)
{
    std::vector<SketchStroke> lines;
    for (const SketchStroke &stroke : sketch.strokes)
        if (stroke.kind == kind && stroke.points.size() == 2)
            lines.push_back(stroke);
    return lines;
}

SketchPoint labelled(const ShapeSketch &sketch, const std::string &text)
{
    for (const SketchLabel &label : sketch.labels)
        if (label.text == text)
            return label.end;
    throw std::runtime_error("no label " + text);
}

/// About where the middle of a label comes to lie on a small picture.
SketchPoint centreOf(const SketchLabel &label)
{
    const double apart = label.text.size() > 1 ? 0.28 : 0.2;
    return {label.end.x + apart * label.away.x, label.end.y + apart * label.away.y};
}

/// The direction of a line as an angle from 0 to pi, the same both ways.
double slant(const SketchPoint &from, const SketchPoint &to)
{
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    return angle < 0 ? angle + M_PI : angle;
}

double slant(const SketchStroke &line)
{
    return slant(line.points.front(), line.points.back());
}

/// The direction of an axis of the frame of reference: from its foot, which the three share, to its letter.
double slantOfAxis(const ShapeSketch &sketch, const std::string &letter)
{
    return slant(sketch.strokes.front().points.front(), labelled(sketch, letter));
}

/// Whether two directions are parallel in the room: near enough in a light perspective.
bool areParallel(double one, double other)
{
    const double apart = std::abs(one - other);
    return std::min(apart, M_PI - apart) < 0.15;
}

double cross(const SketchPoint &o, const SketchPoint &a, const SketchPoint &b)
{
    return (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
}

/// The corners of the smallest convex area that holds all points, in one turn.
std::vector<SketchPoint> hullOf(std::vector<SketchPoint> points)
{
    std::sort(points.begin(), points.end(),
              [](const SketchPoint &a, const SketchPoint &b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
    std::vector<SketchPoint> hull;
    for (int half = 0; half < 2; ++half) {
        const std::size_t start = hull.size();
        for (const SketchPoint &point : points) {
            while (hull.size() >= start + 2 && cross(hull[hull.size() - 2], hull.back(), point) <= 0)
                hull.pop_back();
            hull.push_back(point);
        }
        hull.pop_back();
        std::reverse(points.begin(), points.end());
    }
    return hull;
}

bool isInside(const std::vector<SketchPoint> &hull, const SketchPoint &point)
{
    for (std::size_t i = 0; i < hull.size(); ++i)
        if (cross(hull[i], hull[(i + 1) % hull.size()], point) < -1e-3)
            return false;
    return true;
}

double distance(const SketchPoint &a, const SketchPoint &b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// How far the point of one list that lies farthest from the other list is away from it.
double farthest(const std::vector<SketchPoint> &points, const std::vector<SketchPoint> &others)
{
    double most = 0;
    for (const SketchPoint &point : points) {
        double least = 100;
        for (const SketchPoint &other : others)
            least = std::min(least, distance(point, other));
        most = std::max(most, least);
    }
    return most;
}

class EverySketch : public testing::TestWithParam<int> {
protected:
    const ShapeSketch sketch = sketchOfShape(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Shapes, EverySketch, testing::Range(-1, kShapes + 1));

TEST_P(EverySketch, staysOnThePicture)
{
    for (const SketchStroke &stroke : sketch.strokes) {
        ASSERT_GE(stroke.points.size(), 2u);
        for (const SketchPoint &point : stroke.points) {
            EXPECT_GT(point.x, 0.1);
            EXPECT_LT(point.x, kSketchWidth - 0.1);
            EXPECT_GT(point.y, 0.1);
            EXPECT_LT(point.y, kSketchHeight - 0.1);
        }
    }
    for (const SketchLabel &label : sketch.labels) {
        const SketchPoint centre = centreOf(label);
        const double halfWidth = label.text.size() > 1 ? 0.26 : 0.12;
        EXPECT_GT(centre.x, halfWidth) << label.text;
        EXPECT_LT(centre.x, kSketchWidth - halfWidth) << label.text;
        EXPECT_GT(centre.y, 0.13) << label.text;
        EXPECT_LT(centre.y, kSketchHeight - 0.13) << label.text;
        EXPECT_NEAR(std::hypot(label.away.x, label.away.y), 1, 1e-9);
    }
}

TEST_P(EverySketch, namesTheAxesAndTheTwoAngles)
{
    std::multiset<std::string> texts;
    for (const SketchLabel &label : sketch.labels)
        texts.emplace(label.text);
    EXPECT_EQ(texts, (std::multiset<std::string>{"L", "W", "H", "0°", "90°"}));
}

TEST_P(EverySketch, pointsTo0AlongTheLengthAndTo90AlongTheWidth)
{
    std::vector<SketchStroke> arrows;  // the straight lines behind the three axes
    for (const SketchStroke &line : straightLines(sketch, StrokeKind::Frame))
        arrows.push_back(line);
    arrows.erase(arrows.begin(), arrows.begin() + 3);
    ASSERT_GE(arrows.size(), 2u);
    EXPECT_TRUE(areParallel(slant(arrows[0]), slantOfAxis(sketch, "L")));
    EXPECT_TRUE(areParallel(slant(arrows[1]), slantOfAxis(sketch, "W")));
    EXPECT_EQ(distance(arrows[0].points[1], labelled(sketch, "0°")), 0);
    EXPECT_EQ(distance(arrows[1].points[1], labelled(sketch, "90°")), 0);
    EXPECT_NEAR(slantOfAxis(sketch, "H"), M_PI / 2, 1e-9);
}

TEST_P(EverySketch, frameStaysClearOfTheShape)
{
    const std::vector<SketchPoint> outline = pointsOf(sketch, StrokeKind::Outline);
    if (outline.empty())
        return;
    const std::vector<SketchPoint> hull = hullOf(outline);
    for (std::size_t i = 0; i < 7; ++i)  // axes, arrows and their barbs; centre lines come behind
        for (const SketchPoint &point : sketch.strokes[i].points)
            EXPECT_FALSE(isInside(hull, point));
    for (const SketchLabel &label : sketch.labels)
        EXPECT_FALSE(isInside(hull, centreOf(label))) << label.text;
}

TEST_P(EverySketch, hiddenEdgesLieBehindTheShape)
{
    const std::vector<SketchPoint> hidden = pointsOf(sketch, StrokeKind::Hidden);
    const std::set<int> solids{2, 5, 6, 7, 8, 9, 10, 11, 12};
    EXPECT_EQ(!hidden.empty(), solids.contains(GetParam()));
    if (hidden.empty())
        return;
    const std::vector<SketchPoint> hull = hullOf(pointsOf(sketch, StrokeKind::Outline));
    for (const SketchPoint &point : hidden)
        EXPECT_TRUE(isInside(hull, point));
}

TEST(ShapeSketches, outsideTheListHoldTheFrameAlone)
{
    for (const int position : {-1, kShapes, -32768, 32767})
        for (const SketchStroke &stroke : sketchOfShape(position).strokes)
            EXPECT_EQ(stroke.kind, StrokeKind::Frame);
    for (int position = 0; position < kShapes; ++position)
        EXPECT_FALSE(pointsOf(sketchOfShape(position), StrokeKind::Outline).empty()) << position;
}

TEST(ShapeSketches, pointIsAClosedCircle)
{
    const ShapeSketch sketch = sketchOfShape(0);
    const auto circle = std::find_if(sketch.strokes.begin(), sketch.strokes.end(), [](const SketchStroke &stroke) {
        return stroke.kind == StrokeKind::Outline && stroke.points.size() > 2;
    });
    ASSERT_NE(circle, sketch.strokes.end());
    EXPECT_LT(distance(circle->points.front(), circle->points.back()), 1e-9);
}

TEST(ShapeSketches, areAllDistinct)
{
    for (int one = 0; one < kShapes; ++one) {
        for (int other = 0; other < one; ++other) {
            const auto a = pointsOf(sketchOfShape(one), StrokeKind::Outline);
            const auto b = pointsOf(sketchOfShape(other), StrokeKind::Outline);
            EXPECT_GT(std::max(farthest(a, b), farthest(b, a)), 0.15) << one << " and " << other;
        }
    }
}

TEST(ShapeSketches, boxShowsNineEdgesAndHidesTheThreeOfItsFarCorner)
{
    const ShapeSketch box = sketchOfShape(2);
    EXPECT_EQ(straightLines(box, StrokeKind::Outline).size(), 9u);
    const std::vector<SketchPoint> hidden = pointsOf(box, StrokeKind::Hidden);
    ASSERT_EQ(hidden.size(), 6u);
    const bool allMeet = std::any_of(hidden.begin(), hidden.end(), [&](const SketchPoint &corner) {
        return std::count_if(hidden.begin(), hidden.end(),
                             [&](const SketchPoint &point) { return distance(point, corner) < 1e-9; }) == 3;
    });
    EXPECT_TRUE(allMeet);
}

struct CylinderCase {
    int position;
    std::string axis;
};

class CylinderSketch : public testing::TestWithParam<CylinderCase> {};

INSTANTIATE_TEST_SUITE_P(Table, CylinderSketch,
                         testing::Values(CylinderCase{5, "H"}, CylinderCase{6, "H"}, CylinderCase{9, "L"},
                                         CylinderCase{10, "L"}, CylinderCase{11, "W"}, CylinderCase{12, "W"}));

TEST_P(CylinderSketch, sidesRunAlongItsAxis)
{
    const ShapeSketch sketch = sketchOfShape(GetParam().position);
    const auto sides = straightLines(sketch, StrokeKind::Outline);
    ASSERT_EQ(sides.size(), 2u);
    for (const SketchStroke &side : sides)
        EXPECT_TRUE(areParallel(slant(side), slantOfAxis(sketch, GetParam().axis)));
}

TEST_P(CylinderSketch, sidesTouchBothEnds)
{
    const ShapeSketch sketch = sketchOfShape(GetParam().position);
    std::vector<SketchPoint> ends;
    for (const SketchStroke &stroke : sketch.strokes)
        if (stroke.kind == StrokeKind::Outline && stroke.points.size() > 2)
            ends.insert(ends.end(), stroke.points.begin(), stroke.points.end());
    for (const SketchStroke &side : straightLines(sketch, StrokeKind::Outline))
        EXPECT_LT(farthest(side.points, ends), 0.03);
}

struct DiscCase {
    int position;
    std::string one;
    std::string other;
};

class DiscSketch : public testing::TestWithParam<DiscCase> {};

INSTANTIATE_TEST_SUITE_P(Table, DiscSketch,
                         testing::Values(DiscCase{3, "L", "W"}, DiscCase{4, "L", "W"}, DiscCase{13, "W", "H"},
                                         DiscCase{14, "W", "H"}));

TEST_P(DiscSketch, centreLinesRunInItsPlane)
{
    const ShapeSketch sketch = sketchOfShape(GetParam().position);
    const auto lines = straightLines(sketch, StrokeKind::Frame);
    ASSERT_EQ(lines.size(), 7u);  // three axes and two arrows come first
    EXPECT_TRUE(areParallel(slant(lines[5]), slantOfAxis(sketch, GetParam().one)));
    EXPECT_TRUE(areParallel(slant(lines[6]), slantOfAxis(sketch, GetParam().other)));
}

TEST_P(DiscSketch, centreLinesEndAtItsRim)
{
    const ShapeSketch sketch = sketchOfShape(GetParam().position);
    const auto lines = straightLines(sketch, StrokeKind::Frame);
    ASSERT_EQ(lines.size(), 7u);
    for (const std::size_t line : {5, 6})
        EXPECT_LT(farthest(lines[line].points, pointsOf(sketch, StrokeKind::Outline)), 1e-9);
}

}  // namespace
}  // namespace penwright::test
