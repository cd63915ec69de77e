#include "review/Lumens.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

namespace penwright {
namespace {

using Weights = std::vector<double>;

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

/// Trapezoids over neighbouring angles: each value has half of the stretch on either side of it. `extent` measures an
/// angle along the stretch.
Weights trapezoids(const OneBased<float> &angles, int count, const std::function<double(double)> &extent)
{
    Weights weights(static_cast<std::size_t>(count), 0.0);
    for (int i = 1; i < count; ++i) {
        const double half = (extent(angles(i + 1)) - extent(angles(i))) / 2;
        weights[static_cast<std::size_t>(i) - 1] += half;
        weights[static_cast<std::size_t>(i)] += half;
    }
    return weights;
}

double firstOf(const OneBased<float> &angles)
{
    return angles(1);
}

double lastOf(const OneBased<float> &angles, int count)
{
    return angles(count);
}

bool liesBetween(const OneBased<float> &angles, int count, double low, double high)
{
    return firstOf(angles) >= low && lastOf(angles, count) <= high;
}

/// Why the lists of a type C table give no lumens, "" when they do.
std::string typeCFault(const PhotometricRecord &record)
{
    const double span = lastOf(record.HorAngles, record.NumHorzAngles) - firstOf(record.HorAngles);
    if (firstOf(record.HorAngles) != 0)
        return "The horizontal angles do not begin at 0.";
    if (span == 0 ? record.NumHorzAngles > 1 : span != 90 && span != 180 && span != 360)
        return "The horizontal angles span none of 90, 180 and 360 degrees.";
    if (!liesBetween(record.VertAngles, record.NumVertAngles, 0, 180))
        return "The vertical angles of type C lie between 0 and 180.";
    return "";
}

std::string typeBFault(const PhotometricRecord &record)
{
    if (!liesBetween(record.HorAngles, record.NumHorzAngles, -90, 90))
        return "The horizontal angles of type B lie between -90 and 90.";
    if (firstOf(record.HorAngles) == lastOf(record.HorAngles, record.NumHorzAngles))
        return "The horizontal angles span nothing.";
    return "";
}

/// Why a table whose angles rise gives no lumens, "" when it does.
std::string lumensFault(const PhotometricRecord &record)
{
    if (firstOf(record.VertAngles) == lastOf(record.VertAngles, record.NumVertAngles))
        return "The vertical angles span nothing.";
    if (record.PhotometricType == kTypeC)
        return typeCFault(record);
    return record.PhotometricType == kTypeB ? typeBFault(record) : "Lumens are added up for types C and B only.";
}

/// A list from 0 stands for its mirror image too.
double mirrored(const OneBased<float> &angles)
{
    return firstOf(angles) == 0 ? 2 : 1;
}

Weights horizontalWeights(const PhotometricRecord &record)
{
    const int count = record.NumHorzAngles;
    if (record.PhotometricType == kTypeB)
        return trapezoids(record.HorAngles, count,
                          [twice = mirrored(record.HorAngles)](double h) { return twice * std::sin(radians(h)); });
    if (count == 1)
        return {1};
    return trapezoids(record.HorAngles, count, [span = lastOf(record.HorAngles, count)](double h) { return h / span; });
}

/// The weights of the vertical angles up to `highest` degrees. A zone across it is parted by its solid angle.
Weights verticalWeights(const PhotometricRecord &record, double highest)
{
    if (record.PhotometricType == kTypeB)
        return trapezoids(record.VertAngles, record.NumVertAngles,
                          [twice = mirrored(record.VertAngles)](double v) { return twice * radians(v); });
    return trapezoids(record.VertAngles, record.NumVertAngles,
                      [highest](double v) { return -2 * std::numbers::pi * std::cos(radians(std::min(v, highest))); });
}

/// One look at the values for both sums: a table may have a million.
struct Sums {
    double all = 0;
    double below = 0;
};

Sums sumsOf(const PhotometricRecord &record)
{
    const Weights horizontal = horizontalWeights(record);
    const Weights all = verticalWeights(record, 180);
    const Weights below = verticalWeights(record, 90);
    Sums sums;
    for (int h = 1; h <= record.NumHorzAngles; ++h) {
        const auto row = record.Candela.row(h);
        Sums plane;
        for (std::size_t v = 0; v < all.size(); ++v) {
            plane.all += all[v] * row[v];
            plane.below += below[v] * row[v];
        }
        const double weight = horizontal[static_cast<std::size_t>(h) - 1] * candelaFactor(record);
        sums.all += weight * plane.all;
        sums.below += weight * plane.below;
    }
    return sums;
}

}  // namespace

double candelaFactor(const PhotometricRecord &record)
{
    return double{record.CandelaMultiplier} * double{record.BallastFactor};
}

TableLumens tableLumens(const PhotometricRecord &record, const std::string &angleFault)
{
    if (const std::string reason = angleFault.empty() ? lumensFault(record) : angleFault; !reason.empty())
        return {Measure::unknown(reason), Measure::unknown(reason)};
    const Sums sums = sumsOf(record);
    if (record.PhotometricType == kTypeB)
        return {Measure(sums.all), Measure::unknown("Where type B points up and down depends on the aim.")};
    return {Measure(sums.all), Measure(sums.below)};
}

}  // namespace penwright
