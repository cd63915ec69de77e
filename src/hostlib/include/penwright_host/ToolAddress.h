#pragma once

#include <cstdint>
#include <string>

namespace penwright {

/// What a host settles for one tool before it starts it. No text may hold a comma or a line end, and none may be empty.
struct ToolAddress {
    std::uint32_t window = 0;         ///< X11 number of the host's window that the tool becomes a child of, never 0
    bool embedded = true;             ///< whether the tool gives its window back when it ends
    std::string inbox = "HostInbox";  ///< settings value through which the tool's commands come
    std::string tag = "1";            ///< the instance's tag, which the tool repeats in its commands
    int openFiles = 0;                ///< photometric files that the host holds; at 25 the tool refuses
    std::string section;              ///< settings section of all exchange with this instance, of no other's
};

}  // namespace penwright
