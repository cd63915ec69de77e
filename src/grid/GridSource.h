#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/GridBlock.h"
#include "grid/GridEdit.h"
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

/// The number of the row `offset` rows from the one that a text numbers, or from `fromNowhere` when the text is empty.
/// Error 13 for a text that is no number, 6 where a number is beyond 32 bits.
int rowAtDistance(std::string_view start, int fromNowhere, int offset);

/// What stands behind a grid: the grid holds no data and asks here for every cell. Rows are counted from 1, columns
/// from 0, as the grids' columns are numbered. A source changes nothing itself: it makes edits, which are applied by
/// the one routine of the grid's model.
class GridSource {
public:
    virtual ~GridSource() = default;

    virtual int rowCount() const = 0;
    virtual int columnCount() const = 0;
    virtual std::string columnCaption(int column) const = 0;

    /// What row and column are called where their captions are not seen. The row may lie behind the last one.
    virtual std::string rowName(int row) const { return row > rowCount() ? "New row" : "Row " + std::to_string(row); }
    virtual std::string columnName(int column) const { return columnCaption(column); }

    /// Whether each cell tells a screen reader its row and column too: readers go through a whole row when they come to
    /// it, and do not say which of its values one is at.
    virtual bool tellsPlaces() const { return false; }

    /// The text that a cell shows.
    virtual std::string read(int row, int column) const = 0;

    /// Why a text cannot go into the cell of a row and a column, nothing when it can. The row may lie behind the
    /// last one where rows can be appended.
    virtual std::optional<MessageBox> check(int, int, std::string_view) const { return std::nullopt; }

    /// What is said under the grid of a text that `check` refuses with a message that cannot say it; "" for nothing.
    virtual std::string hintOfRefused(std::string_view) const { return {}; }

    /// What of a text would be kept, for a source that keeps less than all; nothing of it appends no row.
    virtual std::string_view kept(std::string_view text) const { return text; }

    /// The text that Delete puts into the cell of a row and a column.
    virtual std::string emptied(int, int) const { return {}; }

    /// What stands once the checked texts of an edit are written and its rows are there. Changes nothing yet.
    virtual std::unique_ptr<GridContent> contentAfter(const GridEdit &edit) = 0;

    /// What stands in the source now, kept apart from it: the text of that, exact to the last bit of each number, is
    /// made when it is asked for, on any thread.
    virtual std::function<std::string()> held() const
    {
        return [] { return std::string(); };
    }

    /// The change that brings back what such a text says; nothing when it is none that could have been made of this
    /// source. Changes nothing yet.
    virtual std::optional<GridEdit> fromHeld(std::string_view) { return std::nullopt; }

    /// The change that a pasted text is, `block` being what is selected; what goes where is for the source to say.
    /// Messages that name no title of their own have `title`. Changes nothing yet. Here a block of texts goes from the
    /// first cell of `block` on: all of it or, where a text is refused, nothing. Rows are appended where they can be,
    /// up to the last one of which something would be kept.
    virtual GridEdit paste(const GridBlock &block, std::string_view text, const std::string &title);

    /// What the user is to do before there are cells, in a sentence; "" where there always are.
    virtual std::string stepBeforeCells() const { return {}; }

    /// What copying a block puts on the clipboard; nothing when the clipboard stays as it is. Here its texts, a line
    /// for each row that there is, tabs between them; nothing without such a row.
    virtual std::optional<std::string> copy(const GridBlock &block) const;

    /// Whether the grid shows one empty row more, which becomes a row when a text is committed in it.
    virtual bool canAppend() const { return false; }

    /// Whether the cells of a column are shown but never edited.
    virtual bool isReadOnly(int) const { return false; }

    /// The entries of the drop-down list of a row's and a column's cell, whose free text stays possible; none for a
    /// plain text cell.
    virtual std::vector<GridChoice> choices(int, int) const { return {}; }

protected:
    /// What a paste is while there is no cell to paste from on: no change, and a hint that says what is missing.
    GridEdit pasteWithoutCell() const;
};

}  // namespace penwright
