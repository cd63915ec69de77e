#pragma once

#include <cstdint>
#include <vector>

#include "core/PhotometricRecord.h"

namespace penwright::test {

/// Gives a record its photometric type and angles; the values stay as they are.
inline void setAngles(PhotometricRecord &record, std::int16_t type, const std::vector<float> &horizontal,
                      const std::vector<float> &vertical)
{
    record.PhotometricType = type;
    record.HorAngles.clear();
    record.VertAngles.clear();
    for (const float angle : horizontal)
        record.HorAngles.append(angle);
    for (const float angle : vertical)
        record.VertAngles.append(angle);
    record.NumHorzAngles = static_cast<std::int16_t>(horizontal.size());
    record.NumVertAngles = static_cast<std::int16_t>(vertical.size());
}

}  // namespace penwright::test
