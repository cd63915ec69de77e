#pragma once

#include <cstdint>

#include "core/PhotometricRecord.h"
#include "support/RecordAngles.h"

namespace penwright {

/// Gives a record of type C as many vertical as horizontal angles, once around; it has no values yet.
inline void setSquareAngles(PhotometricRecord &record, int side)
{
    test::setAngles(record, kTypeC, test::evenAngles(side, 360), test::evenAngles(side, 180));
}

/// The record of one lamp with a square table. `candela` gives the value for a horizontal and a vertical index.
template <typename Candela>
PhotometricRecord squareRecord(int side, const Candela &candela)
{
    PhotometricRecord record;
    record.Keywords = {"IESNA:LM-63-2002"};
    record.UnitsType = kMeters;
    record.NumLamps = 1;
    record.LumensPerLamp = record.CandelaMultiplier = record.BallastFactor = record.InputWatts = 1;
    setSquareAngles(record, side);
    test::setCandela(record, candela);
    return record;
}

}  // namespace penwright
