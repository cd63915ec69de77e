#include "hostlink/CommandLink.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

#include "core/Blanks.h"
#include "core/NumberText.h"
#include "platform/Dialogs.h"
#include "platform/HostEmbedding.h"
#include "platform/Raised.h"
#include "platform/SettingsStore.h"

namespace penwright {
namespace {

/// The file name of "DELETEFILE" begins behind the word and its comma.
constexpr std::size_t kDeleteFileNameStart = 11;

/// Without blanks at both ends and in upper case; letters beyond ASCII compare as they are.
std::string trimmedUpper(std::string_view text)
{
    std::string upper(withoutOuterBlanks(text));
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::toupper(c) : c); });
    return upper;
}

/// The size that "MOVEWIN" asks for: 0 stands for the design size, then -1 for the current one, both for both sides.
PixelSize wantedSize(std::int32_t width, std::int32_t height, PixelSize design, PixelSize current)
{
    constexpr int kLargest = std::numeric_limits<std::int16_t>::max();
    if (width == 0 || height == 0)
        return design;
    if (width == -1 || height == -1)
        return current;
    return {std::clamp<int>(width, 1, kLargest), std::clamp<int>(height, 1, kLargest)};
}

/// The display counts places in 16 bits.
int place(std::int32_t pixels)
{
    return std::clamp<int>(pixels, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
}

}  // namespace

CommandLink::CommandLink(ToolState &state, SettingsStore &store, Dialogs &dialogs, HostEmbedding &embedding,
                         LinkedWindow &window)
    : m_state(state),
      m_store(store),
      m_dialogs(dialogs),
      m_embedding(embedding),
      m_window(window),
      m_exchange(state, store, dialogs)
{
}

std::string CommandLink::inboxName() const
{
    return m_state.start.ToolName + "|" + m_state.start.InstanceTag;
}

bool CommandLink::poll()
{
    std::string command = m_store.pop(m_state.start.SettingsApp, m_state.start.ExchangeSection, inboxName());
    if (command.empty())
        return false;
    m_waiting.push_back(std::move(command));
    return true;
}

void CommandLink::obeyNext()
{
    if (m_waiting.empty())
        return;
    std::string command = std::move(m_waiting.front());
    m_waiting.pop_front();
    msbCmd(std::move(command));
}

void CommandLink::msbCmd(std::string command)
{
    PendingCommand = std::move(command);
    m_log.append(PendingCommand);
    if (!m_window.isUnloading()) {
        try {
            const SplitText split = SplitCommandText(PendingCommand);
            if (split.lineCount > 0)
                obey(split.table);
        } catch (const RunTimeError &) {
            tellError();
        }
    }
    m_window.showLog();
}

void CommandLink::tellError()
{
    if (m_isTellingError)
        return;
    const Raised raised(m_isTellingError);
    m_dialogs.show({"err in linkExectue."});
}

void CommandLink::obey(const FieldTable &fields)
{
    const std::string word = trimmedUpper(fields(1, 1));
    if (word == "DATACHANGED") {
        dataChanged();
    } else if (word == "START") {
        m_window.stopDeathTimer();
        m_window.StartWizard();
    } else if (word == "MOVEWIN") {
        moveWindow(fields);
    } else if (word == "CLOSE") {
        m_window.beginUnload();
    } else if (word == "DELETEFILE") {
        deleteFile();
    }
}

void CommandLink::moveWindow(const FieldTable &fields)
{
    if (fields.fields() < 5)
        return;
    const auto number = [&fields](int field) { return toInt32(leadingNumber(fields(1, field))); };
    const std::int32_t x = number(2), y = number(3), width = number(4), height = number(5);
    m_state.start.MoveX = x;
    m_state.start.MoveY = y;
    const auto pixels = [this](std::int32_t twips) {
        return static_cast<int>(std::lround(twips / m_embedding.twipsPerPixel()));
    };
    const PixelSize design{pixels(m_state.start.DesignWidth), pixels(m_state.start.DesignHeight)};
    m_embedding.MoveWindow(place(x), place(y), wantedSize(width, height, design, m_embedding.size()));
    if (m_embedding.isShown())
        m_embedding.raise();
}

void CommandLink::deleteFile()
{
    const std::string name = trimmedUpper(PendingCommand.size() > kDeleteFileNameStart
                                              ? std::string_view(PendingCommand).substr(kDeleteFileNameStart)
                                              : std::string_view());
    const auto &records = m_state.CandelaWorkRecord;
    if (std::any_of(records.begin(), records.end(),
                    [&name](const PhotometricRecord &record) { return trimmedUpper(record.Filename) == name; }))
        m_window.beginUnload();
}

void CommandLink::dataChanged()
{
    if (const auto problem = m_exchange.loadOrKeepRecords())
        return m_log.append("No data or error -1" + (problem->empty() ? "" : " " + *problem));
    logUsed(carryOver());
    m_window.followRecord();
}

/// Carries the loaded records into the working records of their names; these names, a line each.
std::string CommandLink::carryOver()
{
    std::string used;
    for (PhotometricRecord &record : m_state.CandelaWorkRecord)
        for (const PhotometricRecord &fresh : m_state.PhotFiles)
            if (record.Filename == fresh.Filename) {
                record = fresh;
                used += fresh.Filename + "\r\n";
            }
    return used;
}

void CommandLink::logUsed(std::string used)
{
    if (used.empty())
        return m_log.append("Data received but not used");
    m_log.append("Updated data received and used");
    m_log.setTxtFiles(std::move(used));
}

std::string joinedByAddition(std::string_view text, int number)
{
    return generalText(toDouble(text) + number);
}

void CommandLink::linkError(int number)
{
    try {
        m_log.setTxtCmds(joinedByAddition(m_log.txtCmds() + "LinkError ", number));
    } catch (const RunTimeError &) {  // kept as hosts have always known it: the log stays as it was
    }
}

}  // namespace penwright
