#include "HelpTopic.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace penwright::test {
namespace {

bool isSpace(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

const std::map<std::string, std::string, std::less<>> kEntities{
    {"amp", "&"},  {"lt", "<"},         {"gt", ">"},          {"quot", "\""},      {"#160", " "},
    {"nbsp", " "}, {"times", "\u00D7"}, {"divide", "\u00F7"}, {"minus", "\u2212"},
};

/// The tags behind which a new word begins, whatever stands in the file.
const std::set<std::string> kBlockEnds{"br", "/td", "/th", "/p", "/dt", "/dd", "/li", "/h1", "/h2", "/h3", "/title"};

std::string decoded(std::string_view text)
{
    std::string out;
    while (!text.empty()) {
        const std::size_t end = text.front() == '&' ? text.find(';') : std::string_view::npos;
        const auto entity = end == std::string_view::npos ? kEntities.end() : kEntities.find(text.substr(1, end - 1));
        if (entity == kEntities.end()) {
            out += text.front();
            text.remove_prefix(1);
        } else {
            out += entity->second;
            text.remove_prefix(end + 1);
        }
    }
    return out;
}

std::string withSingleBlanks(std::string_view text)
{
    std::string out;
    for (const char c : text)
        if (!isSpace(c))
            out += c;
        else if (out.empty() || out.back() != ' ')
            out += ' ';
    return out;
}

HtmlToken tagOf(std::string_view inside)
{
    HtmlToken token;
    const auto name = std::find_if(inside.begin(), inside.end(), isSpace);
    token.tag = std::string(inside.begin(), name);
    inside.remove_prefix(token.tag.size());
    for (std::size_t equals; (equals = inside.find("=\"")) != std::string_view::npos;) {
        const std::size_t end = inside.find('"', equals + 2);
        if (end == std::string_view::npos)
            break;
        token.attributes[collapsed(inside.substr(0, equals))] = decoded(inside.substr(equals + 2, end - equals - 2));
        inside.remove_prefix(end + 1);
    }
    return token;
}

using TokenPlace = std::vector<HtmlToken>::const_iterator;

std::string textBetween(TokenPlace begin, TokenPlace end)
{
    std::string text;
    for (; begin != end; ++begin)
        text += kBlockEnds.count(begin->tag) ? " " : begin->text;
    return collapsed(text);
}

}  // namespace

std::string contentOf(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

std::string collapsed(std::string_view text)
{
    std::string out = withSingleBlanks(text);
    if (!out.empty() && out.front() == ' ')
        out.erase(0, 1);
    if (!out.empty() && out.back() == ' ')
        out.pop_back();
    return out;
}

std::vector<std::string> filesBelow(const std::string &folder)
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            names.push_back(std::filesystem::relative(entry.path(), folder).generic_string());
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<HtmlToken> htmlTokens(std::string_view html)
{
    std::vector<HtmlToken> tokens;
    bool isVerbatim = false;
    while (!html.empty()) {
        const bool isTag = html.front() == '<';
        const std::size_t end = std::min(html.find(isTag ? '>' : '<'), html.size());
        if (isTag) {
            tokens.push_back(tagOf(html.substr(1, end - 1)));
            isVerbatim = tokens.back().tag == "pre" || (isVerbatim && tokens.back().tag != "/pre");
        } else {
            const std::string_view text = html.substr(0, end);
            tokens.push_back({{}, {}, decoded(isVerbatim ? std::string(text) : withSingleBlanks(text))});
        }
        html.remove_prefix(std::min(html.size(), isTag ? end + 1 : end));
    }
    return tokens;
}

HelpTopic::HelpTopic(const std::string &path) : m_tokens(htmlTokens(contentOf(path))) {}

std::string HelpTopic::text() const
{
    return textBetween(m_tokens.begin(), m_tokens.end());
}

std::string HelpTopic::textWithout(std::string_view className) const
{
    std::string text;
    for (auto token = m_tokens.begin(); token != m_tokens.end(); ++token) {
        const auto found = token->attributes.find("class");
        if (found != token->attributes.end() && found->second == className)
            token = std::find_if(token, m_tokens.end(),
                                 [end = "/" + token->tag](const HtmlToken &other) { return other.tag == end; });
        if (token == m_tokens.end())
            break;
        text += kBlockEnds.count(token->tag) ? " " : token->text;
    }
    return collapsed(text);
}

std::string HelpTopic::linkOf(std::string_view text) const
{
    for (auto open = m_tokens.begin(); open != m_tokens.end(); ++open) {
        const auto link = open->attributes.find("href");
        if (open->tag != "a" || link == open->attributes.end())
            continue;
        const auto close = std::find_if(open, m_tokens.end(), [](const HtmlToken &token) { return token.tag == "/a"; });
        if (textBetween(open, close) == text)
            return link->second;
    }
    return {};
}

std::string HelpTopic::sectionAt(std::string_view anchor) const
{
    const auto isHeading = [](const HtmlToken &token) { return token.tag == "h2" || token.tag == "h3"; };
    const auto begin = std::find_if(m_tokens.begin(), m_tokens.end(), [anchor](const HtmlToken &token) {
        const auto name = token.attributes.find("name");
        return token.tag == "a" && name != token.attributes.end() && name->second == anchor;
    });
    return textBetween(begin, std::find_if(begin, m_tokens.end(), isHeading));
}

std::vector<std::vector<std::string>> HelpTopic::fixedPartsOf(std::string_view className) const
{
    std::vector<std::vector<std::string>> elements;
    for (auto open = m_tokens.begin(); open != m_tokens.end(); ++open) {
        const auto found = open->attributes.find("class");
        if (found == open->attributes.end() || found->second != className)
            continue;
        std::vector<std::string> parts{""};
        bool varies = false;
        for (auto token = open + 1; token != m_tokens.end() && token->tag != "/" + open->tag; ++token) {
            if (token->tag == "var")
                parts.emplace_back();
            varies = token->tag == "var" || (varies && token->tag != "/var");
            if (!varies)
                parts.back() += token->tag == "br" ? "\r\n" : token->text;
        }
        elements.push_back(std::move(parts));
    }
    return elements;
}

std::vector<std::string> HelpTopic::textsOf(std::string_view className) const
{
    std::vector<std::string> texts;
    for (const auto &parts : fixedPartsOf(className)) {
        texts.emplace_back();
        for (const std::string &part : parts)
            texts.back() += part;
    }
    return texts;
}

std::vector<std::string> HelpTopic::valuesOf(std::string_view tag, const std::string &attribute) const
{
    std::vector<std::string> values;
    for (const HtmlToken &token : m_tokens)
        if (const auto found = token.attributes.find(attribute); token.tag == tag && found != token.attributes.end())
            values.push_back(found->second);
    return values;
}

std::string HelpTopic::titled(std::string_view tag, std::string_view title) const
{
    for (auto open = m_tokens.begin(); open != m_tokens.end(); ++open)
        if (const auto found = open->attributes.find("title");
            open->tag == tag && found != open->attributes.end() && found->second == title && open + 1 != m_tokens.end())
            return (open + 1)->text;
    return {};
}

}  // namespace penwright::test
