#pragma once

#include "grid/GridView.h"

namespace penwright {

/// A grid of one row with a column for each angle. Columns are as narrow as they were built until a value does not
/// fit, and never become narrower again. A column of a spreadsheet is pasted along the row.
class AngleGrid : public GridView {
    Q_OBJECT

public:
    explicit AngleGrid(QWidget *parent = nullptr);

    /// Builds the columns anew from the source, with the first one in sight and no current cell.
    void rebuildColumns();

protected:
    void paste(std::string_view text) override;
    void changeEvent(QEvent *event) override;

private:
    void fitColumn(int column);
    void setHeights();
};

}  // namespace penwright
