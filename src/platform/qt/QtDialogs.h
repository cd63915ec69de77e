#pragma once

#include <string>

#include "platform/Dialogs.h"

class QWidget;

namespace penwright {

class Closing;

/// Message boxes and the toolkit's own save dialog, modal over the wizard. They block the wizard alone, so that a help
/// window stays usable; a system-modal box, or one without an owner, blocks every window of the program.
class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(const Closing &closing) : m_closing(closing) {}

    /// The window over which dialogs open; without one they stand for themselves.
    void setOwner(QWidget *owner) { m_owner = owner; }

    /// Escape and Enter both answer No where there is one, so that a key too many loses nothing. Elsewhere Enter
    /// answers OK, and Escape Cancel where there is one.
    Answer show(const MessageBox &box) override;

    /// Starts in the user's home, later in the folder of the name chosen last. The dialog is called `commonDialog`.
    std::optional<std::string> chooseSaveName(const SaveNameQuestion &question) override;

private:
    QWidget *dialogParent() const;

    const Closing &m_closing;
    QWidget *m_owner = nullptr;
    std::string m_lastName;  ///< chosen last, with its folder
};

}  // namespace penwright
