#pragma once

#include <optional>
#include <string>
#include <vector>

#include "plot/PlotField.h"

namespace penwright {

/// One value of a curve, as it is read off the picture.
struct PlotReading {
    bool isCone = false;
    double horizontal = 0;  ///< degrees; of the opposite plane where the value is one of its
    double vertical = 0;    ///< degrees
    double candela = 0;
    PlotPoint point;        ///< in the picture
    std::size_t place = 0;  ///< in the order of its curve, counted from 0
};

/// The values of a picture's plane or cone in the order in which its line runs: the plane from the end of the opposite
/// one through nadir to its own; the cone once around. Gaps have no part in it.
std::vector<PlotReading> readingsOf(const PlotCurves &curves, bool isCone);

/// The value that a pointer is at: of the curve whose line is nearest, the value that is nearest. None when there is no
/// value at all.
std::optional<PlotReading> readingAt(const PlotCurves &curves, const PlotScales &scales, const PlotPixel &pointer);

/// Where keys lead on a picture.
enum class PlotStep { Next, Previous, First, Last, OtherCurve };

/// The value that a step leads to. From none, or where the curve has become shorter, to the plane's first one, else the
/// cone's; at an end, and where there is no other curve, to the same. On the other curve it is the first one.
std::optional<PlotReading> readingAfter(const PlotCurves &curves, const std::optional<PlotReading> &from,
                                        PlotStep step);

/// What stands at a reading's place in another picture; none where its curve has become shorter.
std::optional<PlotReading> readingAgain(const PlotCurves &curves, const PlotReading &reading);

/// "H 90, V 35: 1234.5 cd".
std::string readingText(const PlotReading &reading);

}  // namespace penwright
