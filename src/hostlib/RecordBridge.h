#pragma once

#include <penwright_host/HostRecord.h>

#include "core/PhotometricRecord.h"

namespace penwright {

/// A host's record as the program's own. Error 6 when a list is longer than 32,767, 9 when the lists disagree.
PhotometricRecord photometricRecord(const HostRecord &record);

/// The program's record as a host's. Error 9 when counts and arrays disagree.
HostRecord hostRecord(const PhotometricRecord &record);

}  // namespace penwright
