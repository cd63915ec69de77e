#include "hostlink/HostOperations.h"

#include "platform/Dialogs.h"

namespace penwright {

HostOperations::HostOperations(ToolState &state, const Services &services, CommandLog &log)
    : m_state(state), m_services(services), m_log(log), m_store(state, services), m_post(state.start, services)
{
}

void HostOperations::send(std::string_view word)
{
    std::int16_t stored = 0;
    if (!m_state.CandelaWorkRecord.empty() && !m_state.PhotFiles.empty()) {
        m_state.PhotFiles(1) = m_state.CandelaWorkRecord(1);
        stored = m_store.SaveRecordsToStore(1, 1, 1);
    }
    if (stored == 0) {
        m_services.dialogs.show({"No photometric data loaded.", kExclamation + kSystemModal, "Send Data"});
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
        m_post.PostToHost(m_state.start.HostInbox, "", "RefreshData");
        if (m_post.lastEnd() == WaitEnd::Cancelled)
            return;
        if (m_store.loadOrKeepRecords())
            return m_log.append("No data error: " + (m_store.problem().empty() ? "no file" : m_store.problem()));
        m_state.CandelaWorkRecord = m_state.PhotFiles;
    } catch (const RunTimeError &error) {
        m_log.append("General error: " + error.description());
    }
}

}  // namespace penwright
