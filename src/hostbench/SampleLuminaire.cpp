#include "hostbench/SampleLuminaire.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace penwright {

namespace {

double cosine(double degrees)
{
    return std::cos(degrees * std::numbers::pi / 180);
}

/// A direct and indirect luminaire: most light down, a soft second lobe up, wider across its long side.
double candelaAt(float horizontal, float vertical)
{
    const double down = cosine(vertical);
    const double side = 1 - down * down;
    const double across = 1 - cosine(2.0 * horizontal);
    const double lower = 2480.4 * std::pow(std::max(down, 0.0), 1.6);
    const double upper = 912.8 * std::pow(std::max(-down, 0.0), 1.2);
    const double value = lower * (1 + 0.21 * across * side) + upper * (1 + 0.34 * across * side);
    return static_cast<float>(std::round(value * 10) / 10);
}

void setTilt(PhotometricRecord &record)
{
    record.TiltIncl = true;
    record.LampToLuminaireGeometry = 1;
    record.TiltAngles = {0, 15, 30, 45, 60, 75, 90};
    record.TiltMultipliers = {1, 0.985F, 0.962F, 0.94F, 0.921F, 0.905F, 0.9F};
    record.NumTiltAngles = static_cast<std::int16_t>(record.TiltAngles.size());
}

void setDistribution(PhotometricRecord &record)
{
    record.PhotometricType = kTypeC;
    for (int degrees = 0; degrees <= 180; degrees += 5)
        record.VertAngles.append(static_cast<float>(degrees));
    record.HorAngles = {0, 22.5F, 45, 67.5F, 90};
    record.NumVertAngles = static_cast<std::int16_t>(record.VertAngles.size());
    record.NumHorzAngles = static_cast<std::int16_t>(record.HorAngles.size());
    record.Candela.reset(record.NumHorzAngles, record.NumVertAngles);
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(h, v) = candelaAt(record.HorAngles(h), record.VertAngles(v));
}

}  // namespace

PhotometricRecord sampleLuminaire()
{
    PhotometricRecord record;
    record.Filename = "sample luminaire";
    record.Keywords = {"IESNA:LM-63-2002",
                       "[TEST] 2214-07, goniophotometer, 8.5 m",
                       "[TESTLAB] Example Photometry Laboratory",
                       "[ISSUEDATE] 14-MAR-2024",
                       "[MANUFAC] Example Luminaires",
                       "[LUMCAT] DI-2x54-PA",
                       "[LUMINAIRE] Pendant, direct and indirect, painted louver",
                       "[LAMPCAT] T5-54-830",
                       "[LAMP] Two 54 W linear fluorescent lamps"};
    setTilt(record);
    record.NumLamps = 2;
    record.LumensPerLamp = 5000;
    record.CandelaMultiplier = 1;
    record.UnitsType = kMeters;
    record.Width = 0.18F;
    record.Length = 1.183F;
    record.Height = 0.06F;
    record.BallastFactor = 0.95F;
    record.InputWatts = 117.4F;
    setDistribution(record);
    record.OptionalData = "passed through, commas and all";
    record.PictureFilename = "pendant.png";
    return record;
}

}  // namespace penwright
