#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace penwright {

/// A line's keyword and what it is for.
struct KeywordEntry {
    std::string_view keyword;
    std::string_view description;
};

/// The standard keywords in the order in which the drop-down list offers them.
inline constexpr std::array<KeywordEntry, 20> kStandardKeywords{{
    {"[TEST]", "Test report number"},
    {"[TESTLAB]", "Photometric testing laboratory"},
    {"[TESTDATE]", "Date that the photometric report was generated"},
    {"[NEARFIELD]", "This indicates that the report was tested using near field photometry."},
    {"[MANUFAC]", "Manufacturer of luminaire"},
    {"[LUMCAT]", "Luminaire catalog number"},
    {"[LUMINAIRE]", "Luminaire description"},
    {"[LAMPCAT]", "Lamp catalog number"},
    {"[LAMP]", "Lamp description (i.e., type, wattage, size, etc.)"},
    {"[BALLAST]", "Ballast description (i.e., watts, volts, magnetic or electronic, etc.)"},
    {"[BALLASTCAT]", "Ballast catalog number"},
    {"[MAINTCAT]", "A digit (1-6) indicating the IESNA maintenance category (see help)"},
    {"[DISTRIBUTION]", "General description of the photometric distribution (e.g., Type II, Medium, Direct, SC=1.5)"},
    {"[FLASHAREA]",
     "Light emitting area of the luminaire projected under 76 degrees in square meters. Used in calculation of CIE "
     "Discomfort Glare Mark."},
    {"[COLORCONSTANT]", "Used in calculation of CIE glare control"},
    {"[LAMPPOSITION]",
     "Two angles, separated by a space or comma delimiter, that determine lamp position within the luminaire with "
     "respect to the photometric angles (see help)"},
    {"[ISSUEDATE]", "Date that the manufacturer issued the IES file"},
    {"[OTHER]", "Other information about this file"},
    {"[SEARCH]", "User created search string"},
    {"[MORE]", "More information tied to previous keyword"},
}};

/// The version lines that row 1 offers before the keywords.
inline constexpr std::array<KeywordEntry, 3> kVersionLines{{
    {"IESNA:LM-63-2002", "Version line of the format of 2002"},
    {"IESNA:LM-63-1995", "Version line of the format of 1995"},
    {"IESNA91", "Version line of the format of 1991"},
}};

/// Whether a key of row 1 counts as a version line: only its first three characters are compared.
constexpr bool isVersionLine(std::string_view key)
{
    return key.substr(0, 3) == "IES";
}

/// Whether a key is a keyword of the user's own, which nothing looks up.
constexpr bool isUserKeyword(std::string_view key)
{
    return key.substr(0, 2) == "[_";
}

/// The position of a keyword in the standard table, counted from 1; 0 when it is not there. The comparison is exact,
/// case and brackets included.
std::int16_t gfnIsValidKeyword(std::string_view gstKey);

}  // namespace penwright
