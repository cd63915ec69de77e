#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/PhotometricRecord.h"

namespace penwright {

/// Ends every line of an IES file.
inline constexpr std::string_view kIesLineEnd = "\r\n";

/// The folded line width of a header: 256 characters for the 2002 format line alone, 132 for any other first line.
/// The comparison is exact: "IESNA:LM-63-2002 " with a trailing blank, as the keyword page stores it, counts as any
/// other.
std::int16_t foldWidth(std::string_view firstLine);

/// Appends the text of the record's IES LM-63 file, without the line end of its last line. Errors 6 and 9 when counts
/// and arrays of the record disagree; what was appended before stays.
void appendIesText(std::string &text, const PhotometricRecord &record);

/// The text of the record's IES file as it stands on disk; error 6 or 9 when its counts and arrays disagree.
std::string iesFileText(const PhotometricRecord &record);

}  // namespace penwright
