#include "pages/luminaire/ShapeSketch.h"

#include <array>
#include <cmath>
#include <numbers>

#include "pages/luminaire/LuminousShapes.h"
#include "pages/luminaire/SketchGeometry.h"

namespace penwright {
namespace {

enum class Form { Point, Rectangle, Box, Disc, Cylinder, Ellipsoid };

struct Solid {
    Form form;
    Vector3 half{};  ///< half its extent each way
    int axis = kUp;  ///< of a disc or cylinder
};

constexpr auto kSolids = std::to_array<Solid>({
    {Form::Point, {0.35, 0.35, 0}},
    {Form::Rectangle, {1.05, 0.75, 0}},
    {Form::Box, {1.0, 0.65, 0.38}},
    {Form::Disc, {0.9, 0.9, 0}},
    {Form::Disc, {1.05, 0.5, 0}},
    {Form::Cylinder, {0.6, 0.6, 0.68}},
    {Form::Cylinder, {1.0, 0.45, 0.6}},
    {Form::Ellipsoid, {0.75, 0.75, 0.75}},
    {Form::Ellipsoid, {1.1, 0.7, 0.5}},
    {Form::Cylinder, {1.0, 0.45, 0.45}, kTo0},
    {Form::Cylinder, {1.0, 0.75, 0.35}, kTo0},
    {Form::Cylinder, {0.45, 1.0, 0.45}, kTo90},
    {Form::Cylinder, {0.75, 1.0, 0.35}, kTo90},
    {Form::Disc, {0, 0.75, 0.75}, kTo0},
    {Form::Disc, {0, 1.0, 0.5}, kTo0},
});
static_assert(kSolids.size() == kLuminousShapes.size(), "each shape has its solid, in the order of the list");

constexpr double kTurn = 2 * std::numbers::pi;
constexpr SketchPoint kCorner{0.58, 0.62};  ///< where the frame of reference stands

/// How far from the middle of the floor a shape leaves it free. What is round towards that side rises from the floor.
double footOf(const Solid &solid, int side)
{
    constexpr double kGap = 0.2;
    const bool isRound = solid.form == Form::Ellipsoid || (solid.axis != kUp && solid.axis != side);
    return (isRound ? 0.6 : 1) * solid.half[side] + kGap;
}

/// The ring around a disc, cylinder or ellipsoid at right angles to its axis, so far from its middle.
Ring ringAround(const Solid &solid, double fromMiddle)
{
    const int one = (solid.axis + 1) % 3;
    const int other = (solid.axis + 2) % 3;
    return {along(solid.axis, fromMiddle), along(one, solid.half[one]), along(other, solid.half[other])};
}

class Sketcher {
public:
    void drawFrame();
    void drawArrows(const Solid &solid);
    void drawSolid(const Solid &solid);

