#pragma once

#include <QString>

#include <span>
#include <string>
#include <string_view>

#include "controls/DropDownList.h"

namespace penwright {

/// The editable drop-down list of an axis: a number is typed into it or an entry picked. What is typed is neither
/// completed nor added to the list, and leaving the field picks nothing.
class AngleListBox : public DropDownList {
    Q_OBJECT

public:
    explicit AngleListBox(QWidget *parent = nullptr);

    /// Replaces the entries and shows the prompt, selected, so that typing replaces it. Tells no change.
    void offer(std::span<const std::string_view> entries);

    /// Replaces the entries below a text that stays and is selected; what a minus sign left behind is forgotten. Tells
    /// no change.
    void setEntries(std::span<const std::string_view> entries);

    /// The selected part of the text, the whole text when none is selected. Digits typed right behind a lone minus sign
    /// come with it, although it was refused and is not shown: "-4" is no count.
    std::string chosenText() const;

    /// Shows a text, selected, so that typing replaces it. Tells no change.
    void replaceText(const QString &text);

    /// Opens the list wide enough for its longest entry. An entry picked is selected, so that typing replaces it. A
    /// part of the text that is selected now stays selected when the same text is picked again.
    void showPopup() override;

signals:
    /// The text has changed, or an entry was picked, be it the same one again.
    void changed();

    /// Whether a lone minus sign was refused and what is typed next comes with it, so that it is refused too.
    void signPending(bool isPending);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// The selected part of a text that a list was opened over.
    struct Selection {
        QString text;
        int start;
        int length;
    };

    class Edit;

    void tellPick();

    Edit *m_edit;
    Selection m_selection{};
};

}  // namespace penwright
