#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace penwright::mkchm {

/// Where an object's bytes lie, counted from the begin of the contents.
struct DirectoryEntry {
    std::string name;
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
};

/// Whether one name stands before another in the directory, which takes no regard of ASCII case.
bool standsBefore(const std::string &left, const std::string &right);

/// The directory of a compiled help file: header, listing chunks and, with more than one of them, an index chunk. The
/// entries come sorted. Throws std::length_error for a name that no chunk holds, and for more names than one index
/// chunk leads to.
std::string makeDirectory(const std::vector<DirectoryEntry> &entries);

}  // namespace penwright::mkchm
