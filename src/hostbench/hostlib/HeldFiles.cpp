#include "hostbench/hostlib/HeldFiles.h"

#include <algorithm>

#include "core/IesWriter.h"
#include "core/StartupState.h"
#include "platform/Dialogs.h"
#include "platform/TextFiles.h"

namespace penwright {

namespace {

// Building a text touches no file and asks nobody.
class NoFiles : public TextFiles {
public:
    int replace(const std::string &, std::string_view) override { return 0; }
};

class NoDialogs : public Dialogs {
public:
    Answer show(const MessageBox &) override { return Answer::Dismissed; }
    std::optional<std::string> chooseSaveName(const SaveNameQuestion &) override { return std::nullopt; }
};

}  // namespace

bool HeldFiles::isFull() const
{
    return count() >= kMaxFiles;
}

int HeldFiles::add(HeldFile file)
{
    const auto same = std::find_if(m_files.begin(), m_files.end(), [&file](const HeldFile &held) {
        return file.isSaved && held.record.Filename == file.record.Filename;
    });
    if (same != m_files.end()) {
        *same = std::move(file);
        return static_cast<int>(same - m_files.begin());
    }
    if (isFull())
        return -1;
    m_files.push_back(std::move(file));
    return count() - 1;
}

void HeldFiles::setSaved(int place, const std::string &filename)
{
    HeldFile &file = m_files.at(static_cast<std::size_t>(place));
    file.record.Filename = filename;
    file.isSaved = true;
}

std::string iesFileText(const PhotometricRecord &record)
{
    NoFiles files;
    NoDialogs dialogs;
    IesWriter writer(files, dialogs);
    writer.build(record);
    return writer.text() + "\r\n";
}

}  // namespace penwright
