#pragma once

#include <string>

#include "core/PhotometricRecord.h"

namespace penwright::test {

/// A record that carries one number in its name, three of its texts and its only candela value, so that a mixture of
/// two shows.
inline PhotometricRecord stamped(int number)
{
    PhotometricRecord record;
    record.Filename = record.OptionalData = record.PictureFilename = std::to_string(number);
    record.NumLamps = static_cast<std::int16_t>(number);
    record.NumHorzAngles = record.NumVertAngles = 1;
    record.HorAngles = record.VertAngles = {0};
    record.Candela.reset(1, 1);
    record.Candela(1, 1) = number;
    return record;
}

/// Whether all of a record comes from one; the last of a row is named "last".
inline bool isWhole(const PhotometricRecord &record)
{
    const std::string number = record.OptionalData;
    return record.PictureFilename == number && std::to_string(record.NumLamps) == number &&
           record.Candela.rows() == 1 && record.Candela(1, 1) == record.NumLamps &&
           (record.Filename == number || record.Filename == "last");
}

}  // namespace penwright::test
