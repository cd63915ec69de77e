#pragma once

#include "core/PhotometricRecord.h"

namespace penwright {

/// A whole luminaire that touches every part of the file format: keywords, a tilt block, 37 vertical by 5 horizontal
/// angles in quadrant symmetry, nadir and zenith the same in all planes, rows long enough to be folded, and candelas
/// whose decimals show that they passed through single precision.
PhotometricRecord sampleLuminaire();

}  // namespace penwright
