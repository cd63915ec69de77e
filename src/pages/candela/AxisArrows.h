#pragma once

#include <QLabel>

#include "controls/ScreenReader.h"

namespace penwright {

/// The picture in the corner of the table: rows are vertical angles, columns are horizontal ones.
class AxisArrows : public QLabel {
    Q_OBJECT

public:
    explicit AxisArrows(QWidget *parent = nullptr) : QLabel(parent)
    {
        setScreenReaderRole(*this, QAccessible::Graphic);
        setAccessibleName("Rows are vertical angles, columns are horizontal angles");
    }

    QSize sizeHint() const override { return {18, 18}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};

}  // namespace penwright
