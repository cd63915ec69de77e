#include "disorder/PlayedHost.h"

#include <sqlite3.h>

#include <array>
#include <filesystem>
#include <utility>

#include "hostlink/RecordText.h"
#include "support/SampleRecords.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

ToolAddress address()
{
    ToolAddress tool;
    tool.window = 123;
    tool.inbox = PlayedHost::kInbox;
    tool.tag = "7";
    tool.section = PlayedHost::kSection;
    return tool;
}

PhotometricRecord anyRecord(unsigned seed)
{
    PhotometricRecord record = smallRecord();
    record.Filename = seed % 3 ? "C:\\a.ies" : "new_file_1";
    switch (seed % 5) {
        case 0:
            setAngles(record, kTypeC, {0}, {0, 45, 90});
            break;
        case 1:
            setAngles(record, kTypeB, {0, 90}, {0, 90});
            break;
        case 2:
            setAngles(record, kTypeC, {0, 90, 180}, {0, 30, 60, 90});
            break;
        default:
            return record;
    }
    setCandela(record, [seed](int h, int v) { return static_cast<double>(seed) + 10 * h + v; });
    return record;
}

}  // namespace

PlayedHost::PlayedHost(const std::string &store) : m_settings(store), m_store(store), m_tool(m_store, address())
{
    sqlite3_open_v2(store.c_str(), &m_lock, SQLITE_OPEN_READWRITE, nullptr);
}

PlayedHost::~PlayedHost()
{
    unlock();
    sqlite3_close(m_lock);
}

void PlayedHost::noteOwnWriting()
{
    m_isRewritten = true;
    unlock();
}

void PlayedHost::storeRecord(unsigned seed)
{
    noteOwnWriting();
    m_isBroken = false;
    m_settings.transact([&] {
        for (const std::string_view word : kRecordWords)
            m_settings.remove(kApplication, kSection, recordValueName(word, 1));
        writeRecordTexts(anyRecord(seed), [this](std::string_view word, const std::string &text) {
            m_settings.write(kApplication, kSection, recordValueName(word, 1), text);
        });
    });
}

void PlayedHost::storeBroken(unsigned seed)
{
    static constexpr std::array kNonsense{"", "x", "1", "99999", "-1", "1,2", ",,,,", "32767,1", "1e400", "\n\n"};
    storeRecord(seed);
    m_isBroken = true;
    m_settings.write(kApplication, kSection, recordValueName(kRecordWords[seed % kRecordWords.size()], 1),
                     kNonsense[seed / 11 % kNonsense.size()]);
}

void PlayedHost::lock(int ticks)
{
    unlock();
    if (sqlite3_exec(m_lock, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return;
    m_lockedTicks = ticks;
    m_isRewritten = true;
}

void PlayedHost::unlock()
{
    if (std::exchange(m_lockedTicks, 0) > 0)
        sqlite3_exec(m_lock, "COMMIT", nullptr, nullptr, nullptr);
}

std::string PlayedHost::tick()
{
    if (m_lockedTicks > 1) {
        --m_lockedTicks;
        return {};
    }
    unlock();
    if (!m_queue.empty() && m_settings.peek(kApplication, kSection, kToolInbox).value_or("x").empty()) {
        m_settings.write(kApplication, kSection, kToolInbox, m_queue.front());
        m_queue.pop_front();
    }
    const std::string posted = m_settings.peek(kApplication, kSection, kInbox).value_or("");
    if (posted.empty() || m_taking == Taking::Never || (m_taking == Taking::Late && ++m_lateTicks % 4 != 0))
        return {};
    m_last = m_settings.pop(kApplication, kSection, kInbox);
    return faultOfTaken(m_last);
}

bool PlayedHost::isWaitingForTool()
{
    if (m_lockedTicks > 0)
        return false;
    return !m_queue.empty() || !m_settings.peek(kApplication, kSection, kToolInbox).value_or("").empty();
}

std::string PlayedHost::faultOfStore()
{
    if (m_isBroken)
        return {};
    for (const LoadedRecord &loaded : m_tool.loadRecords())
        if (!loaded.problem.empty())
            return "the record in the store cannot be read: " + loaded.problem;
    return {};
}

std::string PlayedHost::lastPost()
{
    const std::string waiting = m_settings.read(kApplication, kSection, kInbox);
    return waiting.empty() ? m_last : waiting;
}

void PlayedHost::forgetTool()
{
    unlock();
    m_queue.clear();
    m_last.clear();
    m_taking = Taking::AtOnce;
    m_settings.write(kApplication, kSection, kToolInbox, "");
    m_settings.write(kApplication, kSection, kInbox, "");
}

std::string PlayedHost::faultOfTaken(const std::string &text)
{
    const auto command = parseToolCommand(text);
    if (!command)
        return "the tool has posted what is no command: " + text;
    const bool isOthers = std::exchange(m_isRewritten, false);
    if (!bringsRecord(command->word) || isOthers)
        return {};
    m_isBroken = false;
    return faultOfRecord(*command);
}

std::string PlayedHost::faultOfRecord(const ToolCommand &command)
{
    const auto records = m_tool.loadRecords();
    if (records.size() != 1 || !records[0].problem.empty())
        return "no record comes with the command";
    const std::string text = iesText(records[0].record);
    if (!isSavedOnDisk(command.word))
        return records[0].record.filename.starts_with("new_file_") ? "" : "a new file has a name";
    if (!std::filesystem::exists(records[0].record.filename))
        return "the file is not there: " + records[0].record.filename;
    return contentOf(records[0].record.filename) == text ? "" : "the file is another one than the record";
}

}  // namespace penwright::test
