#include "core/LineEnds.h"

namespace penwright {

std::size_t lineEndLength(std::string_view text)
{
    if (text.starts_with("\r\n"))
        return 2;
    return text.starts_with('\n') || text.starts_with('\r') ? 1 : 0;
}

std::string_view withoutLastLineEnd(std::string_view text)
{
    if (text.ends_with("\r\n"))
        text.remove_suffix(2);
    else if (text.ends_with('\n') || text.ends_with('\r'))
        text.remove_suffix(1);
    return text;
}

std::size_t lineNumberBehind(std::string_view text)
{
    std::size_t number = 1;
    for (std::size_t at = 0; at < text.size(); ++at)
        if (text[at] == '\n' || (text[at] == '\r' && !text.substr(at + 1).starts_with('\n')))
            ++number;
    return number;
}

std::string inOneLine(std::string_view text)
{
    text = text.substr(0, text.find_last_not_of("\r\n") + 1);
    std::string line;
    line.reserve(text.size());
    while (!text.empty()) {
        const std::size_t end = lineEndLength(text);
        line += end > 0 ? ' ' : text.front();
        text.remove_prefix(end > 0 ? end : 1);
    }
    return line;
}

}  // namespace penwright
