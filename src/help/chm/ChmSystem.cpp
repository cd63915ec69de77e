#include "help/chm/ChmSystem.h"

#include <algorithm>

namespace penwright::chm {
namespace {

enum SystemCode : unsigned { kContentsFile = 0, kDefaultTopic = 2, kTitle = 3, kLanguage = 4 };

/// Places in an entry of `#WINDOWS`.
constexpr std::size_t kWindowTitle = 0x14;
constexpr std::size_t kWindowContents = 0x60;
constexpr std::size_t kWindowTopic = 0x68;

/// A number of `size` bytes; 0 when the bytes end before it.
std::uint32_t numberAt(std::string_view bytes, std::size_t place, std::size_t size)
{
    if (place > bytes.size() || bytes.size() - place < size)
        return 0;
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
    return number;
}
std::uint32_t at16(std::string_view bytes, std::size_t place)
{
    return numberAt(bytes, place, 2);
}
std::uint32_t at32(std::string_view bytes, std::size_t place)
{
    return numberAt(bytes, place, 4);
}

/// A string up to its NUL; empty when it has none.
std::string stringAt(std::string_view bytes, std::size_t place)
{
    const auto end = bytes.find('\0', place);
    return std::string(end == bytes.npos ? std::string_view() : bytes.substr(place, end - place));
}

void fill(std::string &place, const std::string &text)
{
    if (place.empty())
        place = text;
}

}  // namespace

ChmSystem readSystem(std::string_view bytes)
{
    constexpr std::size_t kRecordHeader = 4;
    ChmSystem system;
    for (std::size_t place = 4; place + kRecordHeader <= bytes.size();) {
        const std::uint32_t code = at16(bytes, place);
        const std::string_view data = bytes.substr(place + kRecordHeader, at16(bytes, place + 2));
        const std::string text(data.substr(0, data.find('\0')));
        if (code == kContentsFile)
            fill(system.contentsFile, text);
        else if (code == kDefaultTopic)
            fill(system.defaultTopic, text);
        else if (code == kTitle)
            fill(system.title, text);
        else if (code == kLanguage && data.size() >= 4)
            system.language = at32(data, 0);
        place += kRecordHeader + data.size();
    }
    return system;
}

void completeFromWindows(ChmSystem &system, std::string_view windows, std::string_view strings)
{
    constexpr std::size_t kHeader = 8;
    if (at32(windows, 0) == 0 || windows.size() <= kHeader)
        return;
    const std::string_view window = windows.substr(kHeader, at32(windows, 4));
    fill(system.title, stringAt(strings, at32(window, kWindowTitle)));
    fill(system.contentsFile, stringAt(strings, at32(window, kWindowContents)));
    fill(system.defaultTopic, stringAt(strings, at32(window, kWindowTopic)));
}

std::map<std::uint32_t, std::string> readContextIds(std::string_view ivb, std::string_view strings)
{
    constexpr std::size_t kHeader = 4;
    constexpr std::size_t kPair = 8;
    std::map<std::uint32_t, std::string> links;
    const std::size_t end = std::min<std::size_t>(ivb.size(), kHeader + std::size_t{at32(ivb, 0)});
    for (std::size_t place = kHeader; place + kPair <= end; place += kPair)
        if (const std::string link = stringAt(strings, at32(ivb, place + 4)); !link.empty())
            links.insert({at32(ivb, place), link});
    return links;
}

}  // namespace penwright::chm
