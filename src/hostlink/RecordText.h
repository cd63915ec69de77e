#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/PhotometricRecord.h"

namespace penwright {

/// The field words of the eleven texts that carry one record, in the order in which they are written. The value of
/// file number k is named by the word immediately followed by the decimal k: "Filename1", "Candela12".
inline constexpr std::array<std::string_view, 11> kRecordWords{
    "Filename",  "Keywords",   "KeywordData", "TiltIncl",     "TiltData",       "OtherData",
    "HorAngles", "VertAngles", "Candela",     "OptionalData", "PictureFilename"};

/// "Filename" and 12 make "Filename12".
std::string recordValueName(std::string_view word, int fileNumber);

/// Hands every text of the record to `write` as (field word, text), in table order; "KeywordData" only when there are
/// keyword lines, "TiltData" only when tilt is included. Error 9 when counts and arrays disagree.
void writeRecordTexts(const PhotometricRecord &record,
                      const std::function<void(std::string_view word, std::string text)> &write);

/// A record read back from its texts, or why not.
struct ReadRecord {
    PhotometricRecord record;
    std::string problem;  ///< "" when all values could be parsed, else the problem text of the value that could not
};

/// Parses the texts that `read` gives for each field word. The counts decide: missing keyword lines are empty, what is
/// beyond a count is ignored, fewer numbers than counted are that value's problem. Numbers go by their leading value.
/// Keyword lines end with CR LF or with LF alone.
ReadRecord readRecordTexts(const std::function<std::string(std::string_view word)> &read);

}  // namespace penwright
