#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/PhotometricRecord.h"
#include "hostlink/RecordText.h"

namespace penwright {

class SettingsStore;

/// The photometric records in one section of the settings store, by their file numbers from 1 to 25: what tool and host
/// hand each other. Every routine raises the errors of the store.
class RecordSection {
public:
    RecordSection(SettingsStore &store, std::string application, std::string section);

    /// Blanks all eleven values of every file number, in one transaction.
    void clear();

    /// Writes the texts of one record. Error 9 when its counts and arrays disagree.
    void write(int fileNumber, const PhotometricRecord &record);

    /// Writes an empty "Filename", which says that there is no such record.
    void writeNone(int fileNumber);

    /// The records of file numbers 1 to `last` whose "Filename" is not empty, in their order, as they stood together at
    /// one moment.
    std::vector<ReadRecord> read(int last);

private:
    void writeText(std::string_view word, int fileNumber, std::string_view text);

    SettingsStore &m_store;
    std::string m_application;
    std::string m_section;
};

}  // namespace penwright
