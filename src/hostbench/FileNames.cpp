#include "hostbench/FileNames.h"

#include <algorithm>
#include <string_view>

namespace penwright {

namespace {

constexpr std::size_t kMostBytes = 100;
constexpr std::string_view kSuffix = ".ies";

/// What stands behind a keyword in the first line of it that has something there; "" for none.
std::string_view valueOf(const PhotometricRecord &record, std::string_view keyword)
{
    for (const std::string &line : record.Keywords) {
        std::string_view text = line;
        if (!text.starts_with(keyword))
            continue;
        text.remove_prefix(keyword.size());
        text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
        if (!text.empty())
            return text;
    }
    return {};
}

/// The last part of a path without its suffix.
std::string_view nameOf(std::string_view path)
{
    const std::size_t slash = path.find_last_of("/\\");
    if (slash != std::string_view::npos)
        path.remove_prefix(slash + 1);
    const std::size_t point = path.rfind('.');
    return point == std::string_view::npos || point == 0 ? path : path.substr(0, point);
}

bool isUnsafe(char c)
{
    constexpr std::string_view kUnsafe = "/\\:*?\"<>|$`'&;!~#%{}";
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7f || kUnsafe.find(c) != std::string_view::npos;
}

/// Without blanks and points at its ends, which some systems drop or hide.
std::string_view trimmed(std::string_view name)
{
    constexpr std::string_view kEnds = " .-";
    const std::size_t first = name.find_first_not_of(kEnds);
    if (first == std::string_view::npos)
        return {};
    return name.substr(first, name.find_last_not_of(" .") - first + 1);
}

std::string safe(std::string_view wish)
{
    std::string name(wish);
    std::replace_if(name.begin(), name.end(), isUnsafe, '-');
    std::string_view kept = trimmed(name);
    std::size_t end = std::min(kept.size(), kMostBytes - kSuffix.size());
    while (end > 0 && end < kept.size() && (static_cast<unsigned char>(kept[end]) & 0xC0) == 0x80)
        --end;
    return std::string(trimmed(kept.substr(0, end)));
}

}  // namespace

std::string proposedFileName(const PhotometricRecord &record)
{
    for (const std::string_view wish :
         {valueOf(record, "[LUMCAT]"), valueOf(record, "[MANUFAC]"), nameOf(record.Filename)})
        if (const std::string name = safe(wish); !name.empty())
            return name + std::string(kSuffix);
    return "luminaire" + std::string(kSuffix);
}

}  // namespace penwright
