#include "hostlink/ExchangeStore.h"

#include <algorithm>

#include "platform/Dialogs.h"
#include "platform/SettingsStore.h"

namespace penwright {
namespace {

const std::string kTooManyText = "You have reached the maximum number of files allowed to load at one time (25).";

}  // namespace

RecordSection ExchangeStore::section() const
{
    return RecordSection(m_store, m_state.start.SettingsApp, m_state.start.ExchangeSection);
}

std::int16_t ExchangeStore::SaveRecordsToStore(int first, int last, int startFile)
{
    // A copy: while the store is locked window events run, and "DATACHANGED" may replace the array. What the caller has
    // just named and saved is what the host gets.
    const OneBased<PhotometricRecord> records = m_state.PhotFiles;
    std::int16_t written = 0;
    bool tooMany = false;
    RecordSection stored = section();
    m_store.transact([&] {
        written = 0;
        tooMany = false;
        ClearStore();
        if (records.empty())
            return;
        int file = startFile;
        for (int index = first; index <= last && !tooMany; ++index, ++file) {
            // The slot goes by the file number, not by the index, and only the index is held against the limit: that is
            // how hosts know it, and the wizard always stores slot 1 as file 1.
            if (file > records.size()) {
                stored.writeNone(file);
            } else if (index > kMaxFiles) {
                tooMany = true;
            } else {
                stored.write(file, records(file));
                ++written;
            }
        }
    });
    if (tooMany)
        m_dialogs.show({kTooManyText, kSystemModal + kInformation + kCritical, "Load Data"});
    return written;
}

std::optional<std::string> ExchangeStore::loadRecords()
{
    return replaceBy(read());
}

std::optional<std::string> ExchangeStore::loadOrKeepRecords()
{
    std::vector<ReadRecord> records = read();
    // What the user has entered so far lives in the array that a load replaces.
    OneBased<PhotometricRecord> before = m_state.PhotFiles;
    std::optional<std::string> problem = replaceBy(std::move(records));
    if (problem)
        m_state.PhotFiles = std::move(before);
    return problem;
}

// Comes before any change, because window events may run while it waits for a locked store.
std::vector<ReadRecord> ExchangeStore::read()
{
    m_state.start.LoadLimit = std::min<std::int16_t>(m_state.start.LoadLimit, kMaxFiles);
    return section().read(m_state.start.LoadLimit);
}

std::optional<std::string> ExchangeStore::replaceBy(std::vector<ReadRecord> records)
{
    m_state.PhotFiles.clear();
    for (ReadRecord &loaded : records) {
        m_state.PhotFiles.append(std::move(loaded.record));
        if (!loaded.problem.empty())
            return std::move(loaded.problem);
    }
    return records.empty() ? std::optional<std::string>("") : std::nullopt;
}

void ExchangeStore::ClearStore()
{
    section().clear();
}

}  // namespace penwright
