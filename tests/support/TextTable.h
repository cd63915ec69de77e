#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/GridValues.h"

namespace penwright::test {

/// Its text: the cells between tabs, a line for each row.
struct HeldTexts {
    using Cells = std::vector<std::vector<std::string>>;

    static std::string textOf(const Cells &cells)
    {
        std::string text;
        for (const auto &row : cells)
            for (std::size_t column = 0; column < row.size(); ++column)
                text += row[column] + (column + 1 < row.size() ? '\t' : '\n');
        return text;
    }
    static std::optional<Cells> valuesOf(std::string_view text)
    {
        return text.empty() || text.back() == '\n' ? std::optional(splitGridBlock(text)) : std::nullopt;
    }
    static std::size_t bytesOf(const Cells &cells) { return textOf(cells).size(); }
};

/// A table of texts. It refuses each text with an "x", may take rows, may have a column of row names that nobody edits,
/// and may offer choices in its first column.
class TextTable : public GridValues<std::vector<std::vector<std::string>>, HeldTexts> {
public:
    using Cells = std::vector<std::vector<std::string>>;

    TextTable(int rows, int columns) { cells.assign(rows, std::vector<std::string>(columns)); }

    GridEdit replacedBy(Cells other) { return replacement("New Cells", std::move(other)); }

    int rowCount() const override { return static_cast<int>(cells.size()); }
    int columnCount() const override { return cells.empty() ? emptyColumns : static_cast<int>(cells[0].size()); }
    std::string columnCaption(int column) const override { return std::string(1, static_cast<char>('A' + column)); }
    std::string read(int row, int column) const override { return cells.at(row - 1).at(column); }
    std::optional<MessageBox> check(int row, int column, std::string_view text) const override
    {
        if (text.find('x') == std::string_view::npos)
            return std::nullopt;
        return MessageBox{.text = "no " + std::string(text) + " in " + columnCaption(column) + std::to_string(row)};
    }
    bool canAppend() const override { return growing; }
    bool isReadOnly(int column) const override { return column == readOnlyColumn; }
    std::vector<GridChoice> choices(int, int column) const override
    {
        return column == choiceColumn ? entries : std::vector<GridChoice>();
    }

    /// The rows as text: "a|b / c|d".
    std::string all() const
    {
        std::string text;
        for (const auto &row : cells) {
            text += text.empty() ? "" : " / ";
            for (std::size_t column = 0; column < row.size(); ++column)
                text += (column ? "|" : "") + row[column];
        }
        return text;
    }

    Cells &cells = m_values;
    std::vector<GridChoice> entries{{"[TEST]", "Test report number"}, {"[LAMP]", "Lamp description"}, {"[MORE]", ""}};
    int emptyColumns = 2;
    int readOnlyColumn = -1;
    int choiceColumn = -1;
    bool growing = false;

protected:
    void write(Cells &values, int row, int column, std::string_view text) const override
    {
        values.at(row - 1).at(column) = text;
    }
    void append(Cells &values) const override { values.emplace_back(columnCount()); }
};

}  // namespace penwright::test
