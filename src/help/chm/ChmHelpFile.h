#pragma once

#include <memory>
#include <string>

#include "help/HelpFile.h"

namespace penwright {

/// Opens a compiled help file of any maker at a path, and holds it in memory from then on. A file that is missing,
/// unreadable, foreign, damaged, too large or without a page is RunTimeError with a description that names it.
std::unique_ptr<HelpFile> openChm(const std::string &path);

/// The same for bytes that have been read already; `path` is what messages name.
std::unique_ptr<HelpFile> readChm(const std::string &path, std::string bytes);

}  // namespace penwright
