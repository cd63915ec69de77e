#pragma once

#include <cmath>
#include <random>
#include <string>

#include "core/PhotometricRecord.h"

namespace penwright::test {

/// Records whose counts agree with their arrays, with numbers of every size and texts with commas, blanks, signs,
/// letters beyond ASCII and empty lines.
class RandomRecord {
public:
    explicit RandomRecord(unsigned seed) : m_random(seed) {}

    PhotometricRecord make()
    {
        PhotometricRecord record;
        record.PictureFilename = text();
        record.Directory = "C:\\";
        record.Filename = "new_file_" + std::to_string(below(100)) + text();
        for (int lines = below(6); lines > 0; --lines)
            record.Keywords.append(below(4) == 0 ? "" : "[" + text() + "]");
        record.TiltIncl = below(2) == 0;
        record.LampToLuminaireGeometry = whole(4);
        record.NumTiltAngles = whole(6);
        fill(record.TiltAngles, record.NumTiltAngles);
        fill(record.TiltMultipliers, record.NumTiltAngles);
        record.NumLamps = whole(32768);
        for (float *number : {&record.LumensPerLamp, &record.CandelaMultiplier, &record.Width, &record.Length,
                              &record.Height, &record.BallastFactor, &record.InputWatts})
            *number = single();
        record.PhotometricType = whole(3);
        record.UnitsType = whole(3);
        record.NumVertAngles = whole(9);
        record.NumHorzAngles = whole(9);
        fill(record.VertAngles, record.NumVertAngles);
        fill(record.HorAngles, record.NumHorzAngles);
        record.Candela.reset(record.NumHorzAngles, record.NumVertAngles);
        for (int h = 1; h <= record.NumHorzAngles; ++h)
            for (int v = 1; v <= record.NumVertAngles; ++v)
                record.Candela(h, v) = below(3) == 0 ? number() : double{single()};
        record.OptionalData = text();
        return record;
    }

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

private:
    std::int16_t whole(int limit) { return static_cast<std::int16_t>(below(limit)); }

    double number()
    {
        static constexpr double kPlain[]{0, 1, -1, 0.5, -0.5, 0.1, 90, 180, 360, 1000000, 9999999, 10000000, 0.0001};
        if (below(2) == 0)
            return kPlain[below(static_cast<int>(std::size(kPlain)))];
        const double digits = std::uniform_real_distribution<double>(-1000, 1000)(m_random);
        return digits * std::pow(10.0, below(24) - 12);
    }

    float single() { return static_cast<float>(number()); }

    void fill(OneBased<float> &numbers, int count)
    {
        numbers.reset(count);
        for (float &n : numbers)
            n = single();
    }

    std::string text()
    {
        static constexpr const char *kPieces[]{"TEST", " ", ",", "-1", "\xc3\xa4", "[", "\\", "\t", "\"", "", "1E+07"};
        std::string all;
        for (int pieces = below(6); pieces > 0; --pieces)
            all += kPieces[below(static_cast<int>(std::size(kPieces)))];
        return all;
    }

    std::mt19937 m_random;
};

}  // namespace penwright::test
