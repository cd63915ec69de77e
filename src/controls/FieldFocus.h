#pragma once

#include <QComboBox>
#include <QLineEdit>

namespace penwright {

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
