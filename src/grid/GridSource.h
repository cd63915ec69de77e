#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Dialogs.h"

namespace penwright {

/// One entry of the drop-down list of a cell.
struct GridChoice {
    std::string text;
    std::string hint;  ///< shown beside the entry, "" for none
};

/// The answer to a grid that asks for the row at a distance from another.
struct RelativeRow {
    std::string position;  ///< the row's number, "" when there is no such row
    int approximate = 0;   ///< the row's number, whether it exists or not

    bool operator==(const RelativeRow &) const = default;
};

/// What stands behind a grid: the grid holds no data and asks here for every cell. Rows are counted from 1, columns
/// from 0, as the grids' columns are numbered. Nothing here raises an error: what cannot be taken is refused.
class GridSource {
public:
    GridSource() = default;
    GridSource(const GridSource &) {}
    GridSource &operator=(const GridSource &) { return *this; }
    virtual ~GridSource() = default;

    /// Expires with the source: a page's grid lives on for a moment when the page's own members have ended.
    std::weak_ptr<const void> life() const { return m_life; }

    virtual int rowCount() const = 0;
    virtual int columnCount() const = 0;
    virtual std::string columnCaption(int column) const = 0;

    /// What row and column are called where their captions are not seen. The row may lie behind the last one.
    virtual std::string rowName(int row) const { return row > rowCount() ? "New row" : "Row " + std::to_string(row); }
    virtual std::string columnName(int column) const { return columnCaption(column); }

    /// The text that a cell shows.
    virtual std::string read(int row, int column) const = 0;

    /// Why a text cannot be taken for a cell, nothing when it can. The row may lie behind the last one where rows can
    /// be appended. A source that refuses any text says so here already: a block is pasted whole or not at all.
    virtual std::optional<MessageBox> check(int row, int column, std::string_view text) const
    {
        return static_cast<void>(row), static_cast<void>(column), static_cast<void>(text), std::nullopt;
    }

    /// What of a text would be kept, for a source that keeps less than all; nothing of it appends no row.
    virtual std::string_view kept(std::string_view text) const { return text; }

    /// Takes a text typed or pasted for a cell. A refused one leaves everything as it is; the message tells why.
    virtual std::optional<MessageBox> write(int row, int column, std::string_view text) = 0;

    /// Empties a cell, as Delete does.
    virtual std::optional<MessageBox> clear(int row, int column) { return write(row, column, {}); }

    /// Whether the grid shows one empty row more, which becomes a row when a text is committed in it.
    virtual bool canAppend() const { return false; }

    /// Adds an empty row behind the last one and keeps those before it.
    virtual void append() {}

    /// Whether the cells of a column are shown but never edited.
    virtual bool isReadOnly(int column) const { return static_cast<void>(column), false; }

    /// The entries of the drop-down list of a cell, whose free text stays possible; none for a plain text cell.
    virtual std::vector<GridChoice> choices(int row, int column) const
    {
        return static_cast<void>(row), static_cast<void>(column), std::vector<GridChoice>();
    }

private:
    std::shared_ptr<const void> m_life = std::make_shared<char>();  ///< of this one alone, never copied
};

}  // namespace penwright
