#include "disorder/Script.h"

#include <algorithm>
#include <cstddef>
#include <sstream>

namespace penwright::test {

std::vector<Script> scriptsIn(const std::string &text)
{
    std::vector<Script> scripts;
    std::istringstream lines(text);
    bool isWithin = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('#'))
            continue;
        if (!line.empty() && !isWithin)
            scripts.emplace_back();
        isWithin = !line.empty();
        if (isWithin)
            scripts.back().push_back(line);
    }
    return scripts;
}

std::string textOf(const Script &script)
{
    std::string text;
    for (const std::string &line : script)
        text += line + "\n";
    return text;
}

std::string escaped(std::string_view text)
{
    std::string line;
    for (const char c : text) {
        if (c == '\t')
            line += "\\t";
        else if (c == '\n')
            line += "\\n";
        else if (c == '\\')
            line += "\\\\";
        else
            line += c;
    }
    return line;
}

std::string unescaped(std::string_view line)
{
    std::string text;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] != '\\' || at + 1 == line.size()) {
            text += line[at];
            continue;
        }
        const char sign = line[++at];
        text += sign == 't' ? '\t' : sign == 'n' ? '\n' : sign;
    }
    return text;
}

namespace {

Script without(const Script &script, std::size_t from, std::size_t count)
{
    Script rest(script.begin(), script.begin() + static_cast<std::ptrdiff_t>(from));
    const std::size_t behind = std::min(script.size(), from + count);
    rest.insert(rest.end(), script.begin() + static_cast<std::ptrdiff_t>(behind), script.end());
    return rest;
}

}  // namespace

Script shrunk(Script script, const std::function<bool(const Script &)> &fails)
{
    std::size_t part = std::max<std::size_t>(1, script.size() / 2);
    for (;;) {
        bool isShorter = false;
        for (std::size_t from = 0; from < script.size();) {
            const Script rest = without(script, from, part);
            if (!rest.empty() && fails(rest)) {
                script = rest;
                isShorter = true;
            } else {
                from += part;
            }
        }
        if (part == 1 && !isShorter)
            return script;
        part = std::max<std::size_t>(1, part / 2);
    }
}

}  // namespace penwright::test
