#include "wizard/WizardWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextCursor>
#include <QTimer>
#include <utility>

#include "controls/FieldFocus.h"
#include "controls/ScreenReader.h"
#include "core/RecordAngles.h"
#include "grid/GridView.h"
#include "hostlink/HostPost.h"
#include "platform/Dialogs.h"
#include "platform/EventWait.h"
#include "platform/HelpViewer.h"
#include "platform/HostEmbedding.h"
#include "platform/qt/Closing.h"
#include "platform/qt/Placeholder.h"
#include "wizard/HandlerGuard.h"
#include "wizard/PageSteps.h"
#include "wizard/WarningDialog.h"

namespace penwright {
namespace {

constexpr QSize kDesignSize{720, 560};
constexpr int kPollInterval = 100;
constexpr int kDeathInterval = 10000;
constexpr const char *kNewDataNote = "The host has sent new data; the candela table has been built anew.";
constexpr const char *kNoAnglesNote = "The host has sent data without angles. Next goes on with these.";

}  // namespace

WizardWindow::WizardWindow(ToolState &state, const WindowServices &services, Closing &closing)
    : m_state(state),
      m_services(services),
      m_closing(closing),
      m_link(state, services.store, services.dialogs, services.embedding, *this),
      m_operations(state, services.store, services.dialogs, services.wait, m_link.log(), [this] { showLog(); })
{
    setScreenReaderRole(*this, QAccessible::Window);
    setObjectName("frmSample");
    setWindowTitle("New Photometric File");
    resize(kDesignSize);
    makePlaceholdersLegible(*this);
    makeLayout();
    makeHiddenBoxes();
    m_dlgWarn = new WarningDialog(m_closing, this);
    m_tmrDataExchange = makeTimer("tmrDataExchange", kPollInterval);
    connect(m_tmrDataExchange, &QTimer::timeout, this, &WizardWindow::tmrDataExchange_Timer);
    m_tmrDeath = makeTimer("tmrDeath", kDeathInterval);  // its tick does nothing
    connect(&m_closing, &Closing::unwound, this, &WizardWindow::unload);
}

void WizardWindow::makeLayout()
{
    m_stack = new QWidget;
    auto *stack = new QGridLayout(m_stack);
    stack->setContentsMargins(0, 0, 0, 0);
    m_scroll = new QScrollArea;
    m_scroll->setWidget(m_stack);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scroll);
}

void WizardWindow::makeHiddenBoxes()
{
    const auto hide = [this](QWidget *box, const char *name) {
        box->setParent(this);
        box->setObjectName(name);
        box->hide();
    };
    hide(new QLineEdit, "txtNewFilename");
    hide(new QLineEdit, "txtIESFile");
    m_txtCmds = new QPlainTextEdit;
    m_txtFiles = new QPlainTextEdit;
    for (QPlainTextEdit *box : {m_txtCmds, m_txtFiles}) {
        box->setReadOnly(true);
        box->setUndoRedoEnabled(false);
        box->setLineWrapMode(QPlainTextEdit::NoWrap);
    }
    m_txtCmds->setMaximumBlockCount(CommandLog::kMostEntries + 1);  // the last one is empty, behind the last line end
    hide(m_txtCmds, "txtCmds");
    hide(m_txtFiles, "txtFiles");
}

QTimer *WizardWindow::makeTimer(const char *name, int interval)
{
    auto *timer = new QTimer(this);
    timer->setObjectName(name);
    timer->setInterval(interval);
    return timer;
}

void WizardWindow::addPage(PageFrame *page)
{
    m_pages.at(static_cast<std::size_t>(page->index())) = page;
    page->hide();
    static_cast<QGridLayout *>(m_stack->layout())->addWidget(page, 0, 0);
}

void WizardWindow::load()
{
    // A child window has no frame of its own here, so that there is no style bit to set for it.
    if (m_state.start.EmbedInHost)
        m_state.start.PreviousParent =
            m_services.embedding.SetParent(static_cast<std::uint32_t>(m_state.start.HostWindow));
    for (PageFrame *page : m_pages) {
        page->load();
        page->steps().forgetAll();
    }
    m_tmrDataExchange->start();
}

void WizardWindow::startDeathTimer()
{
    m_tmrDeath->start();
}

void WizardWindow::ShowPage(int index)
{
    const bool isBack = m_shownPage < kPageCount && index < m_shownPage;
    turnTo(index, isBack ? Arrival::Back : Arrival::First);
}

void WizardWindow::turnTo(int index, Arrival arrival)
{
    const bool isPage = index >= 0 && index < kPageCount;
    if (isPage)  // before anything is hidden: a page that cannot be prepared leaves the one that is shown
        m_pages[static_cast<std::size_t>(index)]->enter();
    // A menu left open would hang over the page that follows.
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    for (PageFrame *page : m_pages) {
        page->hide();
        page->showNote({});
    }
    const int from = std::exchange(m_shownPage, kPageCount);
    if (!isPage)
        return;
    m_shownPage = index;
    PageFrame *page = m_pages[static_cast<std::size_t>(index)];
    if (arrival == Arrival::Back)
        for (int passed = index; passed < from; ++passed)  // Next comes to those between without asking them again
            m_pages[static_cast<std::size_t>(passed)]->comeBackFrom(from);
    emit pageTurned(index);
    page->show();
    for (QScrollBar *bar : {m_scroll->horizontalScrollBar(), m_scroll->verticalScrollBar()})
        bar->setValue(0);
    page->scrollToTop();
    setWindowTitle(page->caption());
    if (arrival == Arrival::Back)
        page->focusLastField();
    else
        page->focusFirstField();
    emit pageShown();
}

