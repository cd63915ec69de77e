#pragma once

#include <string>

#include "core/PhotometricRecord.h"

namespace penwright {

/// The name under which a file may be saved: its catalog number ([LUMCAT]), else its maker ([MANUFAC]), else the name
/// that it came with, and ".ies". What a folder, another system or a shell would stumble over becomes "-"; at most 100
/// bytes, no character cut in two.
std::string proposedFileName(const PhotometricRecord &record);

}  // namespace penwright
