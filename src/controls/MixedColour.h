#pragma once

#include <QColor>
#include <QPalette>

namespace penwright {

/// A colour between two others, in which `over` has the given share, from 0 to 1.
inline QColor mixedColour(const QColor &over, const QColor &under, float share)
{
    const auto mix = [share](float a, float b) { return share * a + (1 - share) * b; };
    return QColor::fromRgbF(mix(over.redF(), under.redF()), mix(over.greenF(), under.greenF()),
                            mix(over.blueF(), under.blueF()));
}

/// The colour of texts that step back behind others, in any palette: enough of the text's own colour to stay readable
/// for weak eyes. The palette's own role for it is black in some desktops' dark palettes.
inline QColor quietText(const QPalette &palette, QPalette::ColorRole text = QPalette::Text,
                        QPalette::ColorRole ground = QPalette::Base)
{
    return mixedColour(palette.color(text), palette.color(ground), 0.70F);
}

/// The colour of lines around pictures and lists, in any palette.
inline QColor frameColour(const QPalette &palette)
{
    return mixedColour(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.40F);
}

/// The colour of thin lines between values, in any palette.
inline QColor lineColour(const QPalette &palette)
{
    return mixedColour(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.22F);
}

}  // namespace penwright
