#pragma once

#include <QFont>

#include <vector>

#include "plot/PlotFrame.h"
#include "plot/PlotRings.h"

class QPainter;

namespace penwright {

/// Paints the letters "H" and "V" at the ends of their axes and, where the frame has room for it, the vertical angles
/// around the outer ring and the candela of the rings.
void paintPlotLettering(QPainter &painter, const PlotFrame &frame, const QFont &font, bool typeC,
                        const std::vector<PlotRing> &rings);

}  // namespace penwright
