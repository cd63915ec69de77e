#pragma once

#include <QDialog>

#include <optional>
#include <string_view>

#include "wizard/WarningList.h"

class QPushButton;

namespace penwright {

class Closing;
class LongTextBox;

/// The dialog `dlgWarn`: the list of what is missing or wrong on a page. Closing it only hides it; the list survives
/// until the next Clear. A double click on a line, or Enter, closes it too.
class WarningDialog : public QDialog {
    Q_OBJECT

public:
    WarningDialog(const Closing &closing, QWidget *parent);

    WarningList &list() { return m_list; }

    void Add(std::string_view entry) { m_list.Add(entry); }
    void Clear() { m_list.Clear(); }

    /// Whether nothing has been added since the last Clear.
    bool Clean() const { return m_list.Clean(); }

    /// Shows the whole list and returns when the user has closed it; at once, unshown, while the window unloads.
    /// The place that the user wants to see to: that of the line it was closed by, else that of the first fault.
    std::optional<FaultPlace> showModal();

    /// While it is quiet, nothing is shown: nobody has pressed a button.
    void setQuiet(bool isQuiet) { m_isQuiet = isQuiet; }

private:
    const Closing &m_closing;
    WarningList m_list;
    std::optional<FaultPlace> m_chosen;
    bool m_isQuiet = false;
    LongTextBox *m_text = nullptr;
    QPushButton *m_ok = nullptr;
};

}  // namespace penwright
