#pragma once

#include "grid/GridView.h"

namespace penwright {

/// A grid of one row with a column for each angle. Columns are as narrow as they were built until a value does not
/// fit, and never become narrower again. Columns built anew begin with the first one in sight and no current cell.
class AngleGrid : public GridView {
    Q_OBJECT

public:
    explicit AngleGrid(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showNewColumns();
    void fitColumn(int column);
    void setHeights();
};

}  // namespace penwright
