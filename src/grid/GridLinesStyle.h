#pragma once

#include "controls/OutlinedStyle.h"

namespace penwright {

/// Draws the lines between cells as visibly on dark as on light; the desktop's own colour may be that of the cells.
class GridLinesStyle : public OutlinedStyle {
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;
};

}  // namespace penwright
