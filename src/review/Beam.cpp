#include "review/Beam.h"

#include <algorithm>
#include <optional>
#include <string>

#include "plot/PlotRuns.h"
#include "plot/PlotSymmetry.h"
#include "review/Profile.h"

namespace penwright {
namespace {

constexpr double kBeamShare = 0.5;
constexpr double kFieldShare = 0.1;

/// Where an angle stands in a rising list: two neighbours and the share of the way between them.
struct Between {
    int low = 0;
    int high = 0;
    double share = 0;
};

std::optional<Between> placeOf(double degrees, const OneBased<float> &angles, int count)
{
    if (degrees < angles(1) || degrees > angles(count))
        return std::nullopt;
    const auto begin = angles.begin();
    const int high = static_cast<int>(std::lower_bound(begin, begin + count, static_cast<float>(degrees)) - begin) + 1;
    if (high == 1 || angles(high) == static_cast<float>(degrees))
        return Between{high, high, 0};
    const double low = angles(high - 1);
    return Between{high - 1, high, (degrees - low) / (angles(high) - low)};
}

/// The values of the plane through a horizontal angle of the list, at `sign` times their vertical angles.
std::vector<ProfilePoint> halfPlane(const PhotometricRecord &record, const Between &place, double sign)
{
    std::vector<ProfilePoint> points;
    const auto low = record.Candela.row(place.low);
    const auto high = record.Candela.row(place.high);
    for (int v = 1; v <= record.NumVertAngles; ++v) {
        const auto at = static_cast<std::size_t>(v) - 1;
        points.push_back({sign * record.VertAngles(v), inProportion(low[at], high[at], place.share), v});
    }
    return points;
}

BeamWidth widthOf(std::string_view plane, const Profile &profile)
{
    return {plane, widthAt(profile, kBeamShare), widthAt(profile, kFieldShare)};
}

BeamWidth unknownWidth(std::string_view plane, const std::string &reason)
{
    return {plane, Measure::unknown(reason), Measure::unknown(reason)};
}

/// Adds where in the vertical list the plane's largest value stands, and the steps there.
BeamWidth withSteps(BeamWidth width, const Profile &profile, const PhotometricRecord &record)
{
    const int at = profile.points[largestPlace(profile)].index;
    width.largestAt = at;
    for (int v = std::max(1, at - 1); v < std::min<int>(record.NumVertAngles, at + 1); ++v)
        width.step = std::max(width.step, double{record.VertAngles(v + 1)} - double{record.VertAngles(v)});
    return width;
}

constexpr const char *kPlaneNotListed = "The lists do not hold this plane.";

BeamWidth typeCPlane(const PhotometricRecord &record, std::string_view plane, double direction)
{
    const int count = record.NumHorzAngles;
    const PlotCircle circle(record.HorAngles(1), record.HorAngles(count));
    const auto placed = [&](double degrees) -> std::optional<Between> {
        const auto listed = circle.listedAngle(degrees);
        return listed ? placeOf(*listed, record.HorAngles, count) : std::nullopt;
    };
    const auto right = placed(direction);
    const auto left = placed(direction + 180);
    if (!right || !left)
        return unknownWidth(plane, kPlaneNotListed);
    const Profile profile = joined(halfPlane(record, *right, 1), halfPlane(record, *left, -1));
    return withSteps(widthOf(plane, profile), profile, record);
}

BeamWidth verticalPlane(const PhotometricRecord &record)
{
    constexpr std::string_view kPlane = "in the vertical plane";
    const auto place = placeOf(0, record.HorAngles, record.NumHorzAngles);
    if (!place)
        return unknownWidth(kPlane, kPlaneNotListed);
    const Profile profile = mirrored(halfPlane(record, *place, 1));
    return withSteps(widthOf(kPlane, profile), profile, record);
}

BeamWidth horizontalPlane(const PhotometricRecord &record)
{
    constexpr std::string_view kPlane = "in the horizontal plane";
    const auto place = placeOf(0, record.VertAngles, record.NumVertAngles);
    if (!place)
        return unknownWidth(kPlane, kPlaneNotListed);
    std::vector<ProfilePoint> points;
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        points.push_back({record.HorAngles(h),
                          inProportion(record.Candela(h, place->low), record.Candela(h, place->high), place->share)});
    return widthOf(kPlane, mirrored(points));
}

}  // namespace

std::vector<BeamWidth> beamWidths(const PhotometricRecord &record, const std::string &angleFault)
{
    constexpr std::string_view kFirstPlane = "in plane 0-180";
    constexpr std::string_view kSecondPlane = "in plane 90-270";
    if (!angleFault.empty())
        return {unknownWidth(kFirstPlane, angleFault), unknownWidth(kSecondPlane, angleFault)};
    if (record.PhotometricType == kTypeC)
        return {typeCPlane(record, kFirstPlane, 0), typeCPlane(record, kSecondPlane, 90)};
    return {verticalPlane(record), horizontalPlane(record)};
}

}  // namespace penwright
