#include "hostlink/RecordSection.h"

#include <unordered_map>
#include <utility>

#include "core/StartupState.h"
#include "platform/SettingsStore.h"

namespace penwright {

RecordSection::RecordSection(SettingsStore &store, std::string application, std::string section)
    : m_store(store), m_application(std::move(application)), m_section(std::move(section))
{
}

void RecordSection::writeText(std::string_view word, int fileNumber, std::string_view text)
{
    m_store.write(m_application, m_section, recordValueName(word, fileNumber), text);
}

void RecordSection::clear()
{
    m_store.transact([this] {
        for (int file = 1; file <= kMaxFiles; ++file)
            for (const std::string_view word : kRecordWords)
                writeText(word, file, "");
    });
}

void RecordSection::write(int fileNumber, const PhotometricRecord &record)
{
    writeRecordTexts(record,
                     [&](std::string_view word, const std::string &text) { writeText(word, fileNumber, text); });
}

void RecordSection::writeNone(int fileNumber)
{
    writeText("Filename", fileNumber, "");
}

std::vector<ReadRecord> RecordSection::read(int last)
{
    // One look at the whole section: who writes meanwhile must not mix two records.
    std::unordered_map<std::string, std::string> values;
    for (Setting &setting : m_store.readAll(m_application, m_section))
        values.emplace(std::move(setting.name), std::move(setting.data));
    std::vector<ReadRecord> records;
    for (int file = 1; file <= last; ++file) {
        const auto textOf = [&](std::string_view word) {
            const auto value = values.find(recordValueName(word, file));
            return value == values.end() ? std::string() : value->second;
        };
        if (!textOf("Filename").empty())
            records.push_back(readRecordTexts(textOf));
    }
    return records;
}

}  // namespace penwright
