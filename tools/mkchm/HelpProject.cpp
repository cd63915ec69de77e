#include "mkchm/HelpProject.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace penwright::mkchm {
namespace {

constexpr std::size_t kLongestOption = 1000;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const auto first = text.find_first_not_of(kBlanks);
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string folded(std::string_view text)
{
    std::string result(text);
    for (char &character : result)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return result;
}

/// A decimal or, after "0x", hexadecimal number of 32 bits.
std::optional<std::uint32_t> numberIn(std::string_view text)
{
    const bool isHex = text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X";
    if (isHex)
        text.remove_prefix(2);
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, isHex ? 16 : 10);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

std::string quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

/// A symbolic name with the line that it stands on.
struct Symbol {
    std::string value;
    int line = 0;
};

/// Takes a project line by line and keeps the first thing that is wrong with it.
class Reader {
public:
    HelpProject read(std::string_view text)
    {
        if (text.substr(0, 3) == "\xEF\xBB\xBF")
            text.remove_prefix(3);
        while (!text.empty()) {
            ++m_line;
            const auto end = text.find('\n');
            takeLine(trimmed(text.substr(0, end)));
            text.remove_prefix(end == text.npos ? text.size() : end + 1);
        }
        checkOptions();
        joinAliasesAndNumbers();
        return m_project;
    }

private:
    [[noreturn]] static void fail(int line, const std::string &cause)
    {
        throw ProjectError(std::to_string(line) + ": " + cause);
    }
    [[noreturn]] void fail(const std::string &cause) const { fail(m_line, cause); }

    void takeLine(std::string_view line)
    {
        if (line.empty() || line.front() == ';')
            return;
        if (line.front() == '[')
            enterSection(line);
        else if (m_section == "[options]")
            takeOption(line);
        else if (m_section == "[files]")
            takeFile(line);
        else if (m_section == "[alias]")
            takeAlias(line);
        else if (m_section == "[map]")
            takeNumber(line);
        else
            fail("no section holds this line: " + quoted(line));
    }

    void enterSection(std::string_view line)
    {
        m_section = folded(line);
        for (const char *known : {"[options]", "[files]", "[alias]", "[map]"})
            if (m_section == known)
                return;
        fail("unknown section " + quoted(line));
    }

    /// Cuts a line at its "=".
    std::pair<std::string, std::string> assignment(std::string_view line) const
    {
        const auto sign = line.find('=');
        const std::string_view name = trimmed(line.substr(0, sign));
        const std::string_view value = sign == line.npos ? "" : trimmed(line.substr(sign + 1));
        if (name.empty() || value.empty())
            fail("no NAME=VALUE: " + quoted(line));
        return {std::string(name), std::string(value)};
    }

    void takeOption(std::string_view line)
    {
        const auto [name, value] = assignment(line);
        const std::string option = folded(name);
        std::string *place = option == "title"           ? &m_project.title
                             : option == "default topic" ? &m_project.defaultTopic
                             : option == "contents file" ? &m_project.contentsFile
                                                         : nullptr;
        if (!place)
            fail("unknown option " + quoted(name));
        if (value.size() > kLongestOption)
            fail("the option " + quoted(name) + " is too long");
        if (!place->empty())
            fail("the option " + quoted(name) + " stands twice");
        *place = option == "title" ? value : fileName(value);
    }

    std::string fileName(std::string_view written) const
    {
        std::string name(written);
        std::replace(name.begin(), name.end(), '\\', '/');
        if (name.find_first_of("#$:") == 0)
            fail("a name that only the system's own objects may have: " + quoted(written));
        const std::string inFolders = "/" + name + "/";
        for (const char *part : {"//", "/./", "/../"})
            if (inFolders.find(part) != std::string::npos)
                fail("no plain name of a file in the project's folder: " + quoted(written));
        return name;
    }

    void takeFile(std::string_view line)
    {
        const std::string name = fileName(line);
        if (listed(name))
            fail("the file " + quoted(name) + " stands twice");
        m_project.files.push_back(name);
    }

    const std::string *listed(const std::string &name) const
    {
        const auto found = std::find_if(m_project.files.begin(), m_project.files.end(),
                                        [&](const std::string &file) { return folded(file) == folded(name); });
        return found == m_project.files.end() ? nullptr : &*found;
    }

    void takeAlias(std::string_view line)
    {
        const auto [name, topic] = assignment(line);
        if (!m_aliases.insert({name, {fileName(topic), m_line}}).second)
            fail("the alias " + quoted(name) + " stands twice");
    }

    void takeNumber(std::string_view line)
    {
        constexpr std::string_view kDefine = "#define";
        const std::string_view rest = trimmed(line.substr(std::min(kDefine.size(), line.size())));
        const auto blank = rest.find_first_of(" \t");
        if (line.substr(0, kDefine.size()) != kDefine || blank == rest.npos)
            fail("no #define NAME NUMBER: " + quoted(line));
        const std::string name(rest.substr(0, blank));
        const auto number = numberIn(trimmed(rest.substr(blank)));
        if (!number)
            fail("no number: " + quoted(trimmed(rest.substr(blank))));
        if (!m_numbers.insert({name, {std::to_string(*number), m_line}}).second)
            fail("the name " + quoted(name) + " has two numbers");
        if (!m_namesOfIds.insert({*number, name}).second)
            fail("the number " + std::to_string(*number) + " is given to " + quoted(m_namesOfIds.at(*number)) +
                 " and to " + quoted(name));
    }

    void checkOptions()
    {
        const std::pair<const char *, const std::string &> needed[]{{"Title", m_project.title},
                                                                    {"Default topic", m_project.defaultTopic},
                                                                    {"Contents file", m_project.contentsFile}};
        for (const auto &[name, value] : needed)
            if (value.empty())
                fail("[OPTIONS] has no " + quoted(name));
        if (!listed(m_project.defaultTopic))
            fail("the default topic " + quoted(m_project.defaultTopic) + " is not in [FILES]");
        if (!listed(m_project.contentsFile))
            m_project.files.push_back(m_project.contentsFile);
    }

    void joinAliasesAndNumbers()
    {
        for (const auto &[name, alias] : m_aliases) {
            if (!m_numbers.count(name))
                fail(alias.line, "the alias " + quoted(name) + " has no number in [MAP]");
            if (!listed(alias.value))
                fail(alias.line,
                     "the alias " + quoted(name) + " leads to " + quoted(alias.value) + ", which is not in [FILES]");
        }
        for (const auto &[name, number] : m_numbers)
            if (!m_aliases.count(name))
                fail(number.line, "the number " + number.value + " of " + quoted(name) + " has no alias in [ALIAS]");
        for (const auto &[id, name] : m_namesOfIds)
            m_project.topics[id] = *listed(m_aliases.at(name).value);
    }

    HelpProject m_project;
    std::string m_section;
    int m_line = 0;
    std::map<std::string, Symbol> m_aliases;
    std::map<std::string, Symbol> m_numbers;
    std::map<std::uint32_t, std::string> m_namesOfIds;
};

}  // namespace

HelpProject readProject(std::string_view text)
{
    return Reader().read(text);
}

}  // namespace penwright::mkchm
