#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "hostbench/HeldFiles.h"

namespace penwright {

/// The bytes of an IES file as a file that is held, saved under its absolute path, or the one sentence that says why it
/// cannot be: the path's name, the line of the first fault, and what is wrong there.
std::variant<HeldFile, std::string> openedFile(const std::string &path, std::string_view bytes);

}  // namespace penwright
