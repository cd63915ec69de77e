#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QWheelEvent>

#include "controls/ScreenReader.h"

namespace penwright {

/// A drop-down list that the wheel does not change while it is closed: the wheel scrolls the page instead. A screen
/// reader is told what is chosen as its description: it says that with the list's label, and again when it changes.
class DropDownList : public QComboBox {
    Q_OBJECT

public:
    explicit DropDownList(QWidget *parent = nullptr) : QComboBox(parent)
    {
        connect(this, &QComboBox::currentTextChanged, this, [this](const QString &chosen) {
            if (!isEditable())
                describe(*this, chosen);
        });
    }

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
