#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "help/HelpFile.h"
#include "platform/HelpViewer.h"

namespace penwright {

class Closing;
class Dialogs;
class HelpWindow;

/// Shows help files in one window that no other window owns. It is reused and raised, blocked by none of the wizard's
/// dialogs, keeps the program from nothing, and goes when the program begins to close.
class QtHelpViewer : public HelpViewer {
public:
    QtHelpViewer(Dialogs &dialogs, Closing &closing, HelpFileOpener open);
    ~QtHelpViewer() override;

    void showTopic(const std::string &helpFilePath, int contextId) override;
    void showLink(const std::string &helpFilePath, const std::string &link) override;

    /// The window; null before the first topic was shown.
    HelpWindow *window() { return m_window.get(); }

private:
    /// A file as it stood when it was opened: one that has changed since is opened anew.
    struct Version {
        std::string path;
        std::filesystem::file_time_type time;
        std::uintmax_t size = 0;
        bool operator==(const Version &) const = default;
    };
    static Version versionOf(const std::string &path);

    /// Finds the place to be shown in the file; raises what it lacks.
    using Finder = std::function<HelpPlace(const HelpFile &file)>;
    void showOrTell(const std::string &path, const Finder &find);
    void show(const std::string &path, const Finder &find);

    Dialogs &m_dialogs;
    Closing &m_closing;
    HelpFileOpener m_open;
    std::unique_ptr<HelpWindow> m_window;
    Version m_shown;
};

}  // namespace penwright
