#include "core/SplitCommandText.h"

#include <algorithm>

namespace penwright {
namespace {

OneBased<std::string> linesOf(std::string_view text)
{
    OneBased<std::string> lines;
    const auto keep = [&lines](std::string_view line) {
        if (!line.empty())
            lines.append(std::string(line));
    };
    std::size_t start = 0;
    for (std::size_t feed; (feed = text.find('\n', start)) != std::string_view::npos; start = feed + 1)
        keep(text.substr(start, feed > start ? feed - start - 1 : 0));
    keep(text.substr(start));
    return lines;
}

/// The places of the first `most` commas of a line.
std::vector<std::size_t> commasOf(std::string_view line, std::size_t most)
{
    std::vector<std::size_t> commas;
    for (std::size_t place = line.find(','); place != std::string_view::npos && commas.size() < most;
         place = line.find(',', place + 1))
        commas.push_back(place);
    return commas;
}

}  // namespace

std::string_view FieldTable::operator()(int line, int field) const
{
    const std::string_view text = m_lines(line);
    if (field < 1 || field > m_fieldCount)
        throw subscriptOutOfRange();
    const std::vector<std::size_t> &commas = m_commas(line);
    const auto index = static_cast<std::size_t>(field) - 1;
    if (index > commas.size())
        return {};
    const std::size_t start = index == 0 ? 0 : commas[index - 1] + 1;
    return index == commas.size() ? text.substr(start) : text.substr(start, commas[index] - start);
}

SplitText SplitCommandText(std::string_view text, bool skipTable)
{
    SplitText split;
    split.lines = linesOf(text);
    split.lineCount = split.lines.size();
    if (skipTable || split.lineCount == 0)
        return split;
    const std::string &last = split.lines(split.lineCount);
    split.fieldCount = static_cast<int>(std::count(last.begin(), last.end(), ',')) + 1;
    split.table.m_fieldCount = split.fieldCount;
    split.table.m_lines = split.lines;
    for (const std::string &line : split.lines)
        split.table.m_commas.append(commasOf(line, static_cast<std::size_t>(split.fieldCount) - 1));
    return split;
}

}  // namespace penwright
