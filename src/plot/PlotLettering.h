#pragma once

#include <string>
#include <vector>

#include "plot/PlotFrame.h"
#include "plot/PlotRings.h"

namespace penwright {

/// A text in the middle of its box.
struct PlotFigure {
    std::string text;
    PlotBox box;
};

/// A text that begins at a place on its base line.
struct PlotLetter {
    std::string text;
    PlotPixel begin;
};

/// A small solid triangle that points at a direction.
struct PlotMark {
    PlotPixel tip;
    PlotPixel left;
    PlotPixel right;
};

/// The texts of a picture and where they stand.
struct PlotLettering {
    std::vector<PlotFigure> degrees;   ///< the vertical angles around the outer ring
    std::vector<PlotFigure> candelas;  ///< of the rings; a little paper below each keeps it off the lines
    std::vector<PlotLetter> letters;   ///< "V" and "H" at the ends of their axes, "H 0" at the mark
    std::vector<PlotMark> marks;       ///< of horizontal angle 0, where there is a cone
};

/// The letters and, where the frame has room for them, the figures. Type C counts from nadir up on both sides and has
/// the candela right of the upper axis; the others know the right half only and have them left of it. A candela figure
/// without room below the one outside it is left out. Type C has a cone, unless a second plane stands in its place.
PlotLettering plotLettering(const PlotFrame &frame, const PlotTextRoom &room, bool typeC,
                            const std::vector<PlotRing> &rings, bool hasTwoPlanes = false);

}  // namespace penwright
