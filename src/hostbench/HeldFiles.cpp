#include "hostbench/HeldFiles.h"

#include <algorithm>

#include "core/StartupState.h"

namespace penwright {

bool HeldFiles::isFull() const
{
    return count() >= kMaxFiles;
}

int HeldFiles::unsavedCount() const
{
    return static_cast<int>(
        std::count_if(m_files.begin(), m_files.end(), [](const SharedFile &file) { return !file->isSaved; }));
}

int HeldFiles::add(HeldFile file)
{
    return addWithin(std::move(file), kMaxFiles);
}

int HeldFiles::addBesides(HeldFile file, int wizardsAtWork)
{
    return addWithin(std::move(file), kMaxFiles - wizardsAtWork);
}

int HeldFiles::addWithin(HeldFile file, int most)
{
    const auto same = std::find_if(m_files.begin(), m_files.end(), [&file](const SharedFile &held) {
        return file.isSaved && held->record.Filename == file.record.Filename;
    });
    if (same != m_files.end()) {
        *same = std::make_shared<const HeldFile>(std::move(file));
        return static_cast<int>(same - m_files.begin());
    }
    if (count() >= most)
        return -1;
    m_files.push_back(std::make_shared<const HeldFile>(std::move(file)));
    return count() - 1;
}

void HeldFiles::setSaved(int place, const std::string &filename)
{
    auto file = std::make_shared<HeldFile>(at(place));
    file->record.Filename = filename;
    file->isSaved = true;
    m_files[static_cast<std::size_t>(place)] = std::move(file);
}

}  // namespace penwright
