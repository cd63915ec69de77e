#pragma once

#include <string>
#include <vector>

namespace penwright::test {

/// The captions of the six pages, by index.
inline const std::vector<std::string> kCaptions{
    "New Photometric file: (1 of 6) General Info",
    "New Photometric file: (2 of 6) Lamp Tilt Info",
    "New Photometric file: (3 of 6) Descriptive Information",
    "New Photometric file: (4 of 6) Photometric Distribution",
    "New Photometric file: (5 of 6) Candela Values",
    "New Photometric file: (6 of 6) Complete!",
};

}  // namespace penwright::test
