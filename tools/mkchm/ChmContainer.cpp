#include "mkchm/ChmContainer.h"

#include <algorithm>

#include "mkchm/ChmDirectory.h"
#include "mkchm/ChmFormat.h"
#include "mkchm/LittleEndian.h"

namespace penwright::mkchm {
namespace {

/// Names the one section there is, that of what is not compressed.
ChmObject sectionNames()
{
    constexpr std::string_view kName = "Uncompressed";
    std::string bytes;
    append16(bytes, kName.size() + 2);  // words of the entry that follows the count
    append16(bytes, 1);
    append16(bytes, kName.size());
    for (const char character : kName)
        append16(bytes, static_cast<unsigned char>(character));
    append16(bytes, 0);
    return {"::DataSpace/NameList", bytes};
}

std::string fileHeader(std::size_t directorySize)
{
    constexpr std::size_t kDirectory = kHeaderSize + kLengthSectionSize;
    std::string bytes = "ITSF";
    append32(bytes, 3);  // version
    append32(bytes, kHeaderSize);
    append32(bytes, 1);
    append32(bytes, 0);  // no time stamp: the same sources make the same bytes at any time
    append32(bytes, kLanguage);
    bytes += kFileGuid;
    bytes += kSectionsGuid;
    append64(bytes, kHeaderSize);
    append64(bytes, kLengthSectionSize);
    append64(bytes, kDirectory);
    append64(bytes, directorySize);
    append64(bytes, kDirectory + directorySize);
    return bytes;
}

std::string lengthSection(std::size_t fileSize)
{
    std::string bytes;
    append32(bytes, 0x1FE);
    append32(bytes, 0);
    append64(bytes, fileSize);
    append64(bytes, 0);
    return bytes;
}

}  // namespace

std::string makeContainer(std::vector<ChmObject> objects)
{
    objects.push_back({"/", ""});
    objects.push_back(sectionNames());
    std::sort(objects.begin(), objects.end(),
              [](const ChmObject &left, const ChmObject &right) { return standsBefore(left.name, right.name); });

    std::string contents;
    std::vector<DirectoryEntry> entries;
    for (const ChmObject &object : objects) {
        // An empty object lies nowhere.
        entries.push_back({object.name, object.bytes.empty() ? 0 : contents.size(), object.bytes.size()});
        contents += object.bytes;
    }
    const std::string directory = makeDirectory(entries);
    const std::size_t fileSize = kHeaderSize + kLengthSectionSize + directory.size() + contents.size();
    return fileHeader(directory.size()) + lengthSection(fileSize) + directory + contents;
}

}  // namespace penwright::mkchm
