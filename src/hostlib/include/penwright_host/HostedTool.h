#pragma once

#include <penwright_host/HostRecord.h>
#include <penwright_host/HostStore.h>
#include <penwright_host/ToolAddress.h>
#include <penwright_host/ToolCommand.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace penwright {

/// Which way a text went over the link.
enum class LinkWay { ToTool, FromTool };

/// One tool of a host, from its start to its end: its process, the commands both ways, and the records in the store.
///
/// The library has no thread and no timer of its own. Commands are delivered and taken by `poll` alone, which a host
/// calls every 100 milliseconds from its own loop, or has `run` call; callbacks come from within that call, on its
/// thread. A callback may use every routine of the tool, but not destroy it. An exception that leaves a callback leaves
/// `poll`. Routines that use the store raise std::runtime_error, whose text names file and reason.
class HostedTool {
public:
    /// The store outlives the tool. Nothing is started yet.
    HostedTool(HostStore &store, ToolAddress address);
    HostedTool(const HostedTool &) = delete;
    HostedTool &operator=(const HostedTool &) = delete;

    /// Kills the tool if it still runs, and removes its section; send "CLOSE" and wait for the end to part in peace.
    ~HostedTool();

    const ToolAddress &address() const;

    /// The one argument with which the tool is started: six fields, comma-separated.
    std::string commandLine() const;

    /// Is called for every command of the tool that has been taken.
    void onCommand(std::function<void(const ToolCommand &)> handler);

    /// Is called when the tool asks for fresh records; it reads what `storeRecords` has put there by the return.
    void onRecordsWanted(std::function<void()> handler);

    /// Is called once when the process has ended, after the last command; the tool's section is then gone.
    void onEnded(std::function<void()> handler);

    /// Is called for every text that was delivered or taken, one that is no command included: for a log.
    void onText(std::function<void(LinkWay, const std::string &)> handler);

    /// Empties the tool's section of what an earlier run may have left, and starts the executable, looked for in $PATH
    /// when the name has no slash. std::runtime_error when it cannot be started, or not with this address. Once only.
    void start(const std::string &program = "PenwrightPE");

    /// Queues a command; the tool takes one at a time.
    void send(std::string command);

    void sendStart() { send("START"); }              ///< shows the wizard
    void sendClose() { send("CLOSE"); }              ///< ends the tool, after a last "CloseRemove"
    void sendDataChanged() { send("DATACHANGED"); }  ///< has the tool read what `storeRecords` has put into the store
    void sendDeleteFile(std::string_view filename);  ///< ends the tool if it works on that file

    /// Moves the tool's window to exact X11 pixels of the host's window. Of moves that wait in a row the last counts.
    void sendMoveWindow(int x, int y, int width, int height);

    /// Whether every command sent has been taken by the tool.
    bool isAllTaken();

    /// Delivers the next command if the tool has taken the last one, takes what the tool has posted, and sees whether
    /// the process has ended. Whether the tool runs after that. From within a callback it does nothing.
    bool poll();

    /// Polls every 100 milliseconds until the tool has ended, and returns its exit status.
    int run();

    /// The records in the store, in the order of their file numbers: one, when a tool has finished a file.
    std::vector<LoadedRecord> loadRecords();

    /// Puts records into the store as files 1, 2 and so on, at most 25, in one transaction; what was there goes. Also
    /// raises an error, and leaves the store as it was, for a record that has no text (see `iesText`).
    void storeRecords(const std::vector<HostRecord> &records);

    bool isRunning() const;

    /// The process number, -1 before the start.
    long processId() const;

    /// Exit status of a tool that has ended by itself; -1 before, and when it was killed.
    int exitStatus() const;

    /// Ends the process at once; `poll` tells of it.
    void kill();

private:
    struct Parts;

    void exchange();
    void finish();

    std::unique_ptr<Parts> m_parts;
};

}  // namespace penwright
