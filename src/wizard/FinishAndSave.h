#pragma once

#include <string>

#include "core/ToolState.h"
#include "hostlink/ExchangeStore.h"
#include "hostlink/HostPost.h"

namespace penwright {

class TextFiles;

/// How finishing ended, for the page to show.
enum class FinishEnd {
    NotFinished,  ///< cancelled, failed with a message, or cut short by unloading: nothing was posted
    Taken,        ///< the host took the command
    NotTaken,     ///< the command was left in place: nobody took it in time
};

/// The last page's work: names the new file, writes it when a name was chosen, stores it for the host, and tells it.
class FinishAndSave {
public:
    FinishAndSave(ToolState &state, SettingsStore &store, TextFiles &files, Dialogs &dialogs, EventWait &wait);

    /// Finishes with a file that the user names (`saveAs`), or unnamed as "new_file_" + number. Errors are told in a
    /// message titled `title`; the routine can be called again afterwards.
    FinishEnd SaveNewFile(bool saveAs, const std::string &title);

private:
    bool saveUnderChosenName();

    /// Saves the record's IES file under its `Filename`, as saveFile does.
    bool WriteIesFile(const PhotometricRecord &record);

    FinishEnd handOver(std::string_view word);

    ToolState &m_state;
    TextFiles &m_files;
    Dialogs &m_dialogs;
    EventWait &m_wait;
    ExchangeStore m_store;
    HostPost m_post;
};

/// The part of a path up to and including its last "\" or "/", "" when it has neither.
std::string directoryOf(std::string_view path);

}  // namespace penwright
