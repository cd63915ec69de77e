#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/ToolState.h"
#include "hostlink/RecordSection.h"

namespace penwright {

class Dialogs;
class SettingsStore;

/// The photometric records in the settings store, under the application and section that the host named.
class ExchangeStore {
public:
    ExchangeStore(ToolState &state, SettingsStore &store, Dialogs &dialogs)
        : m_state(state), m_store(store), m_dialogs(dialogs)
    {
    }

    /// Clears the store, then writes records of `PhotFiles` and returns how many it wrote, all in one transaction. For
    /// each index from `first` to `last` the slot that is written is the file number, which counts up from
    /// `startFile`; a file number above the last slot writes an empty "Filename". An index above 25 ends it with a
    /// message box. What is written is `PhotFiles` as it stands at the call, whatever happens while the store is
    /// locked. Error of the store when it cannot be written.
    std::int16_t SaveRecordsToStore(int first, int last, int startFile);

    /// Replaces `PhotFiles` by the records of file numbers 1 to `LoadLimit` whose "Filename" is not empty, up to one
    /// that cannot be parsed, which is left in the last slot with what was read of it. Returns nothing when all is
    /// loaded, else the problem: the text of the value that could not be parsed, or its marker in brackets where it has
    /// no text of its own, or "" when there is no record. Error of the store, with nothing replaced, when it cannot be
    /// read.
    std::optional<std::string> loadRecords();

    /// The same, but a load with a problem puts the previous `PhotFiles` back.
    std::optional<std::string> loadOrKeepRecords();

    /// Blanks all eleven values of file numbers 1 to 25.
    void ClearStore();

    // Called by nothing in the program; the name and its answer are fixed.

    /// loadRecords; true when there was a problem.
    bool LoadRecordsFromStore() { return loadRecords().has_value(); }

private:
    RecordSection section() const;
    std::vector<ReadRecord> read();
    std::optional<std::string> replaceBy(std::vector<ReadRecord> records);

    ToolState &m_state;
    SettingsStore &m_store;
    Dialogs &m_dialogs;
};

}  // namespace penwright
