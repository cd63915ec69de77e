#include "review/Lumens.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <numeric>
#include <vector>

#include "review/TableFault.h"

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

/// Why the table gives no lumens although it can be read, "" when it does.
std::string lumensFault(const PhotometricRecord &record)
{
    if (std::string falling = fallingAngles(record); !falling.empty())
        return falling;
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

double sum(const PhotometricRecord &record, const Weights &horizontal, const Weights &vertical)
{
    double all = 0;
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        all += horizontal[static_cast<std::size_t>(h) - 1] *
               std::inner_product(vertical.begin(), vertical.end(), record.Candela.row(h).begin(), 0.0);
    return all * candelaFactor(record);
}

}  // namespace

double candelaFactor(const PhotometricRecord &record)
{
    return double{record.CandelaMultiplier} * double{record.BallastFactor};
}

TableLumens tableLumens(const PhotometricRecord &record, const std::string &fault)
{
    if (const std::string reason = fault.empty() ? lumensFault(record) : fault; !reason.empty())
        return {Measure::unknown(reason), Measure::unknown(reason)};
    const Weights horizontal = horizontalWeights(record);
    const Measure all(sum(record, horizontal, verticalWeights(record, 180)));
    if (record.PhotometricType == kTypeB)
        return {all, Measure::unknown("Where type B points up and down depends on the aim.")};
    return {all, Measure(sum(record, horizontal, verticalWeights(record, 90)))};
}

}  // namespace penwright
