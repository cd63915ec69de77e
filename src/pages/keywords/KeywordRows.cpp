#include "pages/keywords/KeywordRows.h"

#include <algorithm>

#include "core/CodePoints.h"
#include "pages/keywords/KeywordTable.h"

namespace penwright {
namespace {

constexpr std::string_view kKeyCaption = "Keyword";
constexpr std::string_view kValueCaption = "Description (254 total chars max per line. or use [MORE]  )";

template <typename Entries>
void offer(const Entries &entries, std::vector<GridChoice> &choices)
{
    for (const KeywordEntry &entry : entries)
        choices.push_back({std::string(entry.keyword), std::string(entry.description)});
}

}  // namespace

int KeywordRow::length() const
{
    return codePointCount(key) + codePointCount(value);
}

void KeywordRows::insert(int row)
{
    append();
    if (row >= 1 && row < rowCount())
        std::rotate(at(row), at(rowCount()), m_rows.end());
}

void KeywordRows::remove(int first, int last)
{
    first = std::max(first, 1);
    last = std::min(last, rowCount());
    if (first > last)
        return;
    std::rotate(at(first), at(last + 1), m_rows.end());
    m_rows.resize(rowCount() - (last - first + 1));
}

bool KeywordRows::moveUp(int first, int last)
{
    if (!exist(first - 1, last) || first > last)
        return false;
    std::rotate(at(first - 1), at(first), at(last + 1));
    return true;
}

bool KeywordRows::moveDown(int first, int last)
{
    if (!exist(first, last + 1) || first > last)
        return false;
    std::rotate(at(first), at(last + 1), at(last + 2));
    return true;
}

std::vector<int> KeywordRows::emptyRows() const
{
    std::vector<int> empty;
    for (int row = 1; row <= rowCount(); ++row)
        if (m_rows(row).isEmpty())
            empty.push_back(row);
    return empty;
}

std::string KeywordRows::columnCaption(int column) const
{
    return std::string(column == kKey ? kKeyCaption : kValueCaption);
}

std::string KeywordRows::read(int row, int column) const
{
    return column == kKey ? m_rows(row).key : m_rows(row).value;
}

std::optional<MessageBox> KeywordRows::write(int row, int column, std::string_view text)
{
    (column == kKey ? m_rows(row).key : m_rows(row).value) = kept(text);
    return std::nullopt;
}

std::vector<GridChoice> KeywordRows::choices(int row, int column) const
{
    std::vector<GridChoice> choices;
    if (column != kKey)
        return choices;
    if (row == 1)
        offer(kVersionLines, choices);
    offer(kStandardKeywords, choices);
    return choices;
}

}  // namespace penwright
