#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "hostbench/HeldFiles.h"

namespace penwright {

/// The bytes of an IES file as a file that is held, saved under its absolute path and looked through, or the one
/// sentence that says why it cannot be: the path's name, the line of the first fault, and what is wrong there. `goOn`
/// is asked now and then with the part that is done, 0 to 1; when it says no, the sentence is empty.
std::variant<HeldFile, std::string> openedFile(const std::string &path, std::string_view bytes,
                                               const std::function<bool(double)> &goOn = {});

}  // namespace penwright
