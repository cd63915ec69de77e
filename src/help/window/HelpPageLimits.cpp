#include "help/window/HelpPageLimits.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace penwright {
namespace {

constexpr std::size_t kLargestPage = 1U << 20;
constexpr std::size_t kLongestWord = 20000;
constexpr int kDeepestNesting = 200;

/// Elements that break a line, so that no word goes on behind them. Some have no end, or so seldom that their begins do
/// not count as nesting.
constexpr std::string_view kEndless[]{"br", "hr", "p", "li", "dt", "dd", "td", "th", "tr"};
constexpr std::string_view kBlocks[]{"div", "table", "ul", "ol", "dl", "pre", "h1", "h2", "h3", "h4", "h5", "h6"};
constexpr std::string_view kEmpty[]{"img", "meta", "link", "input", "col"};

template <std::size_t Size>
bool contains(const std::string_view (&names)[Size], std::string_view name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool isNameCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

class Measure {
public:
    explicit Measure(const std::string &html) : m_html(html) {}

    bool isWithinLimits()
    {
        for (std::size_t place = 0; place < m_html.size();) {
            if (m_html[place] == '<')
                place = behindTag(place + 1);
            else
                countCharacter(m_html[place++]);
            if (m_word > kLongestWord || m_depth > kDeepestNesting)
                return false;
        }
        return true;
    }

private:
    void countCharacter(char character)
    {
        const bool isBlank = character == ' ' || character == '\n' || character == '\r' || character == '\t';
        m_word = isBlank ? 0 : m_word + 1;
    }

    std::size_t behindTag(std::size_t begin)
    {
        const bool isEnd = begin < m_html.size() && m_html[begin] == '/';
        begin += isEnd ? 1 : 0;
        std::string name;
        while (begin < m_html.size() && name.size() < 16 && isNameCharacter(m_html[begin]))
            name += static_cast<char>(m_html[begin++] | 0x20);
        if (name.empty())
            return begin;
        if (contains(kEndless, name) || contains(kBlocks, name))
            m_word = 0;
        if (!contains(kEndless, name) && !contains(kEmpty, name))
            m_depth = std::max(0, m_depth + (isEnd ? -1 : 1));
        return std::min(m_html.find('>', begin), m_html.size() - 1) + 1;
    }

    const std::string &m_html;
    std::size_t m_word = 0;
    int m_depth = 0;
};

}  // namespace

bool isShowable(const std::string &html)
{
    return html.size() <= kLargestPage && Measure(html).isWithinLimits();
}

}  // namespace penwright
