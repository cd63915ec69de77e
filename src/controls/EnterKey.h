#pragma once

#include <QKeyEvent>

namespace penwright {

/// Whether a key is Enter, on the number pad or not.
inline bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace penwright
