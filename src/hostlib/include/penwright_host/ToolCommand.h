#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace penwright {

/// What a tool tells its host.
enum class ToolWord {
    ReturnClose,              ///< nothing was made: the tool wants to be closed
    SendNewDataClose,         ///< file 1 of the store is a new file, saved on disk under its name
    SendNewDataCloseUnnamed,  ///< file 1 of the store is a new file that is not saved yet ("SendNewDataClose*")
    SendUpdatedDataClose,     ///< file 1 of the store has changed and is not saved yet
    SendSavedDataClose,       ///< file 1 of the store has changed and is saved on disk
    CloseRemove,              ///< the tool's window is about to go
    RefreshData,              ///< the tool asks for fresh records in the store
};

/// One command taken from a host's inbox.
struct ToolCommand {
    ToolWord word = ToolWord::RefreshData;
    std::string tool;  ///< name of the tool; "" with RefreshData, which names nobody
    std::string tag;   ///< instance tag of the tool; "" with RefreshData

    bool operator==(const ToolCommand &) const = default;
};

/// The command that a text from a host's inbox is, "word,tool,tag" or "RefreshData"; nothing for any other text.
std::optional<ToolCommand> parseToolCommand(std::string_view text);

/// Whether a record waits in the store with this command.
bool bringsRecord(ToolWord word);

/// Whether the record that comes with this command is on disk under its name.
bool isSavedOnDisk(ToolWord word);

/// Whether the tool has nothing more to say and waits for "CLOSE".
bool expectsClose(ToolWord word);

}  // namespace penwright
