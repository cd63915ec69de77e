#include "hostlink/HostOperations.h"

#include <utility>

#include "platform/Dialogs.h"

namespace penwright {

HostOperations::HostOperations(ToolState &state, SettingsStore &store, Dialogs &dialogs, EventWait &wait,
                               CommandLog &log, std::function<void()> logChanged)
    : m_state(state),
      m_dialogs(dialogs),
      m_log(log),
      m_logChanged(std::move(logChanged)),
      m_store(state, store, dialogs),
      m_post(state.start, store, wait)
{
}

void HostOperations::tell(const std::string &entry)
{
    m_log.append(entry);
    m_logChanged();
}

void HostOperations::send(std::string_view word)
{
    std::int16_t stored = 0;
    if (!m_state.CandelaWorkRecord.empty() && !m_state.PhotFiles.empty()) {
        m_state.PhotFiles(1) = m_state.CandelaWorkRecord(1);
        stored = m_store.SaveRecordsToStore(1, 1, 1);
    }
    if (stored == 0) {
        m_dialogs.show({"No photometric data loaded.", kExclamation + kSystemModal, "Send Data"});
        return;
    }
    m_post.postCommand(word);
}

void HostOperations::sendUpdated()
{
    send("SendUpdatedDataClose,");
}

void HostOperations::sendSaved()
{
    send("SendSavedDataClose,");
}

void HostOperations::refresh()
{
    try {
        if (m_post.post(m_state.start.HostInbox, "RefreshData") == WaitEnd::Cancelled)
            return;
        if (const auto problem = m_store.loadOrKeepRecords())
            return tell("No data error: " + (problem->empty() ? "no file" : *problem));
        m_state.CandelaWorkRecord = m_state.PhotFiles;
    } catch (const RunTimeError &error) {
        tell("General error: " + error.description());
    }
}

}  // namespace penwright
