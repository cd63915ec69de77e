#include "pages/keywords/KeywordHints.h"

#include <algorithm>

#include "pages/keywords/KeywordLines.h"
#include "pages/keywords/KeywordTable.h"

namespace penwright {
namespace {

std::string versionHint(const KeywordRow &line)
{
    if (!line.value.empty())
        return "The version line takes no description: Next refuses it.";
    for (const KeywordEntry &entry : kVersionLines)
        if (entry.keyword == line.key)
            return std::string(entry.description);
    return "Version line";
}

/// "4", "4 and 6", "4, 6 and 9", "4, 6, 9 and 12 more".
std::string listed(const std::vector<int> &rows)
{
    constexpr std::size_t kMostNamed = 3;
    const std::size_t named = std::min(rows.size(), kMostNamed);
    std::string text = std::to_string(rows.front());
    for (std::size_t i = 1; i < named; ++i)
        text += (i + 1 == rows.size() ? " and " : ", ") + std::to_string(rows[i]);
    if (rows.size() > named)
        text += " and " + std::to_string(rows.size() - named) + " more";
    return text;
}

}  // namespace

std::string keywordHint(int row, const KeywordRow &line, bool isNew)
{
    if (isNew && line.isEmpty())
        return "Type here to add line " + std::to_string(row) + ".";
    if (row == 1 && isVersionLine(line.key))
        return versionHint(line);
    if (const int position = gfnIsValidKeyword(line.key))
        return std::string(kStandardKeywords[static_cast<std::size_t>(position - 1)].description);
    if (isUserKeyword(line.key))
        return "User keyword";
    if (!line.key.empty())
        return "Not a standard keyword. A user keyword begins with \"[_\".";
    return line.value.empty() ? "" : "A description needs a keyword, like [MORE] or [OTHER].";
}

std::string lengthHint(int characters)
{
    const std::string text = std::to_string(characters) + " of " + std::to_string(kMostLineCharacters) + " characters";
    if (characters <= kMostLineCharacters)
        return text;
    return text + ", " + std::to_string(characters - kMostLineCharacters) + " too many";
}

std::string emptyRowsHint(const std::vector<int> &rows)
{
    if (rows.empty())
        return {};
    return rows.size() == 1 ? "Row " + listed(rows) + " is empty: it is written to the file as an empty line."
                            : "Rows " + listed(rows) + " are empty: each is written to the file as an empty line.";
}

std::string spokenHint(const std::string &keyword, int characters, const std::string &emptyRows)
{
    std::string text;
    const auto add = [&text](const std::string &hint) {
        if (!hint.empty())
            text += (text.empty() ? "" : text.back() == '.' ? " " : ". ") + hint;
    };
    add(keyword);
    if (characters > kMostLineCharacters)
        add("The line is too long: more than " + std::to_string(kMostLineCharacters) + " characters.");
    add(emptyRows);
    return text;
}

}  // namespace penwright
