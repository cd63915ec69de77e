#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "core/Services.h"
#include "core/SplitCommandText.h"
#include "core/ToolState.h"
#include "hostlink/CommandLog.h"
#include "hostlink/ExchangeStore.h"

namespace penwright {

/// What the host's commands do to the wizard window; the window implements it.
class LinkedWindow {
public:
    virtual ~LinkedWindow() = default;

    /// "START": the death timer is stopped.
    virtual void stopDeathTimer() = 0;

    /// Shows page 1 and the window.
    virtual void StartWizard() = 0;

    /// Sets the one closing flag; the window unloads once what is open has been dismissed, then the process ends.
    virtual void beginUnload() = 0;

    virtual bool isUnloading() const = 0;

    /// The log or the list of received files has changed.
    virtual void showLog() = 0;
};

/// The sum of a text's number and `number`, as text; error 13 when the text does not read as a number.
std::string joinedByAddition(std::string_view text, int number);

/// Takes the host's commands from the tool's inbox and executes them.
class CommandLink {
public:
    CommandLink(ToolState &state, const Services &services, LinkedWindow &window);

    /// The name of the tool's inbox: the tool's name, "|" and the instance tag.
    std::string inboxName() const;

    /// One tick of the poll: takes the command that waits in the tool's inbox, which empties it. False when none does,
    /// or the store is locked at this moment. Executing it is `execute`, so that the tick itself never opens anything.
    bool poll();

    /// Executes the oldest command taken, if any; while the window unloads it is logged and ignored.
    void execute();

    /// Executes `command` as the pending one. An error ends it with a message box; none leaves it. While that box is
    /// open it stands for the errors of later commands too: boxes over boxes would bury the wizard.
    void msbCmd(std::string command);

    /// The window's link-error event. The log text with "LinkError " behind it is to be joined with the number by
    /// addition, which that text never allows: the log stays as it is, on purpose.
    void linkError(int number);

    const CommandLog &log() const { return m_log; }
    CommandLog &log() { return m_log; }

private:
    void tellError();
    void dispatch(const FieldTable &fields);
    void moveWindow(const FieldTable &fields);
    void deleteFile();
    void dataChanged();

    ToolState &m_state;
    Services m_services;
    LinkedWindow &m_window;
    ExchangeStore m_store;
    CommandLog m_log;
    std::deque<std::string> m_waiting;
    std::string PendingCommand;
    bool m_isTellingError = false;
};

}  // namespace penwright
