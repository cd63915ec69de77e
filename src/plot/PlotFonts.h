#pragma once

#include <QFont>

#include "plot/PlotFrame.h"

namespace penwright {

/// The fonts of a picture in a box with a font of its own: smaller ones, the letters bold.
class PlotFonts {
public:
    explicit PlotFonts(const QFont &font);

    const QFont &figures() const { return m_figures; }
    const QFont &letters() const { return m_letters; }

    PlotTextRoom room() const;

private:
    QFont m_plain;
    QFont m_figures;
    QFont m_letters;
};

}  // namespace penwright
