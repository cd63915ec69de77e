#include "pages/keywords/KeywordRows.h"

#include <algorithm>
#include <utility>

#include "core/CodePoints.h"
#include "core/LineEnds.h"
#include "grid/HeldCells.h"
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

auto at(OneBased<KeywordRow> &rows, int row)
{
    return rows.begin() + (row - 1);
}

}  // namespace

int KeywordRow::length() const
{
    return codePointCount(key) + codePointCount(value);
}

std::string subjectOf(const OneBased<KeywordRow> &rows)
{
    for (const char *key : {"[LUMCAT]", "[MANUFAC]"})
        for (const KeywordRow &row : rows)
            if (const std::string_view value = withoutOuterBlanks(row.value); row.key == key && !value.empty())
                return std::string(value);
    return "";
}

std::string HeldKeywords::textOf(const OneBased<KeywordRow> &rows)
{
    std::string text;
    for (const KeywordRow &row : rows) {
        appendHeldText(text, row.key);
        text += '\t';
        appendHeldText(text, row.value);
        text += '\n';
    }
    return text;
}

std::optional<OneBased<KeywordRow>> HeldKeywords::valuesOf(std::string_view text)
{
    const auto line = [](std::optional<std::string_view> cell) {
        auto plain = cell ? heldText(*cell) : std::nullopt;
        return plain && *plain == inOneLine(*plain) ? plain : std::nullopt;
    };
    OneBased<KeywordRow> rows;
    for (HeldCells cells(text); !cells.isAtEnd();) {
        auto key = line(cells.next('\t'));
        auto value = line(cells.next('\n'));
        if (!key || !value)
            return std::nullopt;
        rows.append({*std::move(key), *std::move(value)});
    }
    return rows;
}

std::size_t HeldKeywords::bytesOf(const OneBased<KeywordRow> &rows)
{
    std::size_t bytes = 0;
    for (const KeywordRow &row : rows)
        bytes += sizeof(KeywordRow) + bytesOfText(row.key) + bytesOfText(row.value);
    return bytes;
}

GridEdit KeywordRows::loadRows(OneBased<KeywordRow> rows)
{
    for (KeywordRow &row : rows) {
        row.key = inOneLine(row.key);
        row.value = inOneLine(row.value);
    }
    return replacement("Load Defaults", std::move(rows));
}

GridEdit KeywordRows::insertRow(int row)
{
    OneBased<KeywordRow> after = rows();
    after.append({});
    if (row >= 1 && row < after.size())
        std::rotate(at(after, row), at(after, after.size()), after.end());
    return replacement("Insert Row", std::move(after));
}

std::optional<GridEdit> KeywordRows::deleteRows(int first, int last)
{
    first = std::max(first, 1);
    last = std::min(last, rowCount());
    if (first > last)
        return std::nullopt;
    OneBased<KeywordRow> after = rows();
    std::rotate(at(after, first), at(after, last + 1), after.end());
    after.resize(rowCount() - (last - first + 1));
    return replacement("Delete Row", std::move(after));
}

std::optional<GridEdit> KeywordRows::moveUp(int first, int last)
{
    if (!exist(first - 1, last) || first > last)
        return std::nullopt;
    OneBased<KeywordRow> after = rows();
    std::rotate(at(after, first - 1), at(after, first), at(after, last + 1));
    return replacement("Move Row Up", std::move(after));
}

std::optional<GridEdit> KeywordRows::moveDown(int first, int last)
{
    if (!exist(first, last + 1) || first > last)
        return std::nullopt;
    OneBased<KeywordRow> after = rows();
    std::rotate(at(after, first), at(after, last + 1), at(after, last + 2));
    return replacement("Move Row Down", std::move(after));
}

std::vector<int> KeywordRows::emptyRows() const
{
    std::vector<int> empty;
    for (int row = 1; row <= rowCount(); ++row)
        if (rows()(row).isEmpty())
            empty.push_back(row);
    return empty;
}

std::string KeywordRows::columnCaption(int column) const
{
    return std::string(column == kKey ? kKeyCaption : kValueCaption);
}

std::string KeywordRows::read(int row, int column) const
{
    return column == kKey ? rows()(row).key : rows()(row).value;
}

void KeywordRows::write(OneBased<KeywordRow> &rows, int row, int column, std::string_view text) const
{
    (column == kKey ? rows(row).key : rows(row).value) = kept(text);
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
