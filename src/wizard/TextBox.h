#pragma once

#include <QLineEdit>
#include <QMouseEvent>

namespace penwright {

/// A text box of one value: a click into it selects the whole text, so that typing replaces the value.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QLineEdit::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            selectAll();
    }
};

}  // namespace penwright
