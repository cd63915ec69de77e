#pragma once

#include <cstdint>
#include <string>

#include "core/OneBased.h"

namespace penwright {

/// Values of PhotometricRecord::PhotometricType.
inline constexpr std::int16_t kTypeC = 1;
inline constexpr std::int16_t kTypeB = 2;

/// Values of PhotometricRecord::UnitsType.
inline constexpr std::int16_t kFeet = 1;
inline constexpr std::int16_t kMeters = 2;

/// One photometric file in memory: what the writer prints and the exchange store hands over. Copies are by value.
/// A record whose `TiltIncl` is false keeps the tilt fields it had; they are skipped on the way out.
struct PhotometricRecord {
    std::string PictureFilename;               ///< picture of the luminaire, passed through unchanged
    std::string Directory;                     ///< folder of the file with its trailing separator
    std::string Filename;                      ///< full name, or "new_file_" + number; records are matched by it
    OneBased<std::string> Keywords;            ///< header lines in output order, the format line first
    bool TiltIncl = false;                     ///< TILT=INCLUDE or TILT=NONE
    std::int16_t LampToLuminaireGeometry = 0;  ///< 1, 2 or 3
    std::int16_t NumTiltAngles = 0;
    OneBased<float> TiltAngles;  ///< degrees
    OneBased<float> TiltMultipliers;
    std::int16_t NumLamps = 0;
    float LumensPerLamp = 0;  ///< lumens; -1 marks absolute photometry
    float CandelaMultiplier = 0;
    std::int16_t NumVertAngles = 0;
    std::int16_t NumHorzAngles = 0;
    std::int16_t PhotometricType = 0;  ///< kTypeC or kTypeB
    std::int16_t UnitsType = 0;        ///< kFeet or kMeters
    float Width = 0;                   ///< luminous opening, in UnitsType; the sign tells the shape
    float Length = 0;
    float Height = 0;
    float BallastFactor = 0;
    float InputWatts = 0;
    OneBased<float> VertAngles;     ///< degrees, ascending
    OneBased<float> HorAngles;      ///< degrees, ascending
    OneBasedTable<double> Candela;  ///< candelas by (horizontal index, vertical index)
    std::string OptionalData;       ///< free text, passed through unchanged
    std::int16_t RecordFlag = 0;    ///< carried along by copies, otherwise unused

    bool operator==(const PhotometricRecord &) const = default;
};

}  // namespace penwright
