#include "hostbench/OpenedFile.h"

#include <utility>

#include "core/IesReader.h"
#include "core/TextBytes.h"

namespace penwright {

namespace {

/// How much of the work is done when the numbers are read; the rest is what is made of them.
constexpr double kReadingPart = 0.8;

}  // namespace

std::variant<HeldFile, std::string> openedFile(const std::string &path, std::string_view bytes,
                                               const std::function<bool(double)> &goOn)
{
    const std::size_t name = path.rfind('/') + 1;
    auto read = readIesFile(bytes, [&goOn](double part) { return !goOn || goOn(kReadingPart * part); });
    if (const auto *fault = std::get_if<IesFault>(&read))
        return fault->text.empty() ? std::string() : path.substr(name) + ": " + fault->text;
    HeldFile file;
    file.record = std::move(std::get<IesContent>(read).record);
    file.record.Filename = path;
    file.record.Directory = path.substr(0, name);
    file.isSaved = true;
    file.text = utf8Text(bytes);
    if (goOn && !goOn(kReadingPart))
        return std::string();
    file.review = fileReview(file.record);
    return file;
}

}  // namespace penwright
