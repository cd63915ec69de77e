#include "hostbench/HostWindow.h"

#include <algorithm>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <stdexcept>

#include "hostbench/CommandBar.h"
#include "hostbench/FileView.h"
#include "hostbench/HostKeyboard.h"
#include "hostbench/HostStyle.h"
#include "hostbench/LogPanel.h"
#include "hostlib/RecordBridge.h"
#include "platform/posix/PosixTextFiles.h"
#include "platform/RunTimeError.h"

namespace penwright {

namespace {

/// How long closing tools may take: the wait for a command to be taken, twice.
constexpr int kClosingLimit = 6000;

/// What a window manager's frame takes of the screen, generously.
constexpr QSize kFrame{12, 40};

/// What the sections of this host's tools are named after.
constexpr std::string_view kHostName = "hostbench";

constexpr QSize kComfortableSize{1240, 860};

/// A window less wide has no room for the files beside a tool; one less high, none for the log below it.
constexpr QSize kRoomy{1000, 800};

/// For the screen that the pointer is on, where window managers open windows.
QSize startSize()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return kComfortableSize.boundedTo(screen->availableSize() - kFrame);
}

}  // namespace

HostWindow::HostWindow(HostStore &store, QString toolProgram, QWidget *parent)
    : QMainWindow(parent), m_store(store), m_toolProgram(std::move(toolProgram))
{
    setObjectName("hostWindow");
    setAttribute(Qt::WA_AlwaysShowToolTips);  // while a wizard in it has the keyboard, too
    setWindowTitle(tr("Photometric Toolbox (stand-in host)"));
    auto *whole = new QWidget;
    auto *layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_bar = new CommandBar;
    layout->addWidget(m_bar);
    layout->addWidget(makeCentre(), 1);
    setCentralWidget(whole);
    m_keyboard = new HostKeyboard(*this);
    m_tabs->tabBar()->installEventFilter(this);
    followPalette();
    connectButtons();
    enableButtons();
    resize(startSize());
    makeRoom();
    removeLeftSections();
}

HostWindow::~HostWindow() = default;

void HostWindow::removeLeftSections()
{
    try {
        m_store.removeLeftSections(kHostName);
    } catch (const std::runtime_error &) {
        // What killed hosts have left is in nobody's way; the next host tries again.
    }
}

QWidget *HostWindow::makeCentre()
{
    m_panel = new FilePanel(m_files, std::make_shared<PosixTextFiles>());
    m_view = new FileView;
    m_tabs = new QTabWidget;
    m_tabs->setObjectName("tabs");
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setDrawBase(false);
    m_tabs->addTab(m_view, tr("File"));
    m_log = new LogPanel;

    auto *right = new QSplitter(Qt::Vertical);
    right->addWidget(m_tabs);
    right->addWidget(m_log);
    right->setStretchFactor(0, 1);
    // Sizes in proportion; nothing gets less than it needs.
    connect(m_log, &LogPanel::folded, right, [right](bool isFolded) { right->setSizes({640, isFolded ? 1 : 150}); });
    m_log->setFolded(startSize().height() < kRoomy.height());
    right->setChildrenCollapsible(false);
    auto *centre = new QSplitter;
    centre->addWidget(m_panel);
    centre->addWidget(right);
    centre->setStretchFactor(1, 1);
    centre->setSizes({240, 960});
    centre->setChildrenCollapsible(false);
    centre->setContentsMargins(16, 10, 16, 10);
    for (QSplitter *splitter : {right, centre})
        splitter->setHandleWidth(10);
    return centre;
}

void HostWindow::connectButtons()
{
    connect(m_bar, &CommandBar::newFile, this, &HostWindow::startTool);
    connect(m_bar, &CommandBar::filesShown, m_panel, &QWidget::setVisible);
    connect(m_bar, &CommandBar::sendDataChanged, this, &HostWindow::sendDataChanged);
    connect(m_bar, &CommandBar::sendDeleteFile, this, &HostWindow::sendDeleteFile);
    connect(m_bar, &CommandBar::sendClose, this, [this] { shownTool()->run().tool().sendClose(); });
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        makeRoom();
        enableButtons();
    });
    connect(m_panel, &FilePanel::selectionChanged, this, [this] {
        showSelected();
        enableButtons();
    });
}

ToolTab *HostWindow::startTool()
{
    const std::string tag = std::to_string(++m_started);
    ToolAddress address;
    address.inbox = "HostInbox";
    address.tag = tag;
    // A running tool will bring a file: counting it keeps "new_file_" numbers apart and the list within its limit.
    address.openFiles = m_files.count() + toolCount();
    address.section = HostStore::ownSection(kHostName, tag);

    auto *tab = new ToolTab(*m_tabs, m_store, address);
    m_tools.append(tab);
    m_panel->setWizardsAtWork(toolCount());
    connect(&tab->run(), &ToolRun::logged, this,
            [this, tab](ToolRun::Line line, const QString &text) { m_log->append(tab->run().name(), line, text); });
    connect(&tab->run(), &ToolRun::commandTaken, this, [this, tab](const ToolCommand &command) { obey(tab, command); });
    connect(&tab->run(), &ToolRun::recordsWanted, this, [this, tab] { storeSelected(tab); });
    // Queued: a tool that cannot be started ends before its tab has begun.
    connect(
        &tab->run(), &ToolRun::ended, this, [this, tab] { removeTool(tab); }, Qt::QueuedConnection);
    // The room that the tab has made comes with the layout; the tool is to open at its size at once.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    tab->start(m_toolProgram);
    enableButtons();
    return tab;
}

