#pragma once

#include <string_view>

#include "core/StartupState.h"
#include "platform/EventWait.h"

namespace penwright {

class SettingsStore;

/// Commands to the host: single values of the exchange store that the host empties once it has taken them.
class HostPost {
public:
    HostPost(const StartupState &start, SettingsStore &store, EventWait &wait)
        : m_start(start), m_store(store), m_wait(wait)
    {
    }

    /// Writes `text` under `name` and waits up to 3 seconds until the value has been emptied; otherwise the value stays
    /// written. Returns whether it was taken (Done), left in place (TimedOut), or the wait was cut short by unloading
    /// (Cancelled). Error of the store when the text cannot be written.
    WaitEnd post(std::string_view name, std::string_view text);

    /// Posts `word` + tool name + "," + instance tag to the host's inbox; `word` ends with its comma.
    WaitEnd postCommand(std::string_view word);

    // Called by nothing in the program; the name and its answer are fixed.

    /// Posts under `keyBase`, with "|" and `keySuffix` behind it when that is not empty. Always 0.
    int PostToHost(std::string_view keyBase, std::string_view keySuffix, std::string_view text);

private:
    const StartupState &m_start;
    SettingsStore &m_store;
    EventWait &m_wait;
};

}  // namespace penwright
