#pragma once

#include <string>

namespace penwright {

/// The program from its command line text to its exit status: 0 after a run, 1 for a refusal or a fatal error at start.
int runTool(const std::string &commandLine, const std::string &executableFolder);

}  // namespace penwright
