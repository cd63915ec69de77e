#pragma once

#include <QFont>
#include <QRectF>

#include "plot/PlotLook.h"
#include "plot/PlotPicture.h"

class QPainter;

namespace penwright {

/// Paints paper, grid, letters, figures and curves into an area of any paint device, with figures in a smaller size of
/// the font. A picture without rings is the grid alone, without candela.
void paintPlot(QPainter &painter, const QRectF &area, const QFont &font, const PlotPicture &picture,
               const PlotLook &look);

}  // namespace penwright
