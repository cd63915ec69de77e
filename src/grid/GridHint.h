#pragma once

#include "controls/QuietLabel.h"

namespace penwright {

class GridView;

/// The quiet line under a grid that says what its latest change calls for; hidden while that is nothing. Screen readers
/// are told it with the grid.
class GridHint : public QuietLabel {
    Q_OBJECT

public:
    explicit GridHint(QWidget *parent = nullptr);

    /// Shows what `grid` says from now on; its description has been given to it.
    void follow(GridView &grid);
};

}  // namespace penwright
