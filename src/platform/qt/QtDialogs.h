#pragma once

#include <map>
#include <string>

#include "platform/Dialogs.h"

class QWidget;

namespace penwright {

class Closing;
struct OwnerWindow;

/// Message boxes and the toolkit's own file dialogs, modal over their owner. They block the owner alone, so that a help
/// window stays usable; a system-modal box, or one without an owner, blocks every window of the program.
class QtDialogs : public Dialogs {
public:
    QtDialogs(const Closing &closing, const OwnerWindow &owner) : m_closing(closing), m_owner(owner) {}

    /// Escape and Enter both answer No where there is one, so that a key too many loses nothing. Elsewhere Enter
    /// answers OK, and Escape Cancel where there is one.
    Answer show(const MessageBox &box) override;

    /// Starts in the user's home, later in the folder of the name chosen last. The dialog is called `commonDialog`.
    std::optional<std::string> chooseSaveName(const SaveNameQuestion &question) override;

    /// Starts in the user's home, later in the folder of the file chosen last. The dialog is called `openDialog`.
    std::optional<std::string> chooseOpenName(const OpenNameQuestion &question) override;

private:
    QWidget *dialogParent() const;

    const Closing &m_closing;
    const OwnerWindow &m_owner;
    std::string m_lastName;                          ///< chosen last, with its folder
    std::map<std::string, std::string> m_lastNames;  ///< the same for each suffix
    std::string m_lastOpened;                        ///< the same of a file to be read
};

}  // namespace penwright
