#pragma once

#include <QPalette>
#include <QString>

namespace penwright {

/// The look of the host's window: quiet, one colour for the one button that starts things. All else is mixed from the
/// palette, so that it is as legible on dark as on light.
QString hostStyleSheet(const QPalette &palette);

}  // namespace penwright
