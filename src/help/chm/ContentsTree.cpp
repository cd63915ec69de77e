#include "help/chm/ContentsTree.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "core/Ascii.h"
#include "help/chm/Entities.h"
#include "help/chm/Limits.h"

namespace penwright::chm {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

/// Cuts one tag after the other out of a text.
class Tags {
public:
    explicit Tags(std::string_view text) : m_rest(text) {}

    /// Goes behind the next "<"; false at the end of the text.
    bool next()
    {
        const auto begin = m_rest.find('<');
        if (begin == m_rest.npos)
            return false;
        m_rest.remove_prefix(begin + 1);
        const auto end = std::min(m_rest.find_first_of(" \t\r\n<>"), m_rest.size());
        m_name = lowerCase(m_rest.substr(0, end));
        m_rest.remove_prefix(end);
        return true;
    }

    const std::string &name() const { return m_name; }

    struct Attribute {
        std::string name;
        std::string_view value;
    };

    /// The next attribute of the tag; nothing at its end.
    std::optional<Attribute> attribute()
    {
        skip(kBlanks);
        if (m_rest.empty() || m_rest.front() == '>' || m_rest.front() == '<')
            return std::nullopt;
        const auto end = std::min(m_rest.find_first_of(" \t\r\n=<>"), m_rest.size());
        Attribute attribute{lowerCase(m_rest.substr(0, end)), {}};
        m_rest.remove_prefix(end);
        skip(kBlanks);
        if (!m_rest.empty() && m_rest.front() == '=') {
            m_rest.remove_prefix(1);
            skip(kBlanks);
            attribute.value = parseValue();
        }
        return attribute;
    }

private:
    void skip(std::string_view characters)
    {
        m_rest.remove_prefix(std::min(m_rest.find_first_not_of(characters), m_rest.size()));
    }

    std::string_view parseValue()
    {
        const char quote = m_rest.empty() ? '\0' : m_rest.front();
        const bool isQuoted = quote == '"' || quote == '\'';
        if (isQuoted)
            m_rest.remove_prefix(1);
        const auto end = std::min(isQuoted ? m_rest.find(quote) : m_rest.find_first_of(" \t\r\n<>"), m_rest.size());
        const std::string_view value = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + (isQuoted ? 1 : 0), m_rest.size()));
        return value;
    }

    std::string_view m_rest;
    std::string m_name;
};

/// Of several values the first counts, as an object that leads to several pages has them.
void parseParameter(Tags &tags, ContentsLine &line)
{
    std::string name;
    std::string_view value;
    while (const auto attribute = tags.attribute()) {
        if (attribute->name == "name")
            name = lowerCase(attribute->value);
        else if (attribute->name == "value")
            value = attribute->value;
    }
    if (name == "name" && line.title.empty())
        line.title = withoutEntities(value);
    else if (name == "local" && line.link.empty())
        line.link = withoutEntities(value);
}

/// Whether the object that begins here is a line of the contents, not a property of the whole.
bool isLine(Tags &tags)
{
    bool is = true;
    while (const auto attribute = tags.attribute())
        if (attribute->name == "type")
            is = lowerCase(attribute->value) == "text/sitemap";
    return is;
}

}  // namespace

std::vector<ContentsLine> readContents(const std::string &text)
{
    std::vector<ContentsLine> lines;
    std::optional<ContentsLine> line;
    int lists = 0;
    for (Tags tags(text); lines.size() < kMostNames && tags.next();) {
        if (tags.name() == "ul") {
            ++lists;
        } else if (tags.name() == "/ul") {
            lists = std::max(lists - 1, 0);
        } else if (tags.name() == "object") {
            line.reset();
            if (isLine(tags))
                line.emplace();
        } else if (tags.name() == "param" && line) {
            parseParameter(tags, *line);
        } else if (tags.name() == "/object" && line) {
            const int above = lines.empty() ? -1 : lines.back().depth;
            line->depth = std::clamp(lists - 1, 0, std::min(above + 1, kDeepestEntry));
            if (!line->title.empty())
                lines.push_back(*line);
            line.reset();
        }
    }
    return lines;
}

}  // namespace penwright::chm
