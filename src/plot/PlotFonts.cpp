#include "plot/PlotFonts.h"

#include <QFontMetricsF>

#include <algorithm>

namespace penwright {

namespace {

QFont smaller(QFont font)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * 0.8);
    else
        font.setPixelSize(std::max(1, font.pixelSize() * 4 / 5));
    return font;
}

}  // namespace

PlotFonts::PlotFonts(const QFont &font) : m_plain(font), m_figures(smaller(font)), m_letters(m_figures)
{
    m_letters.setBold(true);
}

PlotTextRoom PlotFonts::room() const
{
    const QFontMetricsF figures(m_figures);
    return {
        .plainHeight = QFontMetricsF(m_plain).capHeight(),
        .figureHeight = figures.capHeight(),
        .figureWidth = [figures](std::string_view text) { return figures.horizontalAdvance(QString::fromUtf8(text)); },
        .letterSize =
            [font = m_letters](std::string_view text) {
                const QFontMetricsF letters(font);
                return PlotTextSize{letters.horizontalAdvance(QString::fromUtf8(text)), letters.capHeight()};
            },
    };
}

}  // namespace penwright
