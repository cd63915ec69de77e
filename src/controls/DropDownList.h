#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QWheelEvent>

#include "controls/ScreenReader.h"

namespace penwright {

/// A drop-down list that the wheel does not change while it is closed: the wheel scrolls the page instead. A screen
/// reader is told what is chosen as its description, which it says with the list's label, and of the item that a key
/// chooses.
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
    void keyPressEvent(QKeyEvent *event) override
    {
        const int before = currentIndex();
        QComboBox::keyPressEvent(event);
        if (!isEditable() && currentIndex() != before)
            tellChosenItem(*this);
    }

    void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

}  // namespace penwright
