#include "grid/TableLines.h"

#include <algorithm>
#include <array>

#include "core/LineEnds.h"

namespace penwright {
namespace {

/// No cell in quotes is longer: a lone quote then costs no look at the rest of the text.
constexpr std::size_t kLongestQuoted = 2000;

constexpr std::array<std::string_view, 5> kBlanks{" ", "\t", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89"};

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

}  // namespace

std::string_view withoutCellBlanks(std::string_view cell)
{
    const auto shorten = [&cell](std::string_view blank) {
        const std::size_t before = cell.size();
        if (cell.starts_with(blank))
            cell.remove_prefix(blank.size());
        if (cell.ends_with(blank))
            cell.remove_suffix(blank.size());
        return cell.size() < before;
    };
    while (std::any_of(kBlanks.begin(), kBlanks.end(), shorten)) {
    }
    return cell;
}

TableLines::TableLines(std::string_view text, TableSeparator separator) : m_text(text), m_separator(separator) {}

bool TableLines::next(TableLine &line)
{
    line.cells.clear();
    while (line.cells.empty() && m_at < m_text.size()) {
        line.number = m_number;
        if (m_separator == TableSeparator::Blanks)
            skipBlanks();
        while (!isAtLineEnd())
            line.cells.push_back(nextCell());
        passLineEnd();
        while (!line.cells.empty() && line.cells.back().empty())
            line.cells.pop_back();
    }
    return !line.cells.empty();
}

std::string_view TableLines::nextCell()
{
    const std::size_t quoted = quotedLength();
    std::string_view cell;
    if (quoted > 0) {
        cell = m_text.substr(m_at + 1, quoted - 2);
        for (std::size_t end = m_at + quoted; m_at < end;)
            isAtLineEnd() ? passLineEnd() : static_cast<void>(++m_at);
    } else {
        const std::size_t begin = m_at;
        while (!isAtLineEnd() && !isSeparator(m_text[m_at]))
            ++m_at;
        cell = m_text.substr(begin, m_at - begin);
    }
    if (m_separator == TableSeparator::Blanks)
        skipBlanks();
    else if (!isAtLineEnd())
        ++m_at;
    return withoutCellBlanks(cell);
}

/// The length of the cell in quotes that stands here, with them; 0 for any other cell.
std::size_t TableLines::quotedLength() const
{
    const std::string_view here = m_text.substr(m_at, kLongestQuoted);
    if (!here.starts_with('"'))
        return 0;
    std::size_t at = here.find('"', 1);
    while (at != std::string_view::npos && here.substr(at, 2) == "\"\"")
        at = here.find('"', at + 2);
    if (at == std::string_view::npos)
        return 0;
    const std::size_t length = at + 1;
    const bool isWhole = m_at + length == m_text.size() || isSeparator(m_text[m_at + length]) ||
                         lineEndLength(m_text.substr(m_at + length, 2)) > 0;
    return isWhole ? length : 0;
}

bool TableLines::isSeparator(char c) const
{
    switch (m_separator) {
        case TableSeparator::Tab:
            return c == '\t';
        case TableSeparator::Semicolon:
            return c == ';';
        case TableSeparator::Comma:
            return c == ',';
        case TableSeparator::Blanks:
            break;
    }
    return isBlank(c);
}

void TableLines::skipBlanks()
{
    while (m_at < m_text.size() && isBlank(m_text[m_at]))
        ++m_at;
}

bool TableLines::isAtLineEnd() const
{
    return m_at >= m_text.size() || m_text[m_at] == '\n' || m_text[m_at] == '\r';
}

void TableLines::passLineEnd()
{
    if (m_at >= m_text.size())
        return;
    m_at += lineEndLength(m_text.substr(m_at, 2));
    ++m_number;
}

}  // namespace penwright
