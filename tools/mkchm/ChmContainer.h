#pragma once

#include <string>
#include <vector>

namespace penwright::mkchm {

/// One object of a compiled help file: its full name, as "/lamp.html", and its bytes.
struct ChmObject {
    std::string name;
    std::string bytes;
};

/// The compiled help file that holds the objects, uncompressed. The result depends on nothing but them. Throws what
/// makeDirectory throws.
std::string makeContainer(std::vector<ChmObject> objects);

}  // namespace penwright::mkchm
