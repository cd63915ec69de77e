#pragma once

#include <QString>

namespace penwright {

/// The look of the host's window: light, quiet, one colour for the one button that starts things.
QString hostStyleSheet();

}  // namespace penwright
