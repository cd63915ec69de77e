#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/CandelaCell.h"
#include "core/ToolState.h"
#include "grid/GridSource.h"
#include "pages/candela/CandelaNumbers.h"
#include "pages/candela/CandelaState.h"
#include "pages/candela/LostThousands.h"

namespace penwright {

class PastedValues;

/// The candela table as the grid of its page shows it: column 0 the vertical angles (degrees), then one column for each
/// horizontal angle. `CandelaCells` is what the page checks and stores.
class CandelaTable : public GridSource {
public:
    static constexpr int kLabelColumn = 0;

    /// `title` is what the messages about pasted texts are titled with. `state` outlives the table.
    CandelaTable(ToolState &state, std::string title);

    /// What is cleared whenever the wizard starts.
    CandelaState &flags() { return m_numbers.flags(); }

    /// The table built anew from record slot 1, cells and working record. On the first build since the wizard started
    /// all cells are blank; on every later one they are the working record's doubles, so that a cell that was left
    /// blank or is new becomes 0. Error 9 when the record's angles are fewer than it counts.
    GridEdit newTable();

    /// The values of a table of these angles, with a new table for them unless there is one: as one change, which gives
    /// record slot 1 the angles.
    GridEdit pastedTable(const PhotometricRecord &angles, OneBasedTable<CandelaCell> cells);

    /// Whether there is a table and record slot 1 has another type, other counts or other angles than it was built for.
    bool isOutdated() const;

    /// The cells by (horizontal index, vertical index).
    const OneBasedTable<CandelaCell> &CandelaCells() const { return m_numbers.cells(); }

    /// All values, tab-separated, one line ended by "\r\n" for each vertical angle; no angles.
    std::string CopyCandelaTable() const;

    /// Fills the whole table, row by row, from values separated by tabs and line ends of any kind. Another number of
    /// values than the table has changes nothing; both numbers in that message are one less than the counts, on
    /// purpose. A text that is no number, or is beyond a single, ends the paste: what stands before it is pasted.
    /// The limits of typed values do not hold here; negative ones are told when the page is left. Values in lines of
    /// another length than the table's, thousands that were lost, the cell that the new ones end before, and what a
    /// whole table needs, are hinted at.
    GridEdit PasteCandelaTable(std::string_view text);

    /// The angles of a data cell, in degrees, and where the table has them.
    struct CellAngles {
        float horizontal = 0;
        float vertical = 0;
        int column = 0;
        int row = 0;
    };

    /// Whether there is a cell without a value.
    bool hasBlanks() const;

    /// Whether there is a table with a value other than 0.
    bool hasValues() const;

    /// Nothing for the label column and outside the table.
    std::optional<CellAngles> anglesOf(int row, int column) const;

    int rowCount() const override;
    int columnCount() const override;
    std::string columnCaption(int column) const override;

    /// The angles, in degrees: "V 30" and "H 90".
    std::string rowName(int row) const override;
    std::string columnName(int column) const override;
    bool tellsPlaces() const override { return true; }

    std::string read(int row, int column) const override;
    std::optional<MessageBox> check(int row, int column, std::string_view text) const override;
    std::string hintOfRefused(std::string_view text) const override;
    std::unique_ptr<GridContent> contentAfter(const GridEdit &edit) override;

    /// The rows as lines: blanks are empty, singles and doubles told apart. Nothing before there is a table.
    std::function<std::string()> held() const override;

    /// Of a table of another size what fits; the other cells stay as they are, and all of them for "". Nothing for a
    /// text that is no table, and for any but "" before there is one.
    std::optional<GridEdit> fromHeld(std::string_view text) override;

    /// Nothing, which is refused, but for a blank cell, which stays as it is.
    std::string emptied(int row, int column) const override;

    /// The whole table, whatever is selected.
    GridEdit paste(const GridBlock &block, std::string_view text, const std::string &title) override;
    std::optional<std::string> copy(const GridBlock &block) const override;

    bool isReadOnly(int column) const override { return column == kLabelColumn; }

private:
    const PhotometricRecord *record() const;
    bool isCell(int row, int column) const;
    template <typename Test>
    bool hasCell(const Test &test) const;
    int fill(OneBasedTable<CandelaCell> &cells, PastedValues &values, GridEdit &edit) const;
    std::string lostThousandsHint(const OneBasedTable<CandelaCell> &cells,
                                  const std::optional<LostThousands::Jump> &jump) const;
    std::string cellName(int h, int v) const;

    ToolState &m_state;
    CandelaNumbers m_numbers;
    std::string m_title;
    mutable std::shared_ptr<OneBasedTable<CandelaCell>> m_handedOut;  ///< to `held` last
};

}  // namespace penwright
