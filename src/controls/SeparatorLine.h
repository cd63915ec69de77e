#pragma once

#include <QPainter>
#include <QWidget>

#include "controls/MixedColour.h"
#include "controls/OutlinedStyle.h"

namespace penwright {

/// A thin line across a page. It is seen in palettes, too, whose own colour for it is nearly the ground's.
class SeparatorLine : public QWidget {
public:
    SeparatorLine() { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const bool isPlain = !addedOutline(palette());
        QPainter(this).fillRect(rect(), isPlain ? palette().color(QPalette::Mid) : frameColour(palette()));
    }
};

}  // namespace penwright
