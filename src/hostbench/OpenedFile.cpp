#include "hostbench/OpenedFile.h"

#include <utility>

#include "core/IesReader.h"
#include "core/TextBytes.h"

namespace penwright {

std::variant<HeldFile, std::string> openedFile(const std::string &path, std::string_view bytes)
{
    const std::size_t name = path.rfind('/') + 1;
    auto read = readIesFile(bytes);
    if (const auto *fault = std::get_if<IesFault>(&read))
        return path.substr(name) + ": " + fault->text;
    HeldFile file;
    file.record = std::move(std::get<IesContent>(read).record);
    file.record.Filename = path;
    file.record.Directory = path.substr(0, name);
    file.isSaved = true;
    file.text = utf8Text(bytes);
    return file;
}

}  // namespace penwright
