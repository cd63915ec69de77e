#pragma once

#include <QTableView>

#include <memory>
#include <vector>

#include "grid/TableText.h"
#include "grid/TableWords.h"

namespace penwright {

/// Shows a table as it was understood, a row for each vertical and a column for each horizontal angle, with the angles
/// as headers; or the lines of a text that is none, cut into cells, with their numbers.
class TablePreview : public QTableView {
    Q_OBJECT

public:
    explicit TablePreview(QWidget *parent = nullptr);

    /// Shows values multiplied by a factor.
    void showTable(std::shared_ptr<const TableContent> table, double factor);

    /// Shows lines, and goes to the one that is to blame and its cell, counted from 1; 0 for none.
    void showLines(std::vector<CutLine> lines, std::size_t line, std::size_t cell);

private:
    class Cells;

    void showCells();

    Cells *m_cells;
};

}  // namespace penwright
