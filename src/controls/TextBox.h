#pragma once

#include <QLineEdit>
#include <QMouseEvent>

#include "controls/OneLine.h"

namespace penwright {

/// A text box of one value: a click into it selects the whole text, so that typing replaces the value.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    explicit TextBox(QWidget *parent = nullptr) : QLineEdit(parent) { setValidator(new OneLine(this)); }

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QLineEdit::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            selectAll();
    }
};

}  // namespace penwright
