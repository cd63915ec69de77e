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

signals:
    /// The focus has come from elsewhere in the window: what is typed from here on is one go.
    void entered();

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QLineEdit::focusInEvent(event);
        const Qt::FocusReason reason = event->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            emit entered();
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QLineEdit::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            selectAll();
    }
};

}  // namespace penwright
