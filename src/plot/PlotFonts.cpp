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

std::function<double(std::string_view)> widthIn(const QFontMetricsF &metrics)
{
    return [metrics](std::string_view text) { return metrics.horizontalAdvance(QString::fromUtf8(text)); };
}

}  // namespace

PlotFonts::PlotFonts(const QFont &font) : m_plain(font), m_figures(smaller(font)), m_letters(m_figures)
{
    m_letters.setBold(true);
}

PlotTextRoom PlotFonts::room() const
{
    const QFontMetricsF figures(m_figures);
    const QFontMetricsF letters(m_letters);
    return {
        .plainHeight = QFontMetricsF(m_plain).capHeight(),
        .figureHeight = figures.capHeight(),
        .letterHeight = letters.capHeight(),
        .figureWidth = widthIn(figures),
        .letterWidth = widthIn(letters),
    };
}

}  // namespace penwright
