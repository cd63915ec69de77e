#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace penwright::test {

/// Whether a line of standard error, given without its end, is one that a sanitizer or the toolkit writes about the
/// machine that it runs on: no symbolizer is installed, or there is no good runtime folder.
inline bool isForeignLine(std::string_view line)
{
    for (const std::string_view start : {"QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to '",
                                         "QStandardPaths: wrong permissions on runtime directory "})
        if (line.starts_with(start))
            return true;
    if (!line.starts_with("=="))
        return false;
    const auto endOfNumber = line.find_first_not_of("0123456789", 2);
    const std::string_view said = line.substr(std::min(endOfNumber, line.size()));
    return endOfNumber > 2 && (said == "==WARNING: invalid path to external symbolizer!" ||
                               said == "==WARNING: Failed to use and restart external symbolizer!");
}

/// The text without those of its lines that are foreign. Other text stays as it is, with or without an end of its last
/// line.
inline std::string withoutForeignLines(std::string_view text)
{
    std::string kept;
    while (!text.empty()) {
        const auto length = std::min(text.find('\n'), text.size());
        if (!isForeignLine(text.substr(0, length)))
            kept += text.substr(0, length + 1);
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return kept;
}

}  // namespace penwright::test
