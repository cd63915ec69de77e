#include "help/chm/PlainText.h"

#include <algorithm>
#include <string_view>

#include "core/Ascii.h"
#include "help/chm/Entities.h"

namespace penwright::chm {
namespace {

std::string squeezed(std::string_view text)
{
    constexpr std::string_view kWhite = " \t\r\n\f";
    std::string result;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(kWhite), text.size()));
        if (text.empty())
            return result;
        const auto end = std::min(text.find_first_of(kWhite), text.size());
        result.append(result.empty() ? "" : " ").append(text.substr(0, end));
        text.remove_prefix(end);
    }
}

/// Marks of letters, which stand within words.
bool isWithinWords(std::string_view tag)
{
    for (const std::string_view name : {"a", "b", "i", "u", "em", "strong", "span", "font", "code", "tt", "sub", "sup"})
        if (tag == name)
            return true;
    return false;
}

/// Walks through a page once, whatever it holds.
class Stripper {
public:
    explicit Stripper(const std::string &html) : m_html(html), m_lower(lowerCase(html)) {}

    PlainPage strip()
    {
        while (m_place < m_html.size()) {
            const std::size_t tag = std::min(m_html.find('<', m_place), m_html.size());
            (m_inTitle ? m_title : m_text).append(m_html, m_place, tag - m_place);
            m_place = tag;
            if (m_place < m_html.size())
                parseTag();
        }
        return {squeezed(withoutEntities(m_title)), squeezed(withoutEntities(m_text))};
    }

private:
    void parseTag()
    {
        if (m_lower.compare(m_place, 4, "<!--") == 0)
            return goBehind("-->", m_place + 4);
        const bool isEnd = m_lower.compare(m_place, 2, "</") == 0;
        const std::size_t begin = m_place + (isEnd ? 2 : 1);
        const std::size_t end = std::min(m_lower.find_first_of(" \t\r\n\f/<>", begin), m_lower.size());
        const std::string_view name = std::string_view(m_lower).substr(begin, end - begin);
        goBehind(">", end);
        if (name == "title")
            m_inTitle = !isEnd;
        else if (!isEnd && (name == "script" || name == "style"))
            goBehind("</" + std::string(name), m_place), goBehind(">", m_place);
        else if (!isWithinWords(name))
            m_text += ' ';
    }

    void goBehind(const std::string &mark, std::size_t from)
    {
        const std::size_t found = m_lower.find(mark, from);
        m_place = found == m_lower.npos ? m_lower.size() : found + mark.size();
    }

    const std::string &m_html;
    const std::string m_lower;
    std::size_t m_place = 0;
    bool m_inTitle = false;
    std::string m_title;
    std::string m_text;
};

}  // namespace

PlainPage plainPage(const std::string &html)
{
    return Stripper(html).strip();
}

}  // namespace penwright::chm
