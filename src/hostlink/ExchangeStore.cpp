#include "hostlink/ExchangeStore.h"

#include <algorithm>

#include "hostlink/RecordText.h"
#include "platform/Dialogs.h"
#include "platform/SettingsStore.h"

namespace penwright {
namespace {

const std::string kTooManyText = "You have reached the maximum number of files allowed to load at one time (25).";

}  // namespace

void ExchangeStore::write(std::string_view word, int fileNumber, std::string_view text)
{
    m_services.store.write(m_state.start.SettingsApp, m_state.start.ExchangeSection, recordValueName(word, fileNumber),
                           text);
}

std::int16_t ExchangeStore::SaveRecordsToStore(int first, int last, int startFile)
{
    // A copy: while the store is locked window events run, and "DATACHANGED" may replace the array. What the caller has
    // just named and saved is what the host gets.
    const OneBased<PhotometricRecord> records = m_state.PhotFiles;
    std::int16_t written = 0;
    bool tooMany = false;
    m_services.store.transact([&] {
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
                write("Filename", file, "");
            } else if (index > kMaxFiles) {
                tooMany = true;
            } else {
                writeRecordTexts(records(file),
                                 [&](std::string_view word, const std::string &text) { write(word, file, text); });
                ++written;
            }
        }
    });
    if (tooMany)
        m_services.dialogs.show({kTooManyText, kSystemModal + kInformation + kCritical, "Load Data"});
    return written;
}

bool ExchangeStore::LoadRecordsFromStore()
{
    return load(readSection());
}

bool ExchangeStore::loadOrKeepRecords()
{
    const Values values = readSection();
    // What the user has entered so far lives in the array that a load replaces.
    OneBased<PhotometricRecord> before = m_state.PhotFiles;
    const bool failed = load(values);
    if (failed)
        m_state.PhotFiles = std::move(before);
    return failed;
}

bool ExchangeStore::load(const Values &values)
{
    m_problem.clear();
    m_state.start.LoadLimit = std::min<std::int16_t>(m_state.start.LoadLimit, kMaxFiles);
    m_state.PhotFiles.clear();
    for (int file = 1; file <= m_state.start.LoadLimit; ++file) {
        const auto read = [&](std::string_view word) {
            const auto value = values.find(recordValueName(word, file));
            return value == values.end() ? std::string() : value->second;
        };
        if (read("Filename").empty())
            continue;
        ReadRecord loaded = readRecordTexts(read);
        m_state.PhotFiles.append(std::move(loaded.record));
        if (!loaded.problem.empty()) {
            m_problem = std::move(loaded.problem);
            return true;
        }
    }
    return m_state.PhotFiles.empty();
}

// One look at the whole section: a host that writes meanwhile must not mix two records. It comes before any change,
// because window events may run while it waits for a locked store.
ExchangeStore::Values ExchangeStore::readSection()
{
    Values values;
    for (Setting &setting : m_services.store.readAll(m_state.start.SettingsApp, m_state.start.ExchangeSection))
        values.emplace(std::move(setting.name), std::move(setting.data));
    return values;
}

void ExchangeStore::ClearStore()
{
    m_services.store.transact([&] {
        for (int file = 1; file <= kMaxFiles; ++file)
            for (const std::string_view word : kRecordWords)
                write(word, file, "");
    });
}

}  // namespace penwright
