#pragma once

#include <QComboBox>
#include <QLineEdit>

namespace penwright {

/// Whether Tab stops at a widget of `page`.
inline bool isTabStop(const QWidget &widget, const QWidget &page)
{
    return (widget.focusPolicy() & Qt::TabFocus) && widget.isEnabled() && widget.isVisibleTo(&page);
}

/// Gives a field the focus by other means than Tab, with its whole text selected, so that a key replaces it.
inline void focusField(QWidget &field)
{
    field.setFocus(Qt::OtherFocusReason);
    auto *line = qobject_cast<QLineEdit *>(&field);
    if (auto *list = qobject_cast<QComboBox *>(&field))
        line = list->lineEdit();
    if (line)
        line->selectAll();
}

}  // namespace penwright