void WizardWindow::ConfirmCancel()
{
    const Answer answer = m_services.dialogs.show({.text = "Changes will be lost. Are you sure you want to cancel?",
                                                   .flags = kYesNo + kExclamation,
                                                   .title = "Canceling New File Wizard"});
    if (answer == Answer::Dismissed)
        return;
    if (answer == Answer::Yes) {
        emit cancelled();
        beginUnload();
    } else if (!m_state.start.EmbedInHost) {
        QCoreApplication::exit(0);  // No ends a tool that is not embedded all the same, on purpose, and unloads nothing
    }
}

void WizardWindow::ShowHelp(int contextId)
{
    m_services.help.showTopic(m_state.start.HelpFilePath, contextId);
}

void WizardWindow::showHelpAt(const std::string &link)
{
    m_services.help.showLink(m_state.start.HelpFilePath, link);
}

void WizardWindow::goToPlace(const RecordPlace &place)
{
    for (PageFrame *page : m_pages)
        if (const auto typedAt = page->placeOf(place)) {
            ShowPage(page->index());
            return page->goTo(*typedAt);
        }
}

bool WizardWindow::isBusy() const
{
    return m_services.wait.isWaiting() || QApplication::activeModalWidget() || isUnloading();
}

void WizardWindow::StartWizard()
{
    if (m_shownPage < kPageCount)
        for (GridView *grid : page(m_shownPage).fields().grids())
            grid->commitEditIfValid();
    if (m_hasStarted)
        emit startingAnew();
    for (PageFrame *page : m_pages) {
        page->start();
        if (!m_hasStarted)
            page->steps().forgetAll();
    }
    m_hasStarted = true;
    turnTo(kLampPage, Arrival::First);
    show();
    m_services.embedding.takeFocus();
}

void WizardWindow::stopDeathTimer()
{
    m_tmrDeath->stop();
}

void WizardWindow::beginUnload()
{
    m_closing.begin();
}

bool WizardWindow::isUnloading() const
{
    return m_closing.isClosing();
}

void WizardWindow::followRecord()
{
    bool isRebuilt = false;
    for (PageFrame *page : m_pages)
        isRebuilt = page->followRecord() || isRebuilt;
    if (m_shownPage == kPageCount)
        return;
    const bool lacksAngles = m_shownPage > kDistributionPage && !hasAngles(m_state.PhotFiles(1));
    if (lacksAngles)  // the page that gives a record its angles
        ShowPage(kDistributionPage);
    if (lacksAngles || isRebuilt)
        page(m_shownPage).showNote(lacksAngles ? kNoAnglesNote : kNewDataNote);
}

void WizardWindow::showLog()
{
    // Only what is new is added: the whole log may hold megabytes, and a command comes with every tick.
    const CommandLog &log = m_link.log();
    QTextCursor end(m_txtCmds->document());
    end.movePosition(QTextCursor::End);
    end.insertText(QString::fromStdString(log.latest(log.appended() - m_shownEntries)));
    m_shownEntries = log.appended();
    m_txtFiles->setPlainText(QString::fromStdString(m_link.log().txtFiles()));
}

void WizardWindow::cmdHelp_Click()
{
    ShowHelp(kPages[kDistributionPage].helpId);
}

void WizardWindow::keyPressEvent(QKeyEvent *event)
{
    const bool isHeld = event->isAutoRepeat();  // an Escape held on has closed a message or an editor already
    if (event->key() == Qt::Key_Escape && !isHeld)
        askCancelLater();
    else if (event->key() == Qt::Key_F1 && m_shownPage < kPageCount && !isBusy())
        guarded([this] { ShowHelp(kPages[static_cast<std::size_t>(m_shownPage)].helpId); });
    else
        QWidget::keyPressEvent(event);
}

bool WizardWindow::focusNextPrevChild(bool next)
{
    QWidget *const from = focusWidget() ? focusWidget() : this;
    QWidget *field = from;
    bool wraps = false;
    do {
        field = next ? field->nextInFocusChain() : field->previousInFocusChain();
        wraps = wraps || field == this;
    } while (field != from && !isTabStop(*field, *this));
    if (!wraps)
        return QWidget::focusNextPrevChild(next);
    field->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void WizardWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        makePlaceholdersLegible(*this);
    else if (event->type() == QEvent::ActivationChange && isActiveWindow())
        tellFocusSoon(*this);
}

void WizardWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    askCancelLater();
}

void WizardWindow::askCancelLater()
{
    // From the event loop, so that the key event is off the stack while the question is open.
    const auto ask = [this] {
        if (!isBusy())
            guarded([this] { ConfirmCancel(); });
    };
    QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
}

void WizardWindow::tmrDataExchange_Timer()
{
    // A timer does not fire while its own slot is on the stack, and a command may open what blocks for long.
    const auto obey = [this] { guarded([this] { m_link.obeyNext(); }); };
    guarded([&] {
        if (m_link.poll())
            QMetaObject::invokeMethod(this, obey, Qt::QueuedConnection);
    });
}

void WizardWindow::unload()
{
    try {
        if (!m_closing.isHostGone())
            HostPost(m_state.start, m_services.store, m_services.wait).postCommand("CloseRemove,");
    } catch (const RunTimeError &) {  // an unload is never refused, and nobody is left to tell
    }
    if (m_state.start.EmbedInHost)
        m_services.embedding.giveBack(m_state.start.PreviousParent);
    QCoreApplication::exit(0);
}

void WizardWindow::guarded(const std::function<void()> &body)
{
    guardHandler(m_services.dialogs, windowTitle().toStdString(), body);
}

}  // namespace penwright
