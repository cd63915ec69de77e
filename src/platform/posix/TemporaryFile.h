#pragma once

#include <sys/types.h>

#include <string>

namespace penwright {

class FileCalls;

/// Makes a hidden file in `folder`, whose name ends with "/", and sets `name` to its path. It is locked for as long as
/// its descriptor is open, which tells it from one that was left over. The descriptor, or -1 with errno set.
int openTemporary(FileCalls &calls, std::string &name, const std::string &folder, mode_t modes);

/// Removes the temporary files that killed processes left in `folder`: regular files of this user, with the form of
/// name that openTemporary gives, which nobody has locked. What cannot be looked at or removed stays without a word.
void removeLeftOver(const std::string &folder);

}  // namespace penwright
