#pragma once

#include <string>
#include <string_view>

namespace penwright {

/// The name of a section that says which process it belongs to: `host`, the process's number space, its number and its
/// start time, and `tag`, joined by "_". Where the system does not tell of processes, the name is of nobody.
std::string ownSectionName(std::string_view host, std::string_view tag);

/// Whether `section` has such a name, made by a process of that `host` that is gone for sure. A process of another
/// number space, as a container has, cannot be seen from here and counts as running.
bool isLeftSection(std::string_view section, std::string_view host);

}  // namespace penwright
