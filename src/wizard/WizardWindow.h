#pragma once

#include <QWidget>

#include <array>
#include <cstdint>
#include <functional>

#include "core/ToolState.h"
#include "hostlink/CommandLink.h"
#include "hostlink/HostOperations.h"
#include "wizard/PageFrame.h"

class QLineEdit;
class QPlainTextEdit;
class QScrollArea;
class QTimer;

namespace penwright {

class Closing;
class Dialogs;
class EventWait;
class HelpViewer;
class HostEmbedding;
class SettingsStore;
class WarningDialog;

/// What the wizard window uses of the platform.
struct WindowServices {
    SettingsStore &store;
    Dialogs &dialogs;
    EventWait &wait;
    HostEmbedding &embedding;
    HelpViewer &help;
};

/// The wizard's one window `frmSample`: the page frames on top of each other, at most one of them shown, and the hidden
/// boxes and timers of the host link.
class WizardWindow : public QWidget, public Navigator, public LinkedWindow {
    Q_OBJECT

public:
    WizardWindow(ToolState &state, const WindowServices &services, Closing &closing);

    PageContext pageContext() { return {m_state, m_services.dialogs, *this, *m_dlgWarn}; }

    /// Owns `page` from here on, and shows it under the index that it carries. Each row of the page table has one
    /// before the window loads.
    void addPage(PageFrame *page);

    /// The window load handler, run once by start-up: moves into the host when it is to be embedded, loads the pages
    /// and starts to poll for commands. Raises the errors of the store.
    void load();

    /// Starts `tmrDeath`, which "START" stops.
    void startDeathTimer();

    PageFrame &page(int index) { return *m_pages.at(static_cast<std::size_t>(index)); }

    /// Index of the page shown, kPageCount for none.
    int shownPage() const { return m_shownPage; }

    /// Also puts the focus: a page before the one that was shown gets it where it was left, any other at its first
    /// field.
    void ShowPage(int index) override;
    void ConfirmCancel() override;
    void ShowHelp(int contextId) override;
    void showHelpAt(const std::string &link) override;
    void goToPlace(const RecordPlace &place) override;
    bool ReDo() override { return false; }
    bool isBusy() const override;

    /// Starts the pages, shows page 1 and the window, not modal, and takes the keyboard focus.
    void StartWizard() override;
    void stopDeathTimer() override;
    void beginUnload() override;
    bool isUnloading() const override;
    /// Has every page follow, and tells of it on the one that is shown where the host's record did not fit.
    void followRecord() override;
    void showLog() override;

    WarningDialog &dlgWarn() { return *m_dlgWarn; }
    CommandLink &link() { return m_link; }

    // Called by nothing in the program; what they do is fixed.

    /// The further host operations.
    HostOperations &operations() { return m_operations; }

    /// One more help handler, which no control leads to: it opens the topic of page 4.
    void cmdHelp_Click();

    /// The form's state variable: 0 from the creation on.
    std::int16_t formState() const { return m_formState; }

signals:
    /// A page is about to be shown, by its index; it can still be filled.
    void pageTurned(int index);

    /// The wizard is about to start, not for the first time; the pages hold what they held.
    void startingAnew();

    /// Another page has been shown, with its focus.
    void pageShown();

    /// The cancel question was answered with Yes.
    void cancelled();

    /// The host has taken the finished file.
    void fileTaken();

protected:
    /// A press of Escape asks the cancel question, not the key held on; F1 is the page's Help button. Open lists,
    /// editors and menus take theirs first.
    void keyPressEvent(QKeyEvent *event) override;

    void changeEvent(QEvent *event) override;

    /// From the last field to the first and back, also in a host's window, which the toolkit would hand the focus on
    /// to.
    bool focusNextPrevChild(bool next) override;

    /// The window's own close button asks the cancel question.
    void closeEvent(QCloseEvent *event) override;

private:
    /// Where a page gets the focus.
    enum class Arrival { First, Back };

    void turnTo(int index, Arrival arrival);
    void makeLayout();
    void makeHiddenBoxes();
    QTimer *makeTimer(const char *name, int interval);
    void tmrDataExchange_Timer();
    void askCancelLater();
    void unload();
    void guarded(const std::function<void()> &body);

    ToolState &m_state;
    WindowServices m_services;
    Closing &m_closing;
    CommandLink m_link;
    HostOperations m_operations;
    std::array<PageFrame *, kPageCount> m_pages{};
    int m_shownPage = kPageCount;
    bool m_hasStarted = false;
    std::int16_t m_formState = 0;
    std::size_t m_shownEntries = 0;  ///< entries of the log that `txtCmds` has been given

    QScrollArea *m_scroll = nullptr;
    QWidget *m_stack = nullptr;
    WarningDialog *m_dlgWarn = nullptr;
    QTimer *m_tmrDataExchange = nullptr;
    QTimer *m_tmrDeath = nullptr;
    QPlainTextEdit *m_txtCmds = nullptr;
    QPlainTextEdit *m_txtFiles = nullptr;
};

}  // namespace penwright
