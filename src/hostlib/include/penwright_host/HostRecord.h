#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace penwright {

/// One photometric file as host and tool hand it over.
struct HostRecord {
    std::string filename;               ///< full path of a saved file, else "new_file_" and a number
    std::vector<std::string> keywords;  ///< header lines in the order of the file, the format line first
    bool tiltIncluded = false;          ///< TILT=INCLUDE; the tilt values count only then
    std::int16_t tiltGeometry = 0;      ///< lamp to luminaire geometry, 1 to 3
    std::vector<float> tiltAngles;      ///< degrees
    std::vector<float> tiltFactors;     ///< as many as angles
    std::int16_t lamps = 0;
    float lumensPerLamp = 0;  ///< -1 marks absolute photometry
    float candelaMultiplier = 0;
    std::int16_t photometricType = 0;  ///< 1 is type C, 2 is type B
    std::int16_t units = 0;            ///< 1 is feet, 2 is meters
    float width = 0;                   ///< luminous opening, in `units`; signs and zeros tell its shape
    float length = 0;
    float height = 0;
    float ballastFactor = 0;
    float inputWatts = 0;
    std::vector<float> horizontalAngles;  ///< degrees, ascending
    std::vector<float> verticalAngles;    ///< degrees, ascending
    std::vector<double> candela;          ///< all vertical angles of the first horizontal one, then of the next
    std::string optionalData;             ///< passed through unchanged
    std::string pictureFilename;          ///< passed through unchanged

    /// The value of a horizontal and a vertical angle by their places, counted from 0.
    double candelaAt(std::size_t horizontal, std::size_t vertical) const
    {
        return candela.at(horizontal * verticalAngles.size() + vertical);
    }

    bool operator==(const HostRecord &) const = default;
};

/// A record read from the store, or why not.
struct LoadedRecord {
    HostRecord record;
    std::string problem;  ///< "" when every value could be parsed, else what could not; the record is then incomplete
};

/// The text of the record's IES file as the tool writes it, lines ended by "\r\n". std::runtime_error when the number
/// of candelas is not that of the angles, or a list is longer than 32,767.
std::string iesText(const HostRecord &record);

}  // namespace penwright
