#pragma once

#include <vector>

#include "controls/DropDownList.h"
#include "grid/GridSource.h"

namespace penwright {

/// The editor of a cell that offers entries: any text can be typed, nothing typed is completed or kept in the list, and
/// the open list shows beside each entry what it is for.
class GridChoiceBox : public DropDownList {
    Q_OBJECT

public:
    explicit GridChoiceBox(const std::vector<GridChoice> &choices, QWidget *parent = nullptr);

    void showPopup() override;

private:
    int listWidth() const;
};

}  // namespace penwright
