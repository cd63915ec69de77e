#pragma once

#include <string_view>

#include "core/Services.h"
#include "core/StartupState.h"
#include "platform/EventWait.h"

namespace penwright {

/// Commands to the host: single values of the exchange store that the host empties once it has taken them.
class HostPost {
public:
    HostPost(const StartupState &start, const Services &services) : m_start(start), m_services(services) {}

    /// Writes `text` under `keyBase` (with "|" and `keySuffix` behind it when that is not empty) and waits up to 3
    /// seconds until the value has been emptied; otherwise the value stays written. Always 0. Error of the store when
    /// the text cannot be written.
    int PostToHost(std::string_view keyBase, std::string_view keySuffix, std::string_view text);

    /// Posts `word` + tool name + "," + instance tag to the host's inbox; `word` ends with its comma.
    int postCommand(std::string_view word);

    /// How the last post ended: taken (Done), left in place (TimedOut), or cut short by unloading (Cancelled).
    WaitEnd lastEnd() const { return m_lastEnd; }

private:
    const StartupState &m_start;
    Services m_services;
    WaitEnd m_lastEnd = WaitEnd::Done;
};

}  // namespace penwright
