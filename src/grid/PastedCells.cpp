#include "grid/PastedCells.h"

#include <algorithm>

#include "core/LineEnds.h"

namespace penwright {

PastedCells::PastedCells(std::string_view text) : m_rest(withoutLastLineEnd(text)), m_hasMore(!text.empty()) {}

std::optional<PastedCells::Cell> PastedCells::next()
{
    if (!m_hasMore)
        return std::nullopt;
    const std::size_t length = std::min(m_rest.find_first_of("\t\r\n"), m_rest.size());
    Cell cell{std::string(m_rest.substr(0, length)), true};
    m_rest.remove_prefix(length);
    m_hasMore = !m_rest.empty();
    if (m_hasMore) {
        cell.endsLine = m_rest.front() != '\t';
        m_rest.remove_prefix(std::max<std::size_t>(1, lineEndLength(m_rest)));
    }
    return cell;
}

}  // namespace penwright
