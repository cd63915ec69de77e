#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>

namespace penwright {

/// Where the picture stands, in logical pixels: its centre, and the length from there to the outer ring.
struct PlotFrame {
    QPointF centre;
    double radius = 0;
    bool lettered = false;  ///< whether letters and figures stand around the outer ring

    /// The place `length` pixels from the centre; degrees from the right, turning left.
    QPointF polar(double length, double degrees) const;
};

/// The largest round picture in an area, with room for letters around it where the area is large enough. The
/// centre is the middle of a pixel and the radius whole, so that the axes are sharp.
PlotFrame plotFrame(const QRectF &area, const QFont &font);

/// The smaller font of the figures of a plot.
QFont plotFigureFont(QFont font);

}  // namespace penwright
