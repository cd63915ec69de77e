#include "hostlink/CommandLog.h"

#include <algorithm>

namespace penwright {
void CommandLog::append(std::string_view entry)
{
    m_lines.emplace_back(entry.substr(0, kLongestEntry));
    ++m_appended;
    while (m_lines.size() > std::size_t{kMostEntries})
        m_lines.pop_front();
}

std::string CommandLog::txtCmds() const
{
    return latest(m_lines.size());
}

std::string CommandLog::latest(std::size_t entries) const
{
    std::string text;
    for (std::size_t i = m_lines.size() - std::min(entries, m_lines.size()); i < m_lines.size(); ++i)
        text.append(m_lines[i]).append("\r\n");
    return text;
}

void CommandLog::setTxtCmds(std::string_view text)
{
    m_lines.clear();
    append(text);
}

}  // namespace penwright
