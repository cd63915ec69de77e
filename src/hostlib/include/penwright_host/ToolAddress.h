#pragma once

#include <cstdint>
#include <string>

namespace penwright {

/// What a host settles for one tool before it starts it; see `addressProblem` for what it must not hold.
struct ToolAddress {
    std::uint32_t window = 0;         ///< X11 number of the host's window that the tool becomes a child of, never 0
    bool embedded = true;             ///< whether the tool gives its window back when it ends
    std::string inbox = "HostInbox";  ///< settings value through which the tool's commands come
    std::string tag = "1";            ///< the instance's tag, which the tool repeats in its commands
    int openFiles = 0;                ///< photometric files that the host holds; at 25 the tool refuses
    std::string section;              ///< settings section of all exchange with this instance, of no other's
};

/// Why no tool can be started with this address, "" when one can: a text is empty or holds a comma or a line end, the
/// inbox is the tool's own or a value of a record, or a number is beyond its range.
std::string addressProblem(const ToolAddress &address);

}  // namespace penwright
