#pragma once

#include <optional>
#include <string>

namespace penwright {

/// The parts of MessageBox::flags: buttons, icon and modality, added together.
enum MessageFlag : int {
    kOkOnly = 0,
    kOkCancel = 1,
    kYesNo = 4,
    kCritical = 16,
    kExclamation = 48,
    kInformation = 64,
    kSystemModal = 4096,
};

/// A modal message. Text and title are shown as they stand, never as markup.
struct MessageBox {
    std::string text;
    int flags = kOkOnly;
    std::string title = "PenwrightPE";
    bool operator==(const MessageBox &) const = default;
};

/// How a message was answered. `Dismissed`: the program is unloading and took the box away; act on nothing.
enum class Answer { Dismissed = 0, Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// The question of a save dialog. `filter` is a description with its patterns: "IES files (*.ies)|*.ies;*.IES".
struct SaveNameQuestion {
    std::string title;
    std::string filter;
    std::string defaultSuffix;
    std::string proposedName{};  ///< "" for the name that was chosen last with that suffix
};

/// The question of a dialog that opens a file; `filter` as that of a save dialog.
struct OpenNameQuestion {
    std::string title;
    std::string filter;
};

/// What blocks and asks the user. Each call returns at once, unshown, while the program is unloading.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual Answer show(const MessageBox &box) = 0;

    /// The chosen path, possibly empty; nothing when the user cancelled or the program is unloading.
    virtual std::optional<std::string> chooseSaveName(const SaveNameQuestion &question) = 0;

    /// The path of a file that is to be read; nothing when the user cancelled or the program is unloading.
    virtual std::optional<std::string> chooseOpenName(const OpenNameQuestion &question) = 0;
};

}  // namespace penwright
