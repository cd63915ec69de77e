#pragma once

#include "core/OneBased.h"
#include "core/PhotometricRecord.h"
#include "core/StartupState.h"

namespace penwright {

/// What the whole process works on; made once, at start-up.
struct ToolState {
    StartupState start;
    OneBased<PhotometricRecord> PhotFiles;          ///< slot 1 is the new file
    OneBased<PhotometricRecord> CandelaWorkRecord;  ///< the candela page's working copy in slot 1, once it was built
};

}  // namespace penwright
