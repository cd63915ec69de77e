#include "SourceTexts.h"

#include <cctype>
#include <filesystem>

#include "HelpTopic.h"

namespace penwright::test {
namespace {

class LiteralScan {
public:
    explicit LiteralScan(std::string_view code) : m_rest(code) {}

    std::vector<std::string> run()
    {
        while (!m_rest.empty())
            step();
        return m_literals;
    }

private:
    void step()
    {
        if (m_rest.starts_with("//") || m_rest.front() == '#')
            skipTo("\n");
        else if (m_rest.starts_with("/*"))
            skipTo("*/");
        else if (m_rest.front() == '"')
            takeLiteral();
        else if (m_rest.front() == '\'' && !m_isInNumber)
            skipCharacter();
        else
            skipCode();
    }

    void skipTo(std::string_view mark)
    {
        const std::size_t at = m_rest.find(mark);
        m_rest.remove_prefix(at == std::string_view::npos ? m_rest.size() : at + mark.size());
    }

    void skipCode()
    {
        const char c = m_rest.front();
        m_isInNumber = std::isdigit(static_cast<unsigned char>(c)) || (m_isInNumber && c == '\'');
        if (!std::isspace(static_cast<unsigned char>(c)))
            m_joins = false;
        m_rest.remove_prefix(1);
    }

    void skipCharacter()
    {
        m_rest.remove_prefix(1);
        while (!m_rest.empty() && m_rest.front() != '\'')
            takeCharacter();
        m_rest.remove_prefix(m_rest.empty() ? 0 : 1);
        m_joins = false;
    }

    void takeLiteral()
    {
        if (!m_joins)
            m_literals.emplace_back();
        m_rest.remove_prefix(1);
        while (!m_rest.empty() && m_rest.front() != '"')
            m_literals.back() += takeCharacter();
        m_rest.remove_prefix(m_rest.empty() ? 0 : 1);
        m_joins = true;
    }

    char takeCharacter()
    {
        const bool isEscaped = m_rest.front() == '\\' && m_rest.size() > 1;
        const char c = m_rest[isEscaped ? 1 : 0];
        m_rest.remove_prefix(isEscaped ? 2 : 1);
        if (!isEscaped)
            return c;
        return c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c;
    }

    std::string_view m_rest;
    std::vector<std::string> m_literals;
    bool m_joins = false;       ///< nothing but white space since the last literal
    bool m_isInNumber = false;  ///< behind a digit, where ' separates digits
};

void addLiteralsOf(const std::filesystem::path &path, std::set<std::string> &literals)
{
    const std::vector<std::string> found = literalsOf(contentOf(path.string()));
    literals.insert(found.begin(), found.end());
}

bool isCode(const std::filesystem::path &path)
{
    return path.extension() == ".cpp" || path.extension() == ".h";
}

}  // namespace

std::vector<std::string> literalsOf(std::string_view code)
{
    return LiteralScan(code).run();
}

std::vector<std::string> captionsOf(const std::string &formPath)
{
    std::vector<std::string> captions;
    std::string property;
    bool isString = false;
    for (const HtmlToken &token : htmlTokens(contentOf(formPath))) {
        if (token.tag == "property")
            property = token.attributes.at("name");
        const bool isSeen = property == "text" || property == "title" || property == "placeholderText";
        if (isString && token.tag.empty() && isSeen && !collapsed(token.text).empty())
            captions.push_back(collapsed(token.text));
        isString = token.tag == "string";
    }
    return captions;
}

std::set<std::string> literalsBelow(const std::vector<std::string> &places)
{
    std::set<std::string> literals;
    for (const std::string &place : places) {
        const std::filesystem::path path = std::filesystem::path(SOURCE_FOLDER) / place;
        if (std::filesystem::is_regular_file(path))
            addLiteralsOf(path, literals);
        else
            for (const auto &entry : std::filesystem::recursive_directory_iterator(path))
                if (isCode(entry.path()))
                    addLiteralsOf(entry.path(), literals);
    }
    return literals;
}

}  // namespace penwright::test
