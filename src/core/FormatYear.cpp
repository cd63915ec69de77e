#include "core/FormatYear.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/Ascii.h"

namespace penwright {
namespace {

struct VersionRow {
    std::string_view word;
    int year;
};

/// The first words of files by which versions are known.
constexpr VersionRow kVersionRows[]{
    {"IESNA86", 1986},          {"IESNA:LM-63-1986", 1986}, {"IESNA91", 1991},
    {"IESNA:LM-63-1991", 1991}, {"IESNA:LM-63-1995", 1995}, {"IESNA:LM-63-2002", 2002},
    {"IESNA:LM-63-2019", 2019}, {"IES:LM-63-2002", 2002},   {"IES:LM-63-2019", 2019},
};

std::string_view firstWord(std::string_view line)
{
    constexpr std::string_view kWhite = " \t\v\f";
    line.remove_prefix(std::min(line.find_first_not_of(kWhite), line.size()));
    return line.substr(0, line.find_first_of(kWhite));
}

}  // namespace

int formatYear(std::string_view firstLine)
{
    const std::string word = upperCase(firstWord(firstLine));
    const auto row = std::find_if(std::begin(kVersionRows), std::end(kVersionRows),
                                  [&word](const VersionRow &r) { return r.word == word; });
    return row == std::end(kVersionRows) ? 0 : row->year;
}

}  // namespace penwright
