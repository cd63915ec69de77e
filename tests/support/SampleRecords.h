#pragma once

#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "core/PhotometricRecord.h"
#include "support/RecordAngles.h"

namespace penwright::test {

/// A small whole record of type C without tilt: 3 vertical by 2 horizontal angles.
inline PhotometricRecord smallRecord()
{
    PhotometricRecord record;
    record.Filename = "small.ies";
    record.Keywords = {"IESNA:LM-63-2002", "[TEST] 1", "[MANUFAC] A"};
    record.NumLamps = 1;
    record.LumensPerLamp = 1000;
    record.CandelaMultiplier = 1;
    record.UnitsType = kFeet;
    record.Width = 0.5F;
    record.Length = -2;
    record.BallastFactor = 0.95F;
    record.InputWatts = 150;
    setAngles(record, kTypeC, {0, 90}, {0, 45, 90});
    setCandela(record, [](int h, int v) { return 100 * h + v; });
    return record;
}

/// Records of every size and kind for comparisons with a model.
class RandomRecords {
public:
    explicit RandomRecords(unsigned seed) : m_random(seed) {}

    PhotometricRecord next()
    {
        PhotometricRecord record;
        static const char *const kFirst[]{"IESNA91",           "IESNA:LM-63-1995", "IESNA:LM-63-2002",
                                          "IESNA:LM-63-2002 ", "iesna:lm-63-2002", "[TEST] oldest"};
        record.Filename = "random " + std::to_string(below(1000)) + ".ies";
        record.Keywords.append(kFirst[below(6)]);
        for (int i = below(5); i > 0; --i)
            record.Keywords.append(below(4) == 0 ? ""
                                                 : "[OTHER] " + std::string(static_cast<std::size_t>(below(300)), 'k'));
        record.TiltIncl = below(2) == 1;
        record.LampToLuminaireGeometry = static_cast<std::int16_t>(below(4));
        record.NumTiltAngles = static_cast<std::int16_t>(below(60));
        fill(record.TiltAngles, record.NumTiltAngles);
        fill(record.TiltMultipliers, record.NumTiltAngles);
        record.NumLamps = static_cast<std::int16_t>(below(65536) - 32768);
        record.PhotometricType = static_cast<std::int16_t>(1 + below(2));
        record.UnitsType = static_cast<std::int16_t>(1 + below(2));
        for (float *value : {&record.LumensPerLamp, &record.CandelaMultiplier, &record.Width, &record.Length,
                             &record.Height, &record.BallastFactor, &record.InputWatts})
            *value = single();
        record.NumVertAngles = static_cast<std::int16_t>(below(90));
        record.NumHorzAngles = static_cast<std::int16_t>(below(12));
        fill(record.VertAngles, record.NumVertAngles);
        fill(record.HorAngles, record.NumHorzAngles);
        setCandela(record, [this](int, int) { return single(); });
        record.OptionalData = below(2) ? "" : "free, text\r\n" + std::to_string(below(9));
        record.PictureFilename = below(2) ? "" : "picture.png";
        return record;
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    float single()
    {
        switch (below(5)) {
            case 0:
                return static_cast<float>(below(20000));
            case 1:
                return static_cast<float>(below(100000)) / 1000;
            case 2:
                return -static_cast<float>(below(1000)) / 8;
            case 3:
                return std::ldexp(static_cast<float>(below(1 << 24)), below(60) - 40);
            default:
                return 0;
        }
    }

    void fill(OneBased<float> &numbers, int count)
    {
        for (int i = 0; i < count; ++i)
            numbers.append(single());
    }

    std::mt19937 m_random;
};

}  // namespace penwright::test
