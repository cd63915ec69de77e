#pragma once

#include "plot/PlotCurves.h"
#include "plot/PlotFrame.h"

class QPainter;
class QPen;

namespace penwright {

/// Paints a curve: its runs as smooth lines of even weight however close their points are, a lone value as a dot.
void paintCurve(QPainter &painter, const PlotScale &scale, const PlotCurve &curve, const QPen &pen);

}  // namespace penwright
