#pragma once

#include <cstdint>
#include <vector>

#include "core/PhotometricRecord.h"

namespace penwright::test {

/// So many angles from 0 to the last one, in equal steps.
inline std::vector<float> evenAngles(int count, float last)
{
    std::vector<float> angles;
    for (int i = 0; i < count; ++i)
        angles.push_back(last * static_cast<float>(i) / static_cast<float>(count - 1));
    return angles;
}

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

/// Gives a record the candela values for its counts of angles, by the indexes of the horizontal and the vertical one.
template <typename Value>
void setCandela(PhotometricRecord &record, const Value &value)
{
    record.Candela.reset(record.NumHorzAngles, record.NumVertAngles);
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(h, v) = value(h, v);
}

}  // namespace penwright::test
