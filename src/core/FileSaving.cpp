#include "core/FileSaving.h"

#include <cerrno>
#include <new>
#include <optional>

#include "core/FileErrors.h"
#include "platform/Dialogs.h"
#include "platform/TextFiles.h"

namespace penwright {
namespace {

std::optional<RunTimeError> errorOf(const std::function<void()> &step)
{
    try {
        step();
        return std::nullopt;
    } catch (const RunTimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return errorFromErrno(ENOMEM);
    }
}

/// A text that gets the line end of its last line when it is first written: memory may lack for that, too.
struct FileText {
    std::string_view lineEnd;
    std::string text{};
    bool isEnded = false;
};

void end(FileText &file)
{
    if (!file.isEnded)
        file.text += file.lineEnd;
    file.isEnded = true;
}

std::optional<RunTimeError> errorOfWriting(const std::string &path, FileText &file, TextFiles &files)
{
    return errorOf([&] {
        end(file);
        if (const int failure = files.replace(path, file.text))
            throw errorFromErrno(failure);
    });
}

}  // namespace

bool saveFile(std::string_view path, const TextMaker &make, std::string_view lineEnd, TextFiles &files,
              Dialogs &dialogs)
{
    const std::string kept(path);  // a host command may replace what the path belongs to while the message is shown
    FileText file{lineEnd};
    std::optional<RunTimeError> error = errorOf([&] { make(file.text); });
    if (!error)
        error = errorOfWriting(kept, file, files);
    if (!error)
        return true;
    if (dialogs.show({writingQuestionText(*error), kOkCancel, "Error saving " + kept}) != Answer::Ok)
        return false;
    if (const auto again = errorOfWriting(kept, file, files))
        throw *again;
    return true;
}

}  // namespace penwright