bool HostWindow::addFile(HeldFile file)
{
    const int place = m_files.add(std::move(file));
    if (place >= 0)
        m_panel->showFiles(place);
    return place >= 0;
}

void HostWindow::storeSelected(ToolTab *tab)
{
    if (m_panel->selected() < 0)
        return;
    try {
        tab->run().tool().storeRecords({hostRecord(m_files.at(m_panel->selected()).record)});
    } catch (const std::exception &error) {
        note(tab, QString::fromStdString(error.what()));
    }
}

void HostWindow::sendDataChanged()
{
    ToolTab *tab = shownTool();
    storeSelected(tab);
    tab->run().tool().sendDataChanged();
}

void HostWindow::sendDeleteFile()
{
    shownTool()->run().tool().sendDeleteFile(m_files.at(m_panel->selected()).record.Filename);
}

void HostWindow::obey(ToolTab *tab, const ToolCommand &command)
{
    if (bringsRecord(command.word)) {
        tab->setHandedOver();
        readRecord(tab, isSavedOnDisk(command.word));
    }
    if (expectsClose(command.word))
        tab->run().tool().sendClose();
    emit commandDone(tab, command);
}

void HostWindow::readRecord(ToolTab *tab, bool isSaved)
{
    try {
        for (const LoadedRecord &read : tab->run().tool().loadRecords()) {
            const QString name = QString::fromStdString(read.record.filename);
            if (!read.problem.empty())
                note(tab, tr("%1: %2").arg(name, QString::fromStdString(read.problem)));
            else if (!addFile({photometricRecord(read.record), isSaved, {}}))
                note(tab, tr("%1 is not added: the list is full").arg(name));
        }
    } catch (const std::exception &error) {
        note(tab, QString::fromStdString(error.what()));
    }
}

void HostWindow::removeTool(ToolTab *tab)
{
    emit toolEnded(tab);
    m_tools.removeOne(tab);
    m_panel->setWizardsAtWork(toolCount());
    m_keyboard->takeFrom(tab->area().windowNumber());
    m_tabs->removeTab(m_tabs->indexOf(tab));
    tab->deleteLater();
    enableButtons();
    if (m_isClosing && m_tools.isEmpty())
        close();
}

bool HostWindow::event(QEvent *event)
{
    const bool isDone = QMainWindow::event(event);
    // Where a style sheet rules, only the application's change is told.
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange)
        followPalette();
    return isDone;
}

bool HostWindow::eventFilter(QObject *object, QEvent *event)
{
    // Who has clicked on a tool's tab types into its wizard next. At the release: the wizard lets go at a press
    // outside.
    if (object == m_tabs->tabBar() && event->type() == QEvent::MouseButtonRelease)
        if (ToolTab *tab = shownTool())
            HostKeyboard::giveToWizardIn(tab->area().windowNumber());
    return QMainWindow::eventFilter(object, event);
}

void HostWindow::followPalette()
{
    const QString sheet = hostStyleSheet(QApplication::palette());
    if (sheet == styleSheet())
        return;  // setting it would be told as a change again
    setStyleSheet(sheet);
    m_view->followPalette();
}

void HostWindow::closeEvent(QCloseEvent *event)
{
    if (!m_isClosing && !m_panel->mayClose(wizardsAtWork()))
        return event->ignore();
    m_panel->stopOpening();
    if (m_tools.isEmpty())
        return QMainWindow::closeEvent(event);
    event->ignore();
    if (!std::exchange(m_isClosing, true))
        closeTools();
}

void HostWindow::closeTools()
{
    enableButtons();
    for (ToolTab *tab : std::as_const(m_tools))
        tab->run().tool().sendClose();
    QTimer::singleShot(kClosingLimit, this, [this] {
        for (ToolTab *tab : std::as_const(m_tools))
            tab->run().kill();
    });
}

void HostWindow::note(ToolTab *tab, const QString &text)
{
    m_log->append(tab->run().name(), ToolRun::Line::Note, text);
}

void HostWindow::showSelected()
{
    const int place = m_panel->selected();
    place < 0 ? m_view->clear() : m_view->showFile(m_files.shared(place));
}

bool HostWindow::isNarrow() const
{
    return width() < kRoomy.width();
}

void HostWindow::makeRoom()
{
    m_bar->setFilesShown(!isNarrow() || !shownTool());
}

void HostWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    if (std::exchange(m_wasNarrow, isNarrow()) == isNarrow())
        return;
    makeRoom();
    enableButtons();
}

void HostWindow::enableButtons()
{
    m_bar->follow({.isClosing = m_isClosing,
                   .isToolRunning = !m_tools.isEmpty(),
                   .isToolShown = shownTool() != nullptr,
                   .isFileSelected = m_panel->selected() >= 0,
                   .isNarrow = isNarrow()});
}

int HostWindow::wizardsAtWork() const
{
    return static_cast<int>(
        std::count_if(m_tools.begin(), m_tools.end(), [](const ToolTab *tab) { return tab->isAtWork(); }));
}

ToolTab *HostWindow::shownTool() const
{
    return qobject_cast<ToolTab *>(m_tabs->currentWidget());
}

}  // namespace penwright
