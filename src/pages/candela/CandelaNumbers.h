#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/CandelaCell.h"
#include "core/ToolState.h"
#include "grid/GridEdit.h"
#include "pages/candela/CandelaState.h"

namespace penwright {

/// The numbers of the candela table, and the working record that follows them: it keeps them over the next build, so
/// that what still fits after a change of the angles is not lost. They change by the contents that are made here.
class CandelaNumbers {
public:
    /// `state` outlives the numbers.
    explicit CandelaNumbers(ToolState &state) : m_state(state) {}

    CandelaState &flags() { return m_flags; }
    const CandelaState &flags() const { return m_flags; }

    /// The cells by (horizontal index, vertical index).
    const OneBasedTable<CandelaCell> &cells() const { return m_cells; }

    /// Whether type, counts and angles of a record are those that the table was built for.
    bool isFor(const PhotometricRecord &record) const;

    /// What goes into one cell.
    struct Cell {
        int h;
        int v;
        CandelaCell value;
    };

    /// The cells with some of them changed.
    std::unique_ptr<GridContent> withCells(std::vector<Cell> cells);

    /// Cells of the same size, of which the first `count`, row by row, are new.
    std::unique_ptr<GridContent> withFirst(OneBasedTable<CandelaCell> cells, int count);

    /// A table for the angles of a record, which has as many as it counts. On the first one since the wizard started
    /// all cells are blank; on every later one they are the working record's doubles, so that a cell that was left
    /// blank or is new becomes 0. Cells of before the start, which nobody sees any more, are given up here already:
    /// their memory serves the new ones.
    std::unique_ptr<GridContent> ofAngles(const PhotometricRecord &from);

    /// A table for the angles of a record with cells of as many, which the record in slot 1 need not have yet. Taken
    /// back where it is the first one since the wizard started, there is no table again, and the record has the angles
    /// that it had.
    std::unique_ptr<GridContent> ofAnglesAndCells(const PhotometricRecord &from, OneBasedTable<CandelaCell> cells);

private:
    class SingleCells;
    class PastedTable;
    class NewTable;

    /// What a table is built for.
    struct Angles {
        explicit Angles(const PhotometricRecord &record);
        Angles() = default;

        std::int16_t type = 0;
        OneBased<float> horizontal;
        OneBased<float> vertical;
    };

    void noteAngles();
    void giveAngles();
    void keep(int h, int v);

    ToolState &m_state;
    CandelaState m_flags;
    Angles m_angles;
    OneBasedTable<CandelaCell> m_cells;
};

}  // namespace penwright
