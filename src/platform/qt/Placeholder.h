#pragma once

class QWidget;

namespace penwright {

/// Gives a window and all in it placeholder texts that are legible on the palette of the moment: some desktops' dark
/// palettes leave them black. To be called again when the application's palette changes.
void makePlaceholdersLegible(QWidget &window);

}  // namespace penwright
