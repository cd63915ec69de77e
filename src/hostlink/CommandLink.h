#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "core/SplitCommandText.h"
#include "core/ToolState.h"
#include "hostlink/CommandLog.h"
#include "hostlink/ExchangeStore.h"

namespace penwright {

class HostEmbedding;

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

    /// "DATACHANGED": the host's record has taken the place of the one in slot 1.
    virtual void followRecord() = 0;

    /// The log or the list of received files has changed.
    virtual void showLog() = 0;
};

/// Pops the host's commands from the tool's inbox and obeys them.
class CommandLink {
public:
    CommandLink(ToolState &state, SettingsStore &store, Dialogs &dialogs, HostEmbedding &embedding,
                LinkedWindow &window);

    /// The name of the tool's inbox: the tool's name, "|" and the instance tag.
    std::string inboxName() const;

    /// One tick of the poll: pops the command that waits in the tool's inbox. False when none does, or the store is
    /// locked at this moment. It is obeyed by `obeyNext`, so that the tick itself never opens anything.
    bool poll();

    /// Obeys the oldest command popped, if any; while the window unloads it is logged and ignored.
    void obeyNext();

    /// Obeys `command` as the pending one. An error ends it with a message box; none leaves it. While that box is
    /// open it stands for the errors of later commands too: boxes over boxes would bury the wizard.
    void msbCmd(std::string command);

    const CommandLog &log() const { return m_log; }
    CommandLog &log() { return m_log; }

    // Called by nothing in the program; the window's event is fixed.

    /// The window's link-error event. The log text with "LinkError " behind it is to be joined with the number by
    /// addition, which that text never allows: the log stays as it is, on purpose.
    void linkError(int number);

private:
    void tellError();
    void obey(const FieldTable &fields);
    void moveWindow(const FieldTable &fields);
    void deleteFile();
    void dataChanged();
    std::string carryOver();
    void logUsed(std::string used);

    ToolState &m_state;
    SettingsStore &m_store;
    Dialogs &m_dialogs;
    HostEmbedding &m_embedding;
    LinkedWindow &m_window;
    ExchangeStore m_exchange;
    CommandLog m_log;
    std::deque<std::string> m_waiting;
    std::string PendingCommand;
    bool m_isTellingError = false;
};

/// The sum of a text's number and `number`, as text; error 13 when the text does not read as a number. For `linkError`.
std::string joinedByAddition(std::string_view text, int number);

}  // namespace penwright
