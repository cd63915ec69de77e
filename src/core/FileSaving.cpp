#include "core/FileSaving.h"

#include <optional>
#include <string_view>

#include "core/FileErrors.h"
#include "platform/Dialogs.h"
#include "platform/TextFiles.h"

namespace penwright {
namespace {

std::optional<RunTimeError> errorOfMaking(const TextMaker &make, std::string &text)
{
    try {
        make(text);
        return std::nullopt;
    } catch (const RunTimeError &error) {
        return error;
    }
}

std::optional<RunTimeError> errorOfWriting(const std::string &path, std::string_view text, TextFiles &files)
{
    const int failure = files.replace(path, text);
    return failure == 0 ? std::nullopt : std::optional(errorFromErrno(failure));
}

}  // namespace

bool saveFile(std::string_view path, const TextMaker &make, TextFiles &files, Dialogs &dialogs)
{
    const std::string kept(path);  // a host command may replace what the path belongs to while the message is shown
    std::string text;
    std::optional<RunTimeError> error = errorOfMaking(make, text);
    text += "\r\n";
    if (!error)
        error = errorOfWriting(kept, text, files);
    if (!error)
        return true;
    if (dialogs.show({writingQuestionText(*error), kOkCancel, "Error saving " + kept}) != Answer::Ok)
        return false;
    if (const auto again = errorOfWriting(kept, text, files))
        throw *again;
    return true;
}

}  // namespace penwright
