#include "wizard/WarningList.h"

namespace penwright {

void WarningList::Add(std::string_view entry)
{
    m_text.append(entry).append("\r\n");
}

}  // namespace penwright
