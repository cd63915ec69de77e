#pragma once

#include <string_view>

namespace penwright {

/// The year of the format's version that a file's first line names by its first word, in letters of either case: 1986,
/// 1991, 1995, 2002 or 2019. 0 for a line that names none of them, as the first one of a file of 1986 may be any text.
int formatYear(std::string_view firstLine);

}  // namespace penwright
