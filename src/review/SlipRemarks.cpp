#include <algorithm>
#include <cmath>
#include <span>

#include "core/NumberText.h"
#include "review/RemarkRules.h"
#include "review/ShownNumber.h"

namespace penwright {
namespace {

using Plane = std::span<const double>;

// A sign between thousands that was read as a decimal point leaves 1 to 999.999 of 1,000 to 999,999.
constexpr double kThousand = 1000;
constexpr double kNearThousand = 900;
constexpr double kLow = 100;
constexpr double kMostJump = 4;

Plane planeOf(const PhotometricRecord &record, int h)
{
    return record.Candela.row(h).first(static_cast<std::size_t>(record.NumVertAngles));
}

std::string placeText(const PhotometricRecord &record, int h, int v)
{
    return " at V " + generalText(record.VertAngles(v)) + ", H " + generalText(record.HorAngles(h));
}

/// Whether a value is a number of thousandths, as single precision holds it.
bool hasThreeDecimals(double value)
{
    return static_cast<float>(std::round(value * kThousand) / kThousand) == static_cast<float>(value);
}

/// A value of a plane that may have lost its thousands, and the neighbour that shows it.
struct LowValue {
    std::size_t at;
    double neighbour;
};

void add(const Reviewed &file, RuleRemarks &remarks, int h, const LowValue &low)
{
    const int v = static_cast<int>(low.at) + 1;
    remarks.add({RecordField::Candela, h, v}, [&] {
        return typedText(file.record.Candela(h, v)) + placeText(file.record, h, v) + " stands beside " +
               typedText(low.neighbour) + ": was a sign between thousands read as a decimal point?";
    });
}

/// Whether one value alone is low between two that are near a thousand or above it.
bool isLowAlone(Plane plane, std::size_t at)
{
    if (at == 0 || at + 1 >= plane.size() || !(plane[at] >= 1))
        return false;
    const double lower = std::min(plane[at - 1], plane[at + 1]);
    return lower >= kNearThousand && plane[at] < lower / 100 && hasThreeDecimals(plane[at]);
}

/// Whether a low value, were it thousands, would go on where a high one ends.
bool goesOn(double low, double high)
{
    return high >= kLow && kThousand * low < kMostJump * high;
}

/// A stretch of low values that would make one curve with what is around it if they were thousands: it has a high value
/// on at least one side and the end of the plane or another on the other, and decimals, at most three.
std::optional<LowValue> lowStretch(Plane plane, std::size_t begin, std::size_t end)
{
    const bool hasLeft = begin > 0;
    const bool hasRight = end < plane.size();
    if (!hasLeft && !hasRight)
        return std::nullopt;
    if ((hasLeft && !goesOn(plane[begin], plane[begin - 1])) || (hasRight && !goesOn(plane[end - 1], plane[end])))
        return std::nullopt;
    const Plane stretch = plane.subspan(begin, end - begin);
    const auto isWhole = [](double value) { return value == std::round(value); };
    if (!std::all_of(stretch.begin(), stretch.end(), hasThreeDecimals) ||
        std::all_of(stretch.begin(), stretch.end(), isWhole))
        return std::nullopt;
    return hasLeft ? LowValue{begin, plane[begin - 1]} : LowValue{end - 1, plane[end]};
}

void checkLowStretches(const Reviewed &file, RuleRemarks &remarks, int h)
{
    const Plane plane = planeOf(file.record, h);
    const auto isLow = [&](std::size_t at) { return plane[at] >= 1 && plane[at] < kLow; };
    for (std::size_t at = 0; at < plane.size(); ++at) {
        if (!isLow(at))
            continue;
        const std::size_t begin = at;
        while (at < plane.size() && isLow(at))
            ++at;
        if (at - begin == 1 && isLowAlone(plane, begin))
            continue;
        if (const auto low = lowStretch(plane, begin, at))
            add(file, remarks, h, *low);
    }
}

}  // namespace

void checkSpike(const Reviewed &file, RuleRemarks &remarks)
{
    if (!file.photometry.largest)
        return;
    const double least = 0.05 * file.photometry.largest->candela;
    for (int h = 1; h <= file.record.NumHorzAngles; ++h) {
        const Plane plane = planeOf(file.record, h);
        for (std::size_t at = 1; at + 1 < plane.size(); ++at)
            if (plane[at] > least && plane[at] > 3 * plane[at - 1] && plane[at] > 3 * plane[at + 1]) {
                const int v = static_cast<int>(at) + 1;
                remarks.add({RecordField::Candela, h, v}, [&] {
                    return typedText(plane[at]) + placeText(file.record, h, v) +
                           " stands out from its neighbours: a slip?";
                });
            }
    }
}

void checkThousandsSign(const Reviewed &file, RuleRemarks &remarks)
{
    if (!file.photometry.largest)
        return;
    const bool hasNoThousands = file.photometry.largest->candela < kThousand;
    for (int h = 1; h <= file.record.NumHorzAngles; ++h) {
        const Plane plane = planeOf(file.record, h);
        for (std::size_t at = 1; at + 1 < plane.size(); ++at)
            if (isLowAlone(plane, at))
                add(file, remarks, h, {at, plane[at - 1]});
        if (hasNoThousands)
            checkLowStretches(file, remarks, h);
    }
}

}  // namespace penwright
