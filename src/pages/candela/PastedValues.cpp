#include "pages/candela/PastedValues.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/LineEnds.h"

namespace penwright {
namespace {

/// Where the next separator stands, at `at` or behind it; the text's length when there is none. Values are so short
/// that a plain loop is faster than the library's search.
std::size_t separatorPlace(std::string_view text, std::size_t at)
{
    while (at < text.size() && text[at] != '\t' && text[at] != '\r' && text[at] != '\n')
        ++at;
    return at;
}

/// The length of the separator that stands at a place: one character, or the two of a line end.
std::size_t separatorLength(std::string_view text, std::size_t at)
{
    return std::max<std::size_t>(1, lineEndLength(text.substr(at)));
}

}  // namespace

PastedValues::PastedValues(std::string_view text) : m_rest(withoutLastLineEnd(text))
{
    if (m_rest.empty())
        return;
    std::size_t tabs = 0;
    for (std::size_t at = 0; (at = separatorPlace(m_rest, at)) < m_rest.size(); at += separatorLength(m_rest, at)) {
        if (m_rest[at] == '\t')
            ++tabs;
        else
            endLine(std::exchange(tabs, 0) + 1);
    }
    endLine(tabs + 1);
}

void PastedValues::endLine(std::size_t values)
{
    const int most = std::numeric_limits<int>::max();
    const int length = static_cast<int>(std::min<std::size_t>(values, most));
    m_shortestLine = m_count == 0 ? length : std::min(m_shortestLine, length);
    m_longestLine = std::max(m_longestLine, length);
    m_count = length > most - m_count ? most : m_count + length;
}

std::string_view PastedValues::next()
{
    const std::size_t end = separatorPlace(m_rest, 0);
    const std::string_view value = m_rest.substr(0, end);
    m_rest.remove_prefix(end == m_rest.size() ? end : end + separatorLength(m_rest, end));
    return value;
}

}  // namespace penwright
