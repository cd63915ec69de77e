#pragma once

#include <QComboBox>
#include <QWheelEvent>

namespace penwright {

/// A drop-down list that the wheel does not change while it is closed: the wheel scrolls the page instead.
class DropDownList : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

}  // namespace penwright
