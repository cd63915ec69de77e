#pragma once

#include <string_view>

namespace penwright {

/// The text without the blanks at both ends. Tabs and line ends are no blanks.
inline std::string_view withoutOuterBlanks(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

}  // namespace penwright
