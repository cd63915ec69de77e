#include "wizard/FinishAndSave.h"

#include "core/FileErrors.h"
#include "core/FileSaving.h"
#include "core/IesText.h"
#include "core/RecordAngles.h"
#include "platform/Dialogs.h"

namespace penwright {
namespace {

const SaveNameQuestion kQuestion{"Save New Photometric file As...", "IES files (*.ies)|*.ies;*.IES", "ies", {}};

/// An unnamed file is said to lie here, whatever the platform: hosts compare the text.
constexpr const char *kUnnamedDirectory = "C:\\";

}  // namespace

std::string directoryOf(std::string_view path)
{
    const std::size_t last = path.find_last_of("\\/");
    return std::string(last == std::string_view::npos ? std::string_view() : path.substr(0, last + 1));
}

FinishAndSave::FinishAndSave(ToolState &state, SettingsStore &store, TextFiles &files, Dialogs &dialogs,
                             EventWait &wait)
    : m_state(state),
      m_files(files),
      m_dialogs(dialogs),
      m_wait(wait),
      m_store(state, store, dialogs),
      m_post(state.start, store, wait)
{
}

FinishEnd FinishAndSave::SaveNewFile(bool saveAs, const std::string &title)
{
    try {
        if (saveAs)
            return saveUnderChosenName() ? handOver("SendNewDataClose,") : FinishEnd::NotFinished;
        PhotometricRecord &record = m_state.PhotFiles(1);
        record.Filename = "new_file_" + std::to_string(m_state.start.OpenFileCount + 1);
        record.Directory = kUnnamedDirectory;
        return handOver("SendNewDataClose*,");
    } catch (const RunTimeError &error) {
        m_dialogs.show({error.description(), kOkOnly, title});
        return FinishEnd::NotFinished;
    }
}

bool FinishAndSave::saveUnderChosenName()
{
    const bool hadAngles = hasAngles(m_state.PhotFiles(1));
    for (;;) {
        const std::optional<std::string> name = m_dialogs.chooseSaveName(kQuestion);
        if (!name)
            return false;
        if (name->empty())
            continue;
        if (hadAngles && !hasAngles(m_state.PhotFiles(1)))
            return false;  // the host has sent such a record meanwhile, and page 4 is shown
        m_state.PhotFiles(1).Filename = *name;
        m_state.PhotFiles(1).Directory = directoryOf(*name);
        // A copy: "DATACHANGED" may replace the array while a message box is open.
        const PhotometricRecord record = m_state.PhotFiles(1);
        try {
            if (!WriteIesFile(record))
                continue;
        } catch (const RunTimeError &error) {
            m_dialogs.show({writingQuestionText(error), kOkOnly, "Error saving " + record.Filename});
            return false;
        }
        m_state.PhotFiles(1) = record;  // what was written is what the host gets
        return true;
    }
}

bool FinishAndSave::WriteIesFile(const PhotometricRecord &record)
{
    const TextMaker make = [&record](std::string &text) { appendIesText(text, record); };
    return saveFile(record.Filename, make, kIesLineEnd, m_files, m_dialogs);
}

FinishEnd FinishAndSave::handOver(std::string_view word)
{
    if (m_state.start.HostWindow == 0)
        return FinishEnd::NotFinished;
    const std::int16_t stored = m_store.SaveRecordsToStore(1, 1, 1);
    if (m_wait.isUnloading())
        return FinishEnd::NotFinished;
    switch (m_post.postCommand(stored > 0 ? word : "ReturnClose,")) {
        case WaitEnd::Done:
            return FinishEnd::Taken;
        case WaitEnd::TimedOut:
            return FinishEnd::NotTaken;
        case WaitEnd::Cancelled:
            break;
    }
    return FinishEnd::NotFinished;
}

}  // namespace penwright
