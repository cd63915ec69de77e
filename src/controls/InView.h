#pragma once

#include <QAbstractItemView>
#include <QScrollArea>
#include <QTimer>

namespace penwright {

/// Scrolls to a control that was given the focus by other means than Tab, once the page around it has been laid out; in
/// a grid to the current cell.
inline void bringIntoView(QWidget &control)
{
    const auto show = [&control](QScrollArea &area) {
        constexpr int kAround = 20;
        QRect part = control.rect();
        if (const auto *grid = qobject_cast<const QAbstractItemView *>(&control))
            part = grid->visualRect(grid->currentIndex()).translated(grid->viewport()->pos());
        const QPoint centre = control.mapTo(area.widget(), part.center());
        area.ensureVisible(centre.x(), centre.y(), part.width() / 2 + kAround, part.height() / 2 + kAround);
    };
    QTimer::singleShot(0, &control, [&control, show] {
        for (QWidget *around = control.parentWidget(); around; around = around->parentWidget())
            if (auto *area = qobject_cast<QScrollArea *>(around); area && control.isVisible())
                show(*area);
    });
}

}  // namespace penwright
