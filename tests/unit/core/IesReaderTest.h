#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "core/IesReader.h"
#include "support/RecordAngles.h"

namespace penwright::test {

/// What was read; a file that is refused fails the test and gives an empty record.
inline IesContent iesContentOf(std::string_view bytes)
{
    const auto reading = readIesFile(bytes);
    if (const IesFault *fault = std::get_if<IesFault>(&reading)) {
        ADD_FAILURE() << fault->text;
        return {};
    }
    return std::get<IesContent>(reading);
}

/// The sentence that a file is refused with, "" when it is read.
inline std::string refusalOf(std::string_view bytes)
{
    const auto reading = readIesFile(bytes);
    const IesFault *fault = std::get_if<IesFault>(&reading);
    return fault != nullptr ? fault->text : "";
}

/// A text with a part of it replaced, where the part stands first.
inline std::string with(std::string text, std::string_view part, std::string_view other)
{
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return at == std::string::npos ? text : text.replace(at, part.size(), other);
}

/// A file with tilt data in which every number is another one.
inline const std::string kWholeFile =
    "IESNA:LM-63-1995\r\n[TEST] 24-1187\r\n[MANUFAC] Example Lighting\r\nTILT=INCLUDE\r\n2\r\n3\r\n0 45 90\r\n"
    "1 0.95 0.9\r\n4 4450.5 1.25 5 2 1 2 0.18 -1.183 0.06\r\n0.97 1 117.4\r\n0 22.5 45 67.5 90\r\n0 180\r\n"
    "101 102 103 104 105\r\n201 202 203 204 205.75\r\n";

/// The record of kWholeFile.
inline PhotometricRecord wholeRecord()
{
    PhotometricRecord record;
    record.Keywords = {"IESNA:LM-63-1995", "[TEST] 24-1187", "[MANUFAC] Example Lighting"};
    record.TiltIncl = true;
    record.LampToLuminaireGeometry = 2;
    record.NumTiltAngles = 3;
    record.TiltAngles = {0, 45, 90};
    record.TiltMultipliers = {1, 0.95F, 0.9F};
    record.NumLamps = 4;
    record.LumensPerLamp = 4450.5F;
    record.CandelaMultiplier = 1.25F;
    record.UnitsType = kMeters;
    record.Width = 0.18F;
    record.Length = -1.183F;
    record.Height = 0.06F;
    record.BallastFactor = 0.97F;
    record.InputWatts = 117.4F;
    setAngles(record, kTypeC, {0, 180}, {0, 22.5F, 45, 67.5F, 90});
    setCandela(record, [](int h, int v) { return 100 * h + v; });
    record.Candela(2, 5) = 205.75;
    return record;
}

/// The same with TILT=NONE.
inline const std::string kFileWithoutTilt =
    with(kWholeFile, "INCLUDE\r\n2\r\n3\r\n0 45 90\r\n1 0.95 0.9\r\n", "NONE\r\n");

inline PhotometricRecord recordWithoutTilt()
{
    PhotometricRecord record = wholeRecord();
    record.TiltIncl = false;
    record.LampToLuminaireGeometry = record.NumTiltAngles = 0;
    record.TiltAngles.clear();
    record.TiltMultipliers.clear();
    return record;
}

}  // namespace penwright::test
