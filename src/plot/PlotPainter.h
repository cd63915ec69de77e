#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>

#include <vector>

#include "plot/PlotCurves.h"
#include "plot/PlotRings.h"

class QPainter;

namespace penwright {

/// The plot is paper in every palette: the fixed colours of its curves and its grid are made for a light ground.
inline constexpr QColor kPlotPaper{255, 255, 255};
inline constexpr QColor kPlotGrid{192, 192, 192};
inline constexpr QColor kPlaneColour{0, 0, 255};
inline constexpr QColor kConeColour{255, 0, 0};

/// Degrees between the radial lines.
inline constexpr int kPlotSpoke = 30;

/// Paints paper, grid, letters, figures and curves. Without rings the grid stands empty and without figures.
void paintPlot(QPainter &painter, const QRectF &area, const QFont &font, const PlotCurves &curves,
               const std::vector<PlotRing> &rings);

}  // namespace penwright
