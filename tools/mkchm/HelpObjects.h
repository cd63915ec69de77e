#pragma once

#include <functional>
#include <string>
#include <vector>

#include "mkchm/ChmContainer.h"
#include "mkchm/HelpProject.h"

namespace penwright::mkchm {

/// The objects that a help window looks for by their names: `#SYSTEM` with title, default topic and contents file, and
/// `#IVB` with `#STRINGS`, which lead from a context id to its topic.
std::vector<ChmObject> systemObjects(const HelpProject &project);

/// The whole compiled help file of a project; `read` gives the bytes of a file of it.
std::string compile(const HelpProject &project, const std::function<std::string(const std::string &)> &read);

}  // namespace penwright::mkchm
