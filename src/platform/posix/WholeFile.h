#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/posix/FileCalls.h"
#include "platform/TextFiles.h"

namespace penwright {

/// Reads a file as TextFiles::read promises.
FileContent readWholeFile(FileCalls &calls, const std::string &path, std::size_t most,
                          const std::function<bool(double)> &goOn);

}  // namespace penwright
