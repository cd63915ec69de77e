#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/ToolState.h"
#include "hostlink/CommandLog.h"
#include "hostlink/ExchangeStore.h"
#include "hostlink/HostPost.h"

namespace penwright {

/// The window's further host operations. No control, timer or command leads to them: hosts of other tools of the family
/// use them, and they are kept working for the day when one of this tool does.
class HostOperations {
public:
    /// `logChanged` runs whenever an operation has put an entry into the log.
    HostOperations(ToolState &state, SettingsStore &store, Dialogs &dialogs, EventWait &wait, CommandLog &log,
                   std::function<void()> logChanged);

    /// Stores the working record and posts "SendUpdatedDataClose,"; a message box when there is none to store. Error of
    /// the store when it cannot be written.
    void sendUpdated();

    /// The same with "SendSavedDataClose,".
    void sendSaved();

    /// Asks the host for fresh records with "RefreshData" and loads them into the working records. A failure is one
    /// line in the log and changes nothing.
    void refresh();

private:
    void send(std::string_view word);
    void tell(const std::string &entry);

    ToolState &m_state;
    Dialogs &m_dialogs;
    CommandLog &m_log;
    std::function<void()> m_logChanged;
    ExchangeStore m_store;
    HostPost m_post;
};

}  // namespace penwright
