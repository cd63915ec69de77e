#pragma once

#include <QColor>

class QPalette;

namespace penwright {

/// What a picture looks like, whatever it shows.
struct PlotLook {
    QColor paper;
    QColor grid;
    QColor figures;  ///< degrees and candela
    QColor letters;  ///< "H" and "V"
    QColor plane;
    QColor cone;
    double curveWidth = 1;  ///< logical pixels
};

/// Paper in every palette: these curves and this grid are made for a light ground.
inline constexpr PlotLook kPaperLook{
    .paper{255, 255, 255},
    .grid{192, 192, 192},
    .figures{96, 96, 96},
    .letters{32, 32, 32},
    .plane{0, 0, 255},
    .cone{255, 0, 0},
};

/// In the colours of a palette, light or dark, with curves that stand out on its ground.
PlotLook plotLook(const QPalette &palette);

}  // namespace penwright
