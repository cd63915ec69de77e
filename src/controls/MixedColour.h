#pragma once

#include <QColor>

namespace penwright {

/// A colour between two others, in which `over` has the given share, from 0 to 1.
inline QColor mixedColour(const QColor &over, const QColor &under, float share)
{
    const auto mix = [share](float a, float b) { return share * a + (1 - share) * b; };
    return QColor::fromRgbF(mix(over.redF(), under.redF()), mix(over.greenF(), under.greenF()),
                            mix(over.blueF(), under.blueF()));
}

}  // namespace penwright
