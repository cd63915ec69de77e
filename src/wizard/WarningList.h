#pragma once

#include <string>
#include <string_view>

namespace penwright {

/// The list of the warning dialog: the text itself is the list, each entry ended by "\r\n".
class WarningList {
public:
    void Add(std::string_view entry);
    void Clear() { m_text.clear(); }
    bool Clean() const { return m_text.empty(); }
    const std::string &text() const { return m_text; }

private:
    std::string m_text;
};

}  // namespace penwright
