#include "hostlib/OwnSection.h"

#include <unistd.h>

#include <array>
#include <climits>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <vector>

namespace penwright {

namespace {

constexpr std::string_view kDigits = "0123456789";

/// What tells one process of this system from all others, earlier ones of its number included.
struct Owner {
    std::string space;
    std::string id;
    std::string start;
};

/// The number of the space in which this process's number counts; "" where the system does not tell.
std::string numberSpace()
{
    std::array<char, PATH_MAX> link{};
    const ssize_t length = readlink("/proc/self/ns/pid", link.data(), link.size());
    const std::string_view text(link.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    const std::size_t begin = text.find_first_of(kDigits);
    if (begin == std::string_view::npos)
        return {};
    return std::string(text.substr(begin, text.find_first_not_of(kDigits, begin) - begin));
}

/// When a process was started, in ticks of the system's clock; "" when there is none of that number any more.
std::string startOf(const std::string &id)
{
    std::ifstream file("/proc/" + id + "/stat");
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    const std::size_t name = text.rfind(')');  // the program's name may hold blanks and brackets
    if (name == std::string::npos)
        return {};
    std::istringstream behind(text.substr(name + 1));
    const std::vector<std::string> words{std::istream_iterator<std::string>(behind), {}};
    constexpr std::size_t kState = 0;
    constexpr std::size_t kStart = 19;
    const bool isOver = words.size() <= kStart || words[kState] == "Z" || words[kState] == "X";
    return isOver ? std::string() : words[kStart];
}

/// A number and the "_" behind it, taken off a text; nothing when it does not begin so.
std::optional<std::string> takeNumber(std::string_view &text)
{
    const std::size_t end = text.find_first_not_of(kDigits);
    if (end == 0 || end == std::string_view::npos || text[end] != '_')
        return std::nullopt;
    std::string number(text.substr(0, end));
    text.remove_prefix(end + 1);
    return number;
}

std::optional<Owner> ownerOf(std::string_view section, std::string_view host)
{
    if (!section.starts_with(std::string(host) + '_'))
        return std::nullopt;
    section.remove_prefix(host.size() + 1);
    const auto space = takeNumber(section);
    const auto id = space ? takeNumber(section) : std::nullopt;
    const auto start = id ? takeNumber(section) : std::nullopt;
    return start ? std::optional(Owner{*space, *id, *start}) : std::nullopt;
}

}  // namespace

std::string ownSectionName(std::string_view host, std::string_view tag)
{
    const std::string id = std::to_string(getpid());
    std::string name(host);
    for (const std::string &part : {numberSpace(), id, startOf(id), std::string(tag)})
        name.append("_").append(part);
    return name;
}

bool isLeftSection(std::string_view section, std::string_view host)
{
    const auto owner = ownerOf(section, host);
    return owner && owner->space == numberSpace() && owner->start != startOf(owner->id);
}

}  // namespace penwright
