#include "wizard/GridBlock.h"

namespace penwright {
namespace {

std::vector<std::string> splitAt(std::string_view text, char mark)
{
    std::vector<std::string> parts;
    for (std::size_t end; (end = text.find(mark)) != std::string_view::npos; text.remove_prefix(end + 1))
        parts.emplace_back(text.substr(0, end));
    parts.emplace_back(text);
    return parts;
}

std::string withPlainLineEnds(std::string_view text)
{
    std::string plain(text);
    for (std::size_t at = 0; (at = plain.find("\r\n", at)) != std::string::npos;)
        plain.erase(at, 1);
    return plain;
}

}  // namespace

bool isGridBlock(std::string_view text)
{
    return text.find_first_of("\t\n") != std::string_view::npos;
}

GridLines splitGridBlock(std::string_view text)
{
    if (text.empty())
        return {};
    std::string plain = withPlainLineEnds(text);
    if (plain.back() == '\n')
        plain.pop_back();
    GridLines lines;
    for (const std::string &line : splitAt(plain, '\n'))
        lines.push_back(splitAt(line, '\t'));
    return lines;
}

}  // namespace penwright
