#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/CandelaCell.h"
#include "core/ToolState.h"
#include "grid/GridSource.h"
#include "pages/candela/CandelaState.h"

namespace penwright {

/// The candela table as the grid of its page shows it: column 0 the vertical angles (degrees), then one column for each
/// horizontal angle. `CandelaCells` is what the page checks and stores; the working record keeps the numbers over the
/// next build, so that what still fits after a change of the angles is not lost.
class CandelaTable : public GridSource {
public:
    static constexpr int kLabelColumn = 0;

    /// `title` is what the messages about pasted texts are titled with. `state` and `flags` outlive the table.
    CandelaTable(ToolState &state, CandelaState &flags, std::string title);

    /// Builds cells and working record from record slot 1. On the first build since the wizard started all cells are
    /// blank; on every later one they are the working record's doubles, so that a cell that was left blank or is new
    /// becomes 0. Error 9 when the record's angles are fewer than it counts.
    void lsbStart();

    /// The cells by (horizontal index, vertical index).
    const OneBasedTable<CandelaCell> &CandelaCells() const { return m_cells; }

    /// All values, tab-separated, one line ended by "\r\n" for each vertical angle; no angles.
    std::string CopyCandelaTable() const;

    /// What ended a paste, and the cell it concerns; row 0 when it concerns none.
    struct PasteRefusal {
        MessageBox box;
        int row = 0;
        int column = 0;
    };

    /// Fills the whole table, row by row, from values separated by tabs and line ends of any kind. Another number of
    /// values than the table has changes nothing; both numbers in that message are one less than the counts, on
    /// purpose. A text that is no number, or is beyond a single, ends the paste: what stands before it has been taken.
    /// The limits of typed values do not hold here; negative ones are told when the page is left.
    std::optional<PasteRefusal> PasteCandelaTable(std::string_view text);

    /// The angles of a data cell, in degrees.
    struct CellAngles {
        float horizontal = 0;
        float vertical = 0;
    };

    /// Nothing for the label column and outside the table.
    std::optional<CellAngles> anglesOf(int row, int column) const;

    int rowCount() const override;
    int columnCount() const override;
    std::string columnCaption(int column) const override;

    /// The angles, in degrees: "V 30" and "H 90".
    std::string rowName(int row) const override;
    std::string columnName(int column) const override;

    std::string read(int row, int column) const override;
    std::optional<MessageBox> check(int row, int column, std::string_view text) const override;
    std::optional<MessageBox> write(int row, int column, std::string_view text) override;

    /// Refused as an empty text is, unless the cell is blank anyway.
    std::optional<MessageBox> clear(int row, int column) override;

    bool isReadOnly(int column) const override { return column == kLabelColumn; }

private:
    const PhotometricRecord *record() const;
    bool isCell(int row, int column) const;
    void take(int h, int v, float value);
    MessageBox pasteRefusal(int h, int v, std::string_view text) const;

    ToolState &m_state;
    CandelaState &m_flags;
    std::string m_title;
    OneBasedTable<CandelaCell> m_cells;
};

}  // namespace penwright
