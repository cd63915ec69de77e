#include "grid/GridLinesStyle.h"

#include <QWidget>

#include "controls/MixedColour.h"

namespace penwright {

int GridLinesStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *returned) const
{
    if (hint != SH_Table_GridLineColor || !widget)
        return OutlinedStyle::styleHint(hint, option, widget, returned);
    return static_cast<int>(lineColour(widget->palette()).rgba());
}

}  // namespace penwright
