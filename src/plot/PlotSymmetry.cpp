#include "plot/PlotSymmetry.h"

#include <cmath>

namespace penwright {

namespace {

PlotSymmetry symmetryOf(float first, float last)
{
    const float span = last - first;
    if (span == 0)
        return PlotSymmetry::Rotational;
    if (span == 90)
        return PlotSymmetry::Quadrants;
    if (span == 180)
        return PlotSymmetry::Mirrored;
    return PlotSymmetry::AsGiven;
}

/// The angle turned forward from 0, at least 0 and less than 360.
double turned(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0 ? rest + 360 : rest;
}

}  // namespace

PlotCircle::PlotCircle(float first, float last) : m_first(first), m_last(last), m_symmetry(symmetryOf(first, last)) {}

std::optional<float> PlotCircle::listedAngle(double direction) const
{
    double ahead = turned(direction - double{m_first});
    switch (m_symmetry) {
        case PlotSymmetry::Rotational:
            return m_first;
        case PlotSymmetry::Quadrants:
            ahead = std::fmod(ahead, 180.0);
            if (ahead > 90)
                ahead = 180 - ahead;
            break;
        case PlotSymmetry::Mirrored:
            if (ahead > 180)
                ahead = 360 - ahead;
            break;
        case PlotSymmetry::AsGiven:
            break;
    }
    // Rounded before it is compared: 0.1 + 180 is the listed 180.1 in single precision only.
    const auto listed = static_cast<float>(double{m_first} + ahead);
    if (listed > m_last)
        return std::nullopt;
    return listed;
}

std::vector<PlotCircle::Stretch> PlotCircle::stretches() const
{
    const float first = m_first;
    if (m_symmetry == PlotSymmetry::Quadrants)
        return {{first, false}, {first + 90, true}, {first + 180, false}, {first + 270, true}};
    if (m_symmetry == PlotSymmetry::Mirrored)
        return {{first, false}, {first + 180, true}};
    return {{first, false}};
}

}  // namespace penwright
