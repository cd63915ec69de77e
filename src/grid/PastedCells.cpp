#include "grid/PastedCells.h"

#include <algorithm>

#include "core/LineEnds.h"

namespace penwright {
namespace {

constexpr std::string_view kSeparators = "\t\r\n";

/// The length of the cell in quotes that a text begins with, with a line end in it; 0 for any other cell, whose quotes
/// are its own. Looks no further than the next lone quote.
std::size_t quotedLength(std::string_view text)
{
    if (!text.starts_with('"'))
        return 0;
    std::size_t at = text.find('"', 1);
    while (text.substr(at == std::string_view::npos ? text.size() : at, 2) == "\"\"")
        at = text.find('"', at + 2);
    if (at == std::string_view::npos || text.substr(0, at).find_first_of("\r\n") == std::string_view::npos)
        return 0;
    const std::size_t length = at + 1;
    return length == text.size() || kSeparators.find(text[length]) != std::string_view::npos ? length : 0;
}

/// What stands between the quotes of a cell, in one line and without tabs.
std::string unquoted(std::string_view cell)
{
    const std::string_view inside = cell.substr(1, cell.size() - 2);
    std::string text;
    for (std::size_t at = 0; at < inside.size(); ++at) {
        text += inside[at] == '\t' ? ' ' : inside[at];
        if (inside[at] == '"')
            ++at;
    }
    return inOneLine(text);
}

}  // namespace

PastedCells::PastedCells(std::string_view text) : m_rest(withoutLastLineEnd(text)), m_hasMore(!text.empty()) {}

std::optional<PastedCells::Cell> PastedCells::next()
{
    if (!m_hasMore)
        return std::nullopt;
    const std::size_t quoted = quotedLength(m_rest);
    const std::size_t length = quoted > 0 ? quoted : std::min(m_rest.find_first_of(kSeparators), m_rest.size());
    const std::string_view read = m_rest.substr(0, length);
    Cell cell{quoted > 0 ? unquoted(read) : std::string(read), true};
    m_rest.remove_prefix(length);
    m_hasMore = !m_rest.empty();
    if (m_hasMore) {
        cell.endsLine = m_rest.front() != '\t';
        m_rest.remove_prefix(std::max<std::size_t>(1, lineEndLength(m_rest)));
    }
    return cell;
}

}  // namespace penwright