    ShapeSketch sketch;

private:
    void polyline(StrokeKind kind, std::vector<SketchPoint> points);
    void line(StrokeKind kind, const Vector3 &from, const Vector3 &to);
    void arc(StrokeKind kind, const Ring &ring, double from, double to);
    void halfHiddenRing(const Ring &ring);
    void labelledLine(const SketchPoint &from, const SketchPoint &to, std::string_view label);
    void drawAxis(int axis, std::string_view letter);
    void drawArrow(const Vector3 &from, int axis, int across, std::string_view angle);
    void drawPoint();
    void drawRectangle(const Vector3 &half);
    void drawBox(const Vector3 &half);
    void drawDisc(const Solid &solid);
    void drawCylinder(const Solid &solid);
    void drawEllipsoid(const Solid &solid);
};

void Sketcher::polyline(StrokeKind kind, std::vector<SketchPoint> points)
{
    sketch.strokes.push_back({kind, std::move(points)});
}

void Sketcher::line(StrokeKind kind, const Vector3 &from, const Vector3 &to)
{
    polyline(kind, {project(from), project(to)});
}

void Sketcher::arc(StrokeKind kind, const Ring &ring, double from, double to)
{
    constexpr int kSteps = 96;
    std::vector<SketchPoint> points;
    for (int i = 0; i <= kSteps; ++i)
        points.push_back(project(ring.at(from + (to - from) * i / kSteps)));
    polyline(kind, std::move(points));
}

void Sketcher::halfHiddenRing(const Ring &ring)
{
    const auto [middle, half] = visibleArcOf(ring);
    arc(StrokeKind::Outline, ring, middle - half, middle + half);
    arc(StrokeKind::Hidden, ring, middle + half, middle + kTurn - half);
}

void Sketcher::labelledLine(const SketchPoint &from, const SketchPoint &to, std::string_view label)
{
    polyline(StrokeKind::Frame, {from, to});
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    sketch.labels.push_back({label, to, {(to.x - from.x) / length, (to.y - from.y) / length}});
}

void Sketcher::drawFrame()
{
    drawAxis(kTo0, "L");
    drawAxis(kTo90, "W");
    drawAxis(kUp, "H");
}

void Sketcher::drawArrows(const Solid &solid)
{
    // On the floor below the shape and in front of it, where they never cross it.
    const Vector3 floor = along(kUp, -solid.half[kUp]);
    drawArrow(sum(floor, 1, along(kTo0, footOf(solid, kTo0))), kTo0, kTo90, "0°");
    drawArrow(sum(floor, 1, along(kTo90, footOf(solid, kTo90))), kTo90, kTo0, "90°");
}

void Sketcher::drawAxis(int axis, std::string_view letter)
{
    constexpr double kLength = 0.3;
    const SketchPoint end{kCorner.x + kLength * kPictureRight[axis], kCorner.y - kLength * kPictureTop[axis]};
    labelledLine(kCorner, end, letter);
}

void Sketcher::drawArrow(const Vector3 &from, int axis, int across, std::string_view angle)
{
    constexpr double kLength = 0.35;
    constexpr double kBarb = 0.11;
    const Vector3 tip = sum(from, kLength, along(axis, 1));
    const Vector3 back = sum(tip, -kBarb, along(axis, 1));
    labelledLine(project(from), project(tip), angle);
    polyline(StrokeKind::Frame, {project(sum(back, 0.5, along(across, kBarb))), project(tip),
                                 project(sum(back, -0.5, along(across, kBarb)))});
}

void Sketcher::drawSolid(const Solid &solid)
{
    switch (solid.form) {
        case Form::Point:
            return drawPoint();
        case Form::Rectangle:
            return drawRectangle(solid.half);
        case Form::Box:
            return drawBox(solid.half);
        case Form::Disc:
            return drawDisc(solid);
        case Form::Cylinder:
            return drawCylinder(solid);
        case Form::Ellipsoid:
            return drawEllipsoid(solid);
    }
}

void Sketcher::drawPoint()
{
    constexpr double kRadius = 0.06;
    constexpr int kRays = 8;
    arc(StrokeKind::Outline, {{}, sum({}, kRadius, kPictureRight), sum({}, kRadius, kPictureTop)}, 0, kTurn);
    const Ring sun{{}, kPictureRight, kPictureTop};
    for (int i = 0; i < kRays; ++i) {
        const Vector3 ray = sun.at(kTurn * i / kRays);
        line(StrokeKind::Outline, sum({}, 0.16, ray), sum({}, i % 2 ? 0.28 : 0.38, ray));
    }
}

void Sketcher::drawRectangle(const Vector3 &half)
{
    const double x = half[kTo0];
    const double y = half[kTo90];
    polyline(StrokeKind::Outline,
             {project({x, y, 0}), project({-x, y, 0}), project({-x, -y, 0}), project({x, -y, 0}), project({x, y, 0})});
}

void Sketcher::drawBox(const Vector3 &half)
{
    for (int axis = 0; axis < 3; ++axis) {
        const int one = (axis + 1) % 3;
        const int other = (axis + 2) % 3;
        for (const int a : {-1, 1}) {
            for (const int b : {-1, 1}) {
                const Vector3 middle = sum(along(one, a * half[one]), b, along(other, half[other]));
                // An edge is in sight when one of its two faces is.
                const bool isSeen = a * kEye[one] > half[one] || b * kEye[other] > half[other];
                line(isSeen ? StrokeKind::Outline : StrokeKind::Hidden, sum(middle, -1, along(axis, half[axis])),
                     sum(middle, 1, along(axis, half[axis])));
            }
        }
    }
}

void Sketcher::drawDisc(const Solid &solid)
{
    const Ring ring = ringAround(solid, 0);
    line(StrokeKind::Frame, sum({}, -1, ring.u), ring.u);
    line(StrokeKind::Frame, sum({}, -1, ring.v), ring.v);
    arc(StrokeKind::Outline, ring, 0, kTurn);
}

void Sketcher::drawCylinder(const Solid &solid)
{
    const double length = solid.half[solid.axis];
    for (const int end : {-1, 1}) {
        if (end * kEye[solid.axis] > length)
            arc(StrokeKind::Outline, ringAround(solid, end * length), 0, kTurn);
        else
            halfHiddenRing(ringAround(solid, end * length));
    }
    const auto [middle, half] = visibleArcOf(ringAround(solid, 0));
    for (const double angle : {middle - half, middle + half})
        line(StrokeKind::Outline, ringAround(solid, -length).at(angle), ringAround(solid, length).at(angle));
}

void Sketcher::drawEllipsoid(const Solid &solid)
{
    arc(StrokeKind::Outline, rimOfEllipsoid(solid.half), 0, kTurn);
    halfHiddenRing(ringAround(solid, 0));
}

}  // namespace

ShapeSketch sketchOfShape(int position)
{
    Sketcher sketcher;
    sketcher.drawFrame();
    const bool isShape = position >= 0 && position < static_cast<int>(kSolids.size());
    const Solid &solid = kSolids[isShape ? static_cast<std::size_t>(position) : 0];
    sketcher.drawArrows(solid);
    if (isShape)
        sketcher.drawSolid(solid);
    return sketcher.sketch;
}

std::string sketchDescription(int position)
{
    const LuminousShape *shape = luminousShapeAt(position);
    return (shape ? std::string(shape->name) : "No shape") +
           ": the length lies along 0 and 180 degrees, 0 at the lower left; the width along 90 and 270 degrees, 90 at "
           "the lower right; the height upright.";
}

}  // namespace penwright
