#include "help/chm/HelpLinks.h"

#include <algorithm>
#include <charconv>

#include "core/Ascii.h"
#include "help/chm/Limits.h"

namespace penwright::chm {
namespace {

std::string percentDecoded(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        int code = 0;
        const char *digits = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() && std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2) {
            result += static_cast<char>(code);
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

/// A path without empty parts, "." and "..".
std::string plainPath(const std::string &path)
{
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string part = path.substr(begin, end - begin);
        if (part == ".." && !parts.empty())
            parts.pop_back();
        else if (!part.empty() && part != "." && part != "..")
            parts.push_back(part);
        begin = end + 1;
    }
    std::string result;
    for (const std::string &part : parts)
        result += (result.empty() ? "" : "/") + part;
    return result;
}

/// Whether a link is a path from the root of a machine, with a drive's letter or without.
bool isAbsolutePath(std::string_view link)
{
    if (link.size() > 2 && link[1] == ':')
        link.remove_prefix(2);
    return !link.empty() && (link.front() == '/' || link.front() == '\\');
}

}  // namespace

bool isPageName(std::string_view name)
{
    const std::string lower = lowerCase(name);
    for (const std::string_view ending : {".htm", ".html", ".xhtml"})
        if (lower.size() > ending.size() && lower.compare(lower.size() - ending.size(), ending.size(), ending) == 0)
            return true;
    return false;
}

HelpPlace placeOfLink(std::string_view link)
{
    if (const auto colons = link.rfind("::"); colons != link.npos)
        link.remove_prefix(colons + 2);
    HelpPlace place;
    if (const auto hash = link.find('#'); hash != link.npos) {
        place.anchor = percentDecoded(link.substr(hash + 1));
        link = link.substr(0, hash);
    }
    std::string path = percentDecoded(link.substr(0, link.find('?')));
    std::replace(path.begin(), path.end(), '\\', '/');
    place.topic = plainPath(path);
    return place;
}

std::vector<HelpPlace> placesOfStoredLink(std::string_view link)
{
    const HelpPlace named = placeOfLink(link);
    std::vector<HelpPlace> places{named};
    if (!isAbsolutePath(link))
        return places;
    for (std::size_t slash = named.topic.rfind('/'); slash != std::string::npos && places.size() <= kMostTails;
         slash = slash == 0 ? std::string::npos : named.topic.rfind('/', slash - 1))
        places.push_back({named.topic.substr(slash + 1), named.anchor});
    std::reverse(places.begin() + 1, places.end());
    return places;
}

}  // namespace penwright::chm
