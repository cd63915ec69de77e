#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace penwright::chm {

/// What a help file says of itself, as far as it says it; names are as they are written there.
struct ChmSystem {
    std::string title;
    std::string defaultTopic;
    std::string contentsFile;
    std::optional<std::uint32_t> language;
};

/// Reads the records of `#SYSTEM`; whatever is cut off or out of range is passed over.
ChmSystem readSystem(std::string_view bytes);

/// Fills what is still empty from the first window of `#WINDOWS`, which points into `#STRINGS`.
void completeFromWindows(ChmSystem &system, std::string_view windows, std::string_view strings);

/// The links that context ids lead to, from `#IVB` and `#STRINGS`; of two links for one id the first counts, a pair
/// that points out of the strings none.
std::map<std::uint32_t, std::string> readContextIds(std::string_view ivb, std::string_view strings);

}  // namespace penwright::chm
