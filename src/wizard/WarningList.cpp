#include "wizard/WarningList.h"

namespace penwright {

void WarningList::Add(std::string_view entry)
{
    m_text.append(entry).append("\r\n");
    if (!m_firstFault)
        m_firstFault = m_place;
}

void WarningList::Clear()
{
    m_text.clear();
    m_place.reset();
    m_firstFault.reset();
}

void WarningList::noteError()
{
    m_firstFault = m_place;
}

}  // namespace penwright
