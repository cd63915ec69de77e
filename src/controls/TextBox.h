#pragma once

#include <QLineEdit>
#include <QMouseEvent>

#include "controls/OneLine.h"

namespace penwright {

/// A text box of one value: a click into it selects the whole text, so that typing replaces the value.
/// A part that was marked by dragging, or by a click with Shift, stays marked.
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

    void mousePressEvent(QMouseEvent *event) override
    {
        QLineEdit::mousePressEvent(event);
        m_pressed = event->position().toPoint();
        m_marks = event->modifiers() & Qt::ShiftModifier;
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        constexpr int kUnsteady = 3;  // a hand that clicks may move so far
        QLineEdit::mouseMoveEvent(event);
        const bool isFar = (event->position().toPoint() - m_pressed).manhattanLength() > kUnsteady;
        if (isFar && (event->buttons() & Qt::LeftButton))
            m_marks = true;
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QLineEdit::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton && !(m_marks && hasSelectedText()))
            selectAll();
    }

private:
    QPoint m_pressed;
    bool m_marks = false;  ///< whether the mouse marks a part
};

}  // namespace penwright
