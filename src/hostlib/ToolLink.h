#pragma once

#include <penwright_host/ToolAddress.h>

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "core/PhotometricRecord.h"
#include "hostlink/RecordSection.h"
#include "platform/SettingsStore.h"

namespace penwright {

/// A host's end of the link to one tool: its command line, commands to it and from it, and the records in the store.
/// Each instance that runs at the same time needs a section of its own. Routines that write raise the store's errors.
class ToolLink {
public:
    ToolLink(SettingsStore &store, ToolAddress address);

    const ToolAddress &address() const { return m_address; }

    /// The command line text with which the tool is started: six fields, comma-separated.
    std::string commandLine() const;

    /// Queues a command for the tool. The tool's inbox holds one command at a time, so it is written by `deliver`.
    void send(std::string command);

    void sendStart() { send("START"); }
    void sendClose() { send("CLOSE"); }
    void sendDataChanged() { send("DATACHANGED"); }
    void sendDeleteFile(std::string_view filename);

    /// Moves the tool's window to exact X11 pixels of the host's window. Of moves that wait in a row the last one
    /// counts.
    void sendMoveWindow(int x, int y, int width, int height);

    /// Writes the oldest queued command into the tool's inbox if the tool has emptied it, and returns its text; "" when
    /// nothing is queued, the last command has not been taken, or the store is locked at this moment.
    std::string deliver();

    /// Whether every command has been delivered and taken.
    bool isAllTaken();

    /// The text that the tool has posted, left in its place; "" when there is none.
    std::string waiting();

    /// The text that the tool has posted, and empties the host's inbox; "" when there is none. The tool waits for this
    /// up to 3 seconds.
    std::string pop();

    /// Puts records into the store as files 1, 2 and so on, at most 25, in one transaction. What was there goes.
    void storeRecords(const std::vector<PhotometricRecord> &records);

    /// The records in the store, in the order of their file numbers.
    std::vector<ReadRecord> loadRecords();

    /// Removes the section with all that is in it: when the tool has ended.
    void forget();

private:
    std::string toolInbox() const;
    RecordSection records() const;

    SettingsStore &m_store;
    ToolAddress m_address;
    std::deque<std::string> m_queue;
};

}  // namespace penwright
