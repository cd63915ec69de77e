#include "plot/PlotRings.h"

#include <algorithm>
#include <cmath>

#include "core/NumberText.h"

namespace penwright {

namespace {

constexpr double kSingleSlack = 1 + 1e-6;  // 0.1 as a single is a little more than 0.1

/// The smallest round step that needs no more than five circles.
double roundStep(double largest)
{
    const double power = std::pow(10.0, std::floor(std::log10(largest / 5)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (largest <= 5 * factor * power * kSingleSlack)
            return factor * power;
    return 10 * power;
}

/// Whole candela from 1,000 up, four digits below: the figure must be short beside a ring of a small picture.
std::string figureOf(double candela)
{
    const double digit = std::pow(10.0, std::min(0.0, std::floor(std::log10(candela)) - 3));
    return generalText(toSingle(std::round(candela / digit) * digit));
}

}  // namespace

std::vector<PlotRing> plotRings(double largest)
{
    std::vector<PlotRing> rings;
    if (!(largest > 0))
        return rings;
    const double step = roundStep(largest);
    for (int i = 1; i * step < largest - step / 4; ++i)
        rings.push_back({i * step, generalText(toSingle(i * step))});
    rings.push_back({largest, figureOf(largest)});
    return rings;
}

}  // namespace penwright
