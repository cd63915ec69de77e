#pragma once

#include "core/PhotometricRecord.h"

namespace penwright {

/// Whether a record has angles of both kinds, so that there is a table for its values.
inline bool hasAngles(const PhotometricRecord &record)
{
    return record.NumVertAngles > 0 && record.NumHorzAngles > 0;
}

}  // namespace penwright
