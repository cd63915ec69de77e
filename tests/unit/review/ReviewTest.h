#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/PhotometricRecord.h"
#include "support/PlotTables.h"
#include "support/RecordAngles.h"

namespace penwright::test {

/// A value for a direction: the horizontal angle, then the vertical one, degrees.
using Solid = std::function<double(double, double)>;

/// A record that gives no cause for any remark once its table does not: one lamp of 10,000 lm, 100 W, a rectangle of
/// 0.6 m x 1.2 m, the keywords of 2002.
inline PhotometricRecord plainRecord()
{
    PhotometricRecord record;
    record.Keywords = {"IESNA:LM-63-2002 ", "[TEST] 24-1187", "[TESTLAB] North Hall", "[ISSUEDATE] 14 May 2024",
                       "[MANUFAC] Example Lighting"};
    record.NumLamps = 1;
    record.LumensPerLamp = 10000;
    record.CandelaMultiplier = 1;
    record.BallastFactor = 1;
    record.InputWatts = 100;
    record.PhotometricType = kTypeC;
    record.UnitsType = kMeters;
    record.Width = 0.6F;
    record.Length = 1.2F;
    return record;
}

/// Gives a record the angles and the value of each direction.
inline PhotometricRecord withTable(PhotometricRecord record, std::int16_t type, const std::vector<float> &horizontal,
                                   const std::vector<float> &vertical, const Solid &solid)
{
    setAngles(record, type, horizontal, vertical);
    setCandela(record, [&](int h, int v) { return solid(record.HorAngles(h), record.VertAngles(v)); });
    return record;
}

}  // namespace penwright::test
