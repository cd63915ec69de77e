#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "help/HelpFile.h"

namespace penwright::chm {

/// Whether an object is a page by its name.
bool isPageName(std::string_view name);

/// The place that a link names, seen from the top of the help file, whether or not there is such an object: what stands
/// before the last "::" is dropped, "\" is "/", percent signs are decoded, "." and ".." are followed but not beyond the
/// top, what follows "?" is dropped, what follows "#" is the anchor.
HelpPlace placeOfLink(std::string_view link);

/// The places that a link written by a compiler may mean, the likeliest first: the one that it names and, when it is an
/// absolute path of the machine that compiled the file, each shorter tail of that path within the limits.
std::vector<HelpPlace> placesOfStoredLink(std::string_view link);

}  // namespace penwright::chm
