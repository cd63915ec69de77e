#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <QTest>
#include <QtWidgets>
#include <string>

#include "app/WizardAssembly.h"
#include "disorder/PlayedHost.h"
#include "platform/posix/PosixTextFiles.h"
#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventWait.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/FakeEmbedding.h"
#include "support/FakeHelp.h"
#include "support/TempFolder.h"
#include "wizard/PageFrame.h"
#include "wizard/WizardWindow.h"

namespace penwright::test {

/// What stays from one run of the wizard to the next: the store, the drafts, and a folder of files.
struct Ground {
    Ground();

    /// What is wrong with the files, "" for nothing: each is one that was there, untouched, or a new one, which can
    /// be read; nothing else is left.
    std::string faultOfFiles() const;

    TempFolder folder;
    std::string store = folder.file("settings.sqlite3");
    std::string drafts = folder.file("drafts");
    std::string files = folder.file("files");
};

/// A wait of the program's own kind that loses its patience sooner.
struct ShortWait : QtEventWait {
    using QtEventWait::QtEventWait;
    WaitEnd until(const std::function<bool()> &done, std::chrono::milliseconds limit) override
    {
        return QtEventWait::until(done, std::min(limit, std::chrono::milliseconds(40)));
    }
};

/// One run of the wizard as start-up makes it, over a real store with real dialogs, drafts and files, and a host.
class Scene {
public:
    Scene(const Ground &ground, PlayedHost &host, bool isEmbedded);
    ~Scene();
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    /// What a user's keys and clicks reach: an open menu or list, else the dialog on top, else the window.
    QWidget &top();

    /// Where a key goes.
    QWidget &focus();

    /// Whether a user can do something.
    bool isUsable() const { return window->isVisible() && !closing.isClosing(); }

    /// Whether a user sees the page that is shown and nothing above it.
    bool isPageOnTop() { return isUsable() && window->shownPage() < kPageCount && &top() == window.get(); }

    PageFrame &page() { return window->page(window->shownPage()); }

    template <typename Widget = QWidget>
    Widget *find(const std::string &name)
    {
        return top().findChild<Widget *>(QString::fromStdString(name));
    }

    /// What stood on a page when the window began to unload.
    struct LastWords {
        std::array<PageText, kPageCount> pages;
        bool isTyped = false;
    };

    const Ground &ground;
    PlayedHost &host;
    ToolState state;
    SqliteSettingsStore store{ground.store};
    PosixTextFiles files;
    FakeHelp help;
    FakeEmbedding embedding;
    Closing closing;
    OwnerWindow owner;
    ShortWait wait{closing, owner};
    QtDialogs dialogs{closing, owner};
    std::optional<LastWords> lastWords;
    bool hasTakenOver = false;  ///< a draft
    std::unique_ptr<WizardWindow> window;

private:
    void follow();

    bool m_isTyped = false;  ///< since the host has taken a file
};

}  // namespace penwright::test
