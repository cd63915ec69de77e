#include "plot/PlotLook.h"

#include <QPalette>

#include "controls/MixedColour.h"

namespace penwright {

PlotLook plotLook(const QPalette &palette)
{
    const QColor paper = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const bool isDark = paper.lightness() < text.lightness();
    return {
        .paper = paper,
        .grid = lineColour(palette),
        .figures = quietText(palette),
        .letters = text,
        .plane = isDark ? QColor(0x6e, 0xa8, 0xe6) : QColor(0x1d, 0x5f, 0xa8),
        .cone = isDark ? QColor(0xf0, 0x8a, 0x78) : QColor(0xc0, 0x39, 0x2b),
        .curveWidth = 1.6,
    };
}

}  // namespace penwright
