#include "wizard/WarningList.h"

#include <algorithm>

namespace penwright {

void WarningList::Add(std::string_view entry)
{
    m_text.append(entry).append("\r\n");
    if (m_stretches.empty() || m_stretches.back().place != m_place)
        m_stretches.push_back({m_lines, m_place});
    m_lines += 1 + static_cast<int>(std::count(entry.begin(), entry.end(), '\n'));
    if (!m_firstFault)
        m_firstFault = m_place;
}

void WarningList::Clear()
{
    m_text.clear();
    m_lines = 0;
    m_stretches.clear();
    m_place.reset();
    m_firstFault.reset();
}

std::optional<FaultPlace> WarningList::placeOfLine(int line) const
{
    if (line < 0 || line >= m_lines)
        return std::nullopt;
    const auto next = std::upper_bound(m_stretches.begin(), m_stretches.end(), line,
                                       [](int sought, const Stretch &stretch) { return sought < stretch.firstLine; });
    return std::prev(next)->place;
}

void WarningList::noteError()
{
    m_firstFault = m_place;
}

}  // namespace penwright
