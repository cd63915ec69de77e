#pragma once

#include <functional>
#include <string_view>

#include "plot/PlotRuns.h"

namespace penwright {

/// A place in a picture box, in logical pixels: x to the right, y down.
struct PlotPixel {
    double x = 0;
    double y = 0;
};

/// An area of a picture box, in logical pixels.
struct PlotBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Where the points of a curve stand in a picture box.
struct PlotScale {
    PlotPixel origin;  ///< of the point (0, 0)
    double perX = 0;   ///< pixels
    double perY = 0;   ///< pixels

    PlotPixel placeOf(const PlotPoint &point) const { return {origin.x + point.x * perX, origin.y - point.y * perY}; }
};

/// The room of one text, in logical pixels.
struct PlotTextSize {
    double width = 0;
    double height = 0;
};

/// The room that texts take in the fonts of a picture, in logical pixels. A height is that of a capital letter.
struct PlotTextRoom {
    double plainHeight = 0;   ///< in the font of the box itself
    double figureHeight = 0;  ///< of degrees and candela
    std::function<double(std::string_view)> figureWidth;
    std::function<PlotTextSize(std::string_view)> letterSize;  ///< of "H" and "V"
};

/// Degrees between the radial lines.
inline constexpr int kPlotSpoke = 30;

/// Where the picture stands in its box, and how large a candela is.
struct PlotFrame {
    PlotPixel centre;
    double radius = 0;      ///< pixels from the centre to the outer ring
    double perCandela = 0;  ///< pixels, 0 when no value is above zero
    bool lettered = false;  ///< whether letters and figures stand around the outer ring

    /// The place `length` pixels from the centre; degrees from the right, turning left.
    PlotPixel polar(double length, double degrees) const;

    PlotScale scale() const { return {centre, perCandela, perCandela}; }

    /// The place of a point in candela.
    PlotPixel placeOf(const PlotPoint &point) const { return scale().placeOf(point); }
};

/// The largest round picture in an area whose outer ring is at `largest` candela, with room for letters around it where
/// the area is large enough. The centre is the middle of a pixel and the radius whole, so that the axes are sharp.
PlotFrame plotFrame(const PlotBox &area, const PlotTextRoom &room, double largest);

}  // namespace penwright
