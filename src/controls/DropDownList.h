#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QWheelEvent>

#include "controls/ScreenReader.h"

namespace penwright {

/// A drop-down list that the wheel does not change while it is closed: the wheel scrolls the page instead.
class DropDownList : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override
    {
        view()->setAccessibleName(accessibleName());
        QComboBox::showPopup();
        tellCurrentItem(*view());
    }

protected:
    void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

}  // namespace penwright
