#pragma once

#include <string>
#include <vector>

#include "plot/PlotCurves.h"

namespace penwright {

/// An axis of angles of a linear picture, in degrees; `first` is less than `last`.
struct PlotAxis {
    double first = 0;
    double last = 0;
    double step = 0;  ///< between two figures
};

/// The axis of the vertical plane: the listed vertical angles; for type C, where the opposite plane is known, these
/// angles to the right of 0 and, with the opposite plane, as many to the left.
PlotAxis planeAxis(const PlotCurves &curves);

/// The axis of the cone: once around from the first listed horizontal angle on, and to the last one where that is more.
PlotAxis coneAxis(const PlotCurves &curves);

/// Where figures stand: the multiples of the step, at most nine of them, and never more than the axis is long.
std::vector<double> figuredAngles(const PlotAxis &axis);

/// The horizontal angle of a direction counted on around the circle, from 0 to 360 degrees: 450 is 90.
double horizontalAngle(double degrees);

}  // namespace penwright
