#include "review/Profile.h"

#include <algorithm>
#include <optional>

namespace penwright {
namespace {

double largestOf(const std::vector<ProfilePoint> &points)
{
    double largest = 0;
    for (const ProfilePoint &point : points)
        largest = std::max(largest, point.candela);
    return largest;
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

}  // namespace

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

}  // namespace penwright
