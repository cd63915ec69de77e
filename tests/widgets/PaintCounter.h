#pragma once

#include <QEvent>
#include <QObject>

namespace penwright::test {

/// Counts how often what it filters the events of is painted.
class PaintCounter : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paints = 0;
};

}  // namespace penwright::test
