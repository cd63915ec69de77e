#include "hostlib/ToolLink.h"

#include <algorithm>

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

std::string ToolLink::take()
{
    return m_store.take(kApplication, m_address.section, m_address.inbox);
}

void ToolLink::clearRecord(int fileNumber)
{
    for (const std::string_view word : kRecordWords)
        m_store.write(kApplication, m_address.section, recordValueName(word, fileNumber), "");
}

void ToolLink::storeRecords(const std::vector<PhotometricRecord> &records)
{
    m_store.transact([&] {
        for (int fileNumber = 1; fileNumber <= kMaxFiles; ++fileNumber)
            clearRecord(fileNumber);
        const auto end = records.begin() + std::min<std::ptrdiff_t>(std::ssize(records), kMaxFiles);
        int fileNumber = 0;
        for (auto record = records.begin(); record != end; ++record) {
            ++fileNumber;
            writeRecordTexts(*record, [&](std::string_view word, const std::string &text) {
                m_store.write(kApplication, m_address.section, recordValueName(word, fileNumber), text);
            });
        }
    });
}

std::vector<ReadRecord> ToolLink::loadRecords()
{
    std::vector<ReadRecord> records;
    for (int fileNumber = 1; fileNumber <= kMaxFiles; ++fileNumber) {
        const auto read = [&](std::string_view word) {
            return m_store.read(kApplication, m_address.section, recordValueName(word, fileNumber));
        };
        if (!read(kRecordWords.front()).empty())
            records.push_back(readRecordTexts(read));
    }
    return records;
}

void ToolLink::forget()
{
    m_store.removeSection(kApplication, m_address.section);
}

}  // namespace penwright
