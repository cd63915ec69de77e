#pragma once

#include <cstdint>
#include <string_view>

#include "core/StartupState.h"

namespace penwright {

/// Parses the six comma-separated fields that a host passes: window number, embed flag, host inbox, instance tag, open
/// files, settings section. With any other number of fields nothing is stored, and `HostWindow` stays 0. Fields 1, 2
/// and 5 go by their leading number; one beyond its type raises error 6.
void parseCommandLine(std::string_view commandLine, StartupState &start);

/// The window number in field 1, whatever is wrong with the other fields; 0 where it is none or beyond its type.
std::int32_t hostWindowOf(std::string_view commandLine);

}  // namespace penwright
