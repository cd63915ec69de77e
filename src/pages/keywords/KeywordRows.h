#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Blanks.h"
#include "core/OneBased.h"
#include "grid/GridValues.h"

namespace penwright {

/// One keyword line: the keyword (the version line in row 1) and its text.
struct KeywordRow {
    std::string key;
    std::string value;

    bool isEmpty() const { return key.empty() && value.empty(); }

    /// The characters that count against the limit of a line: key and value, without the blank between them.
    int length() const;

    bool operator==(const KeywordRow &) const = default;
};

/// What the file is about, by its lines: the catalog number, else the maker, else "". Blanks around it are left out.
std::string subjectOf(const OneBased<KeywordRow> &rows);

/// Their text: a line for each, key and value.
struct HeldKeywords {
    static std::string textOf(const OneBased<KeywordRow> &rows);
    static std::optional<OneBased<KeywordRow>> valuesOf(std::string_view text);
    static std::size_t bytesOf(const OneBased<KeywordRow> &rows);
};

/// The keyword lines of the new file as the grid of the keyword page shows them. No text is refused.
class KeywordRows : public GridValues<OneBased<KeywordRow>, HeldKeywords> {
public:
    static constexpr int kKey = 0;
    static constexpr int kValue = 1;

    const OneBased<KeywordRow> &rows() const { return m_values; }

    /// Other rows in the place of all, each text in one line: the store may hold others.
    GridEdit loadRows(OneBased<KeywordRow> rows);

    /// An empty row more before a row; behind the last one when there is no such row.
    GridEdit insertRow(int row);

    /// The rows from `first` to `last` removed, as far as they exist; nothing when none does.
    std::optional<GridEdit> deleteRows(int first, int last);

    /// The rows from `first` to `last` moved over the one before or behind them. Nothing when a row of them does not
    /// exist, or there is none to move over.
    std::optional<GridEdit> moveUp(int first, int last);
    std::optional<GridEdit> moveDown(int first, int last);

    /// The rows with neither key nor value: lines of the file with nothing in them.
    std::vector<int> emptyRows() const;

    int rowCount() const override { return rows().size(); }
    int columnCount() const override { return 2; }
    std::string columnCaption(int column) const override;

    /// Without what the caption says of lengths.
    std::string columnName(int column) const override { return column == kKey ? "Keyword" : "Description"; }

    std::string read(int row, int column) const override;

    /// The text without its leading and trailing blanks.
    std::string_view kept(std::string_view text) const override { return withoutOuterBlanks(text); }
    bool canAppend() const override { return true; }

    /// In the keyword column the standard keywords; in row 1 the version lines come first.
    std::vector<GridChoice> choices(int row, int column) const override;

protected:
    void write(OneBased<KeywordRow> &rows, int row, int column, std::string_view text) const override;
    void append(OneBased<KeywordRow> &rows) const override { rows.append({}); }

private:
    bool exist(int first, int last) const { return first >= 1 && first <= last && last <= rowCount(); }
};

}  // namespace penwright
