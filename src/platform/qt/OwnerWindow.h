#pragma once

#include <QPointer>
#include <QWidget>

namespace penwright {

/// The window that dialogs open over and whose input a wait holds off: none at first, and none again once it is gone.
struct OwnerWindow {
    QPointer<QWidget> widget;
};

}  // namespace penwright
