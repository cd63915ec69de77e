#include "hostlib/ToolLink.h"

#include "core/StartupState.h"

namespace penwright {

namespace {

const std::string kApplication = StartupState().SettingsApp;
constexpr std::string_view kMoveWord = "MOVEWIN,";

bool isMove(std::string_view command)
{
    return command.substr(0, kMoveWord.size()) == kMoveWord;
}

}  // namespace

ToolLink::ToolLink(SettingsStore &store, ToolAddress address) : m_store(store), m_address(std::move(address)) {}

std::string ToolLink::commandLine() const
{
    return std::to_string(m_address.window) + ',' + (m_address.embedded ? '1' : '0') + ',' + m_address.inbox + ',' +
           m_address.tag + ',' + std::to_string(m_address.openFiles) + ',' + m_address.section;
}

std::string ToolLink::toolInbox() const
{
    return std::string(kToolName) + '|' + m_address.tag;
}

void ToolLink::send(std::string command)
{
    if (isMove(command) && !m_queue.empty() && isMove(m_queue.back()))
        m_queue.back() = std::move(command);
    else
        m_queue.push_back(std::move(command));
}

void ToolLink::sendDeleteFile(std::string_view filename)
{
    send("DELETEFILE," + std::string(filename));
}

void ToolLink::sendMoveWindow(int x, int y, int width, int height)
{
    send(std::string(kMoveWord) + std::to_string(x) + ',' + std::to_string(y) + ',' + std::to_string(width) + ',' +
         std::to_string(height));
}

std::string ToolLink::deliver()
{
    if (m_queue.empty())
        return {};
    const auto waiting = m_store.peek(kApplication, m_address.section, toolInbox());
    if (!waiting || !waiting->empty())
        return {};
    m_store.write(kApplication, m_address.section, toolInbox(), m_queue.front());
    std::string delivered = std::move(m_queue.front());
    m_queue.pop_front();
    return delivered;
}

bool ToolLink::isAllTaken()
{
    return m_queue.empty() && m_store.peek(kApplication, m_address.section, toolInbox()) == std::string();
}

std::string ToolLink::waiting()
{
    return m_store.peek(kApplication, m_address.section, m_address.inbox).value_or("");
}

std::string ToolLink::pop()
{
    return m_store.pop(kApplication, m_address.section, m_address.inbox);
}

RecordSection ToolLink::records() const
{
    return RecordSection(m_store, kApplication, m_address.section);
}

void ToolLink::storeRecords(const std::vector<PhotometricRecord> &list)
{
    RecordSection section = records();
    m_store.transact([&] {
        section.clear();
        for (std::size_t i = 0; i < list.size() && i < std::size_t{kMaxFiles}; ++i)
            section.write(static_cast<int>(i) + 1, list[i]);
    });
}

std::vector<ReadRecord> ToolLink::loadRecords()
{
    return records().read(kMaxFiles);
}

void ToolLink::forget()
{
    m_store.removeSection(kApplication, m_address.section);
}

}  // namespace penwright
