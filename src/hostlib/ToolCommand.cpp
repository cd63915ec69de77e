#include <penwright_host/ToolCommand.h>

#include <algorithm>
#include <array>

#include "core/SplitCommandText.h"

namespace penwright {

namespace {

struct WordRow {
    std::string_view text;
    ToolWord word;
    int fields;
    bool bringsRecord;
    bool isSaved;
    bool expectsClose;
};

constexpr std::array<WordRow, 7> kWords{{
    {"ReturnClose", ToolWord::ReturnClose, 3, false, false, true},
    {"SendNewDataClose", ToolWord::SendNewDataClose, 3, true, true, true},
    {"SendNewDataClose*", ToolWord::SendNewDataCloseUnnamed, 3, true, false, true},
    {"SendUpdatedDataClose", ToolWord::SendUpdatedDataClose, 3, true, false, true},
    {"SendSavedDataClose", ToolWord::SendSavedDataClose, 3, true, true, true},
    {"CloseRemove", ToolWord::CloseRemove, 3, false, false, false},
    {"RefreshData", ToolWord::RefreshData, 1, false, false, false},
}};

const WordRow &rowOf(ToolWord word)
{
    return *std::find_if(kWords.begin(), kWords.end(), [word](const WordRow &row) { return row.word == word; });
}

}  // namespace

std::optional<ToolCommand> parseToolCommand(std::string_view text)
{
    const SplitText split = SplitCommandText(text);
    if (split.lineCount != 1)
        return std::nullopt;
    const std::string_view word = split.table(1, 1);
    for (const WordRow &row : kWords) {
        if (row.text != word || row.fields != split.fieldCount)
            continue;
        ToolCommand command{row.word, {}, {}};
        if (row.fields == 3) {
            command.tool = split.table(1, 2);
            command.tag = split.table(1, 3);
        }
        return command;
    }
    return std::nullopt;
}

bool bringsRecord(ToolWord word)
{
    return rowOf(word).bringsRecord;
}

bool isSavedOnDisk(ToolWord word)
{
    return rowOf(word).isSaved;
}

bool expectsClose(ToolWord word)
{
    return rowOf(word).expectsClose;
}

}  // namespace penwright
