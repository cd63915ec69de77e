#pragma once

#include <QPalette>
#include <QString>

namespace penwright {

/// The palette that help pages are shown in, which are written for white paper: on a light desktop one of paper, on a
/// dark one the desktop's own, with links that are legible on it.
QPalette helpPalette(const QPalette &desktop);

/// The text of a page or a style sheet with its colours turned from paper to a dark palette, light for dark, each of
/// its own hue; as it is where the palette is light. Pictures keep their colours.
QString withColoursOf(const QPalette &desktop, QString text);

/// The colour of lines around panes.
QColor paneLine(const QPalette &desktop);

}  // namespace penwright
