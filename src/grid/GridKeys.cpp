#include "grid/GridKeys.h"

#include <QKeyEvent>

namespace penwright {

bool isTab(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) && !(event.modifiers() & Qt::AltModifier);
}

bool isForward(const QKeyEvent &event)
{
    return event.key() != Qt::Key_Backtab && !(event.modifiers() & Qt::ShiftModifier);
}

bool opensList(const QKeyEvent &event)
{
    return event.key() == Qt::Key_F4 || (event.key() == Qt::Key_Down && (event.modifiers() & Qt::AltModifier));
}

bool selectsToEnd(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down) &&
           event.modifiers().testFlags(Qt::ControlModifier | Qt::ShiftModifier);
}

bool movesRows(const QKeyEvent &event)
{
    const bool isRowKey = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down || event.key() == Qt::Key_PageUp ||
                          event.key() == Qt::Key_PageDown;
    return isRowKey && !(event.modifiers() & Qt::AltModifier);
}

}  // namespace penwright
