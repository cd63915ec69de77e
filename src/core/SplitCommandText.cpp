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

}  // namespace

FieldTable::FieldTable(const OneBased<std::string> &lines)
{
    if (lines.empty())
        return;
    const std::string &last = lines(lines.size());
    const auto cuts = std::count(last.begin(), last.end(), ',');
    m_fieldCount = static_cast<int>(cuts) + 1;
    for (const std::string &line : lines) {
        m_lines.append({m_text.size(), m_commas.size()});
        auto left = cuts;
        for (std::size_t place = line.find(','); place != std::string::npos && left > 0; --left) {
            m_commas.push_back(m_text.size() + place);
            place = line.find(',', place + 1);
        }
        m_text += line;
    }
}

std::string_view FieldTable::operator()(int line, int field) const
{
    const Line here = m_lines(line);
    if (field < 1 || field > m_fieldCount)
        throw subscriptOutOfRange();
    const Line next = line < lines() ? m_lines(line + 1) : Line{m_text.size(), m_commas.size()};
    const std::size_t before = static_cast<std::size_t>(field) - 1;  // commas of this line before the field
    const std::size_t commas = next.commas - here.commas;
    if (before > commas)
        return {};
    const std::size_t start = before == 0 ? here.start : m_commas[here.commas + before - 1] + 1;
    const std::size_t end = before == commas ? next.start : m_commas[here.commas + before];
    return std::string_view(m_text).substr(start, end - start);
}

SplitText SplitCommandText(std::string_view text, bool skipTable)
{
    SplitText split;
    split.lines = linesOf(text);
    split.lineCount = split.lines.size();
    if (skipTable)
        return split;
    split.table = FieldTable(split.lines);
    split.fieldCount = split.table.fields();
    return split;
}

}  // namespace penwright
