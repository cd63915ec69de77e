#include "pages/luminaire/SketchGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace penwright {
namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kYaw = 53 * kDegree;    ///< of the eye, from 0 towards 90 degrees
constexpr double kPitch = 25 * kDegree;  ///< of the eye above the horizon
constexpr double kDistance = 8;          ///< of the eye from the middle of the room
constexpr double kScale = 1.12;
constexpr SketchPoint kMiddle{2.22, 1.43};

const Vector3 kOut{std::cos(kYaw) * std::cos(kPitch), std::sin(kYaw) * std::cos(kPitch), std::sin(kPitch)};

}  // namespace

const Vector3 kPictureRight{-std::sin(kYaw), std::cos(kYaw), 0};
const Vector3 kPictureTop{-std::cos(kYaw) * std::sin(kPitch), -std::sin(kYaw) * std::sin(kPitch), std::cos(kPitch)};
const Vector3 kEye = sum({}, kDistance, kOut);

double dot(const Vector3 &a, const Vector3 &b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector3 sum(const Vector3 &a, double factor, const Vector3 &b)
{
    return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

Vector3 along(int axis, double length)
{
    Vector3 way{};
    way[axis] = length;
    return way;
}

SketchPoint project(const Vector3 &place)
{
    const double zoom = kScale * kDistance / (kDistance - dot(kOut, place));
    return {kMiddle.x + zoom * dot(kPictureRight, place), kMiddle.y - zoom * dot(kPictureTop, place)};
}

Vector3 Ring::at(double angle) const
{
    return sum(sum(centre, std::cos(angle), u), std::sin(angle), v);
}

VisibleArc visibleArcOf(const Ring &ring)
{
    const Vector3 toEye = sum(kEye, -1, ring.centre);
    const double u = dot(toEye, ring.u) / dot(ring.u, ring.u);
    const double v = dot(toEye, ring.v) / dot(ring.v, ring.v);
    return {std::atan2(v, u), std::acos(std::min(1.0, 1 / std::hypot(u, v)))};
}

Ring rimOfEllipsoid(const Vector3 &half)
{
    // Squeezed to a unit sphere, the places whose side just turns away from the eye lie on a circle.
    const Vector3 eye{kEye[0] / half[0], kEye[1] / half[1], kEye[2] / half[2]};
    const double distance = std::sqrt(dot(eye, eye));
    const double level = std::hypot(eye[0], eye[1]);
    const double radius = std::sqrt(1 - 1 / (distance * distance));
    const Vector3 out = sum({}, 1 / distance, eye);
    const Vector3 side{-eye[1] / level, eye[0] / level, 0};
    const Vector3 top{-out[2] * side[1], out[2] * side[0], out[0] * side[1] - out[1] * side[0]};
    const auto stretched = [&](double factor, const Vector3 &a) {
        return Vector3{factor * a[0] * half[0], factor * a[1] * half[1], factor * a[2] * half[2]};
    };
    return {stretched(1 / distance, out), stretched(radius, side), stretched(radius, top)};
}

}  // namespace penwright
