#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Blanks.h"
#include "core/OneBased.h"
#include "grid/GridSource.h"

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

/// The keyword lines of the new file as the grid of the keyword page shows them. Any text is taken.
class KeywordRows : public GridSource {
public:
    static constexpr int kKey = 0;
    static constexpr int kValue = 1;

    const OneBased<KeywordRow> &rows() const { return m_rows; }
    void setRows(OneBased<KeywordRow> rows) { m_rows = std::move(rows); }

    /// Inserts an empty row before a row; behind the last one when there is no such row.
    void insert(int row);

    /// Removes the rows from `first` to `last`, as far as they exist.
    void remove(int first, int last);

    /// Moves the rows from `first` to `last` over the one before or behind them. False when a row of them does not
    /// exist, or there is none to move over.
    bool moveUp(int first, int last);
    bool moveDown(int first, int last);

    /// The rows with neither key nor value: lines of the file with nothing in them.
    std::vector<int> emptyRows() const;

    int rowCount() const override { return m_rows.size(); }
    int columnCount() const override { return 2; }
    std::string columnCaption(int column) const override;

    /// Without what the caption says of lengths.
    std::string columnName(int column) const override { return column == kKey ? "Keyword" : "Description"; }

    std::string read(int row, int column) const override;

    /// The text without its leading and trailing blanks.
    std::string_view kept(std::string_view text) const override { return withoutOuterBlanks(text); }
    std::optional<MessageBox> write(int row, int column, std::string_view text) override;

    bool canAppend() const override { return true; }
    void append() override { m_rows.append({}); }

    /// In the keyword column the standard keywords; in row 1 the version lines come first.
    std::vector<GridChoice> choices(int row, int column) const override;

private:
    bool exist(int first, int last) const { return first >= 1 && first <= last && last <= rowCount(); }
    auto at(int row) { return m_rows.begin() + (row - 1); }

    OneBased<KeywordRow> m_rows;
};

}  // namespace penwright
