#include "review/Beam.h"

#include <algorithm>
#include <optional>

#include "plot/PlotRuns.h"
#include "plot/PlotSymmetry.h"
#include "review/TableFault.h"

namespace penwright {
namespace {

constexpr double kBeamShare = 0.5;
constexpr double kFieldShare = 0.1;

/// A value of a plane: where it points to, degrees along the plane, and the index that it has in its list.
struct ProfilePoint {
    double degrees = 0;
    double candela = 0;
    int index = 0;
};

/// Neighbours along a plane, in rising directions.
struct Profile {
    std::vector<ProfilePoint> points;
    bool isClosed = false;  ///< once around: the last point is the first one again
};

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

double largestOf(const std::vector<ProfilePoint> &points)
{
    double largest = 0;
    for (const ProfilePoint &point : points)
        largest = std::max(largest, point.candela);
    return largest;
}

/// Both halves of a type C plane as one run of directions: through 0 where both have it, else through 180.
Profile joined(std::vector<ProfilePoint> right, std::vector<ProfilePoint> left)
{
    const bool meetBelow = right.front().degrees == 0;
    const bool meetAbove = right.back().degrees == 180;
    std::reverse(left.begin(), left.end());
    Profile profile;
    if (meetBelow) {
        profile.isClosed = meetAbove;
        profile.points = std::move(left);
        profile.points.insert(profile.points.end(), right.begin() + 1, right.end());
    } else if (meetAbove) {
        profile.points = std::move(right);
        for (auto point = left.begin() + 1; point != left.end(); ++point)
            profile.points.push_back({point->degrees + 360, point->candela, point->index});
    } else {
        profile.points = largestOf(left) > largestOf(right) ? std::move(left) : std::move(right);
    }
    return profile;
}

/// The run of directions that a list from 0 stands for, its mirror image before it.
Profile mirrored(const std::vector<ProfilePoint> &points)
{
    Profile profile;
    if (points.front().degrees == 0)
        for (auto point = points.rbegin(); point + 1 != points.rend(); ++point)
            profile.points.push_back({-point->degrees, point->candela, point->index});
    profile.points.insert(profile.points.end(), points.begin(), points.end());
    return profile;
}

std::size_t largestPlace(const Profile &profile)
{
    const auto less = [](const ProfilePoint &a, const ProfilePoint &b) { return a.candela < b.candela; };
    return static_cast<std::size_t>(std::max_element(profile.points.begin(), profile.points.end(), less) -
                                    profile.points.begin());
}

/// How far the light goes on from a place of the run in one direction until it has fallen to a level, degrees; nothing
/// when it never does, once around.
std::optional<double> reach(const Profile &profile, std::size_t from, double level, bool forward)
{
    const std::vector<ProfilePoint> &points = profile.points;
    const std::size_t steps = points.size() - 1;
    double degrees = 0;
    std::size_t at = from;
    for (std::size_t step = 0; step < steps; ++step) {
        const std::size_t end = forward ? steps : 0;
        if (at == end && !profile.isClosed)
            return degrees;
        if (at == end)
            at = steps - end;
        const ProfilePoint &here = points[at];
        const ProfilePoint &next = points[forward ? at + 1 : at - 1];
        const double width = forward ? next.degrees - here.degrees : here.degrees - next.degrees;
        if (next.candela < level)
            return degrees + width * (here.candela - level) / (here.candela - next.candela);
        degrees += width;
        at = forward ? at + 1 : at - 1;
    }
    return profile.isClosed ? std::nullopt : std::optional(degrees);
}

Measure widthAt(const Profile &profile, double share)
{
    const std::size_t largest = largestPlace(profile);
    const double candela = profile.points[largest].candela;
    if (!(candela > 0))
        return Measure::unknown("No value of this plane is above 0.");
    if (profile.points.size() < 2)
        return Measure::unknown("This plane has one value only.");
    const auto back = reach(profile, largest, share * candela, false);
    const auto ahead = reach(profile, largest, share * candela, true);
    if (!back || !ahead)
        return Measure::unknown("The light falls that far nowhere in this plane.");
    return Measure(*back + *ahead);
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

const std::string kPlaneNotListed = "The lists do not hold this plane.";

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

std::vector<BeamWidth> beamWidths(const PhotometricRecord &record, const std::string &fault)
{
    constexpr std::string_view kFirstPlane = "in plane 0-180";
    constexpr std::string_view kSecondPlane = "in plane 90-270";
    const std::string reason = fault.empty() ? fallingAngles(record) : fault;
    if (!reason.empty())
        return {unknownWidth(kFirstPlane, reason), unknownWidth(kSecondPlane, reason)};
    if (record.PhotometricType == kTypeC)
        return {typeCPlane(record, kFirstPlane, 0), typeCPlane(record, kSecondPlane, 90)};
    return {verticalPlane(record), horizontalPlane(record)};
}

}  // namespace penwright
