#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "core/IesNumbers.h"
#include "core/PhotometricRecord.h"

namespace penwright {

/// An IES file as it was read, with what a record cannot hold.
struct IesContent {
    PhotometricRecord record;      ///< without names of file and folder
    int year = 1986;               ///< of the format's version: 1986, 1991, 1995, 2002 or 2019
    std::string tiltFile;          ///< the file named behind "TILT=", which is not read; else ""
    double ballastLampFactor = 1;  ///< the ballast line's second number: a factor up to 1995, 1 in 2002, and in 2019
                                   ///< how the file came about
};

/// Reads the bytes of an IES LM-63 file of 1986 to 2019, types C and B: UTF-8, UTF-16 with a mark, or Latin-1, lines
/// that end with "\r\n", "\n" or "\r", numbers in whatever lines they stand, up to a Ctrl+Z with nothing behind it.
/// A file that says something else than the format, or that a record cannot hold, is refused with the first fault.
/// Takes time and memory in proportion to the bytes, whatever they announce. Lines before "TILT=" stay as they stand,
/// so that the writer makes the same text of a file that it wrote; angles may be equal. `goOn` is asked now and then
/// with the part that is read, 0 to 1; when it says no, the fault has no text.
std::variant<IesContent, IesFault> readIesFile(std::string_view bytes, const std::function<bool(double)> &goOn = {});

}  // namespace penwright
