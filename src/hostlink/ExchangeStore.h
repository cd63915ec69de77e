#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/Services.h"
#include "core/ToolState.h"

namespace penwright {

/// The photometric records in the settings store, under the application and section that the host named.
class ExchangeStore {
public:
    ExchangeStore(ToolState &state, const Services &services) : m_state(state), m_services(services) {}

    /// Clears the store, then writes records of `PhotFiles` and returns how many it wrote, all in one transaction. For
    /// each index from `first` to `last` the slot that is written is the file number, which counts up from
    /// `startFile`; a file number above the last slot writes an empty "Filename". An index above 25 ends it with a
    /// message box. What is written is `PhotFiles` as it stands at the call, whatever happens while the store is
    /// locked. Error of the store when it cannot be written.
    std::int16_t SaveRecordsToStore(int first, int last, int startFile);

    /// Replaces `PhotFiles` by the records of file numbers 1 to `LoadLimit` whose "Filename" is not empty. True when
    /// nothing was loaded or a value could not be parsed: see problem(). A record that could not be parsed is left in
    /// the last slot with what was read of it. Error of the store, with nothing replaced, when it cannot be read.
    bool LoadRecordsFromStore();

    /// The same, but a load that fails puts the previous `PhotFiles` back.
    bool loadOrKeepRecords();

    /// The problem text of the last load, or the marker of the value in brackets where that has no text of its own;
    /// "" when every value was parsed.
    const std::string &problem() const { return m_problem; }

    /// Blanks all eleven values of file numbers 1 to 25.
    void ClearStore();

private:
    using Values = std::unordered_map<std::string, std::string>;

    Values readSection();
    bool load(const Values &values);
    void write(std::string_view word, int fileNumber, std::string_view text);

    ToolState &m_state;
    Services m_services;
    std::string m_problem;
};

}  // namespace penwright
