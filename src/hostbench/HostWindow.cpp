#include "hostbench/HostWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include "hostbench/hostlib/RecordBridge.h"
#include "hostbench/HostStyle.h"
#include "hostbench/LinkLog.h"
#include "platform/RunTimeError.h"

namespace penwright {

namespace {

/// How long closing tools may take: the wait for a command to be taken, twice.
constexpr int kClosingLimit = 6000;

/// What a window manager's frame takes of the screen, generously.
constexpr QSize kFrame{12, 40};

constexpr QSize kComfortableSize{1240, 860};

QSize startSize()
{
    return kComfortableSize.boundedTo(QGuiApplication::primaryScreen()->availableSize() - kFrame);
}

}  // namespace

HostWindow::HostWindow(HostStore &store, QString toolProgram, QWidget *parent)
    : QMainWindow(parent), m_store(store), m_toolProgram(std::move(toolProgram))
{
    setObjectName("hostWindow");
    setWindowTitle(tr("Photometric Toolbox (stand-in host)"));
    auto *whole = new QWidget;
    auto *layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeToolBar());
    layout->addWidget(makeCentre(), 1);
    setCentralWidget(whole);
    followPalette();
    connectButtons();
    enableButtons();
    resize(startSize());
}

HostWindow::~HostWindow() = default;

QPushButton *HostWindow::addButton(QHBoxLayout *row, const char *name, const QString &caption, const QString &tip)
{
    auto *button = new QPushButton(caption);
    button->setObjectName(name);
    button->setToolTip(tip);
    row->addWidget(button);
    return button;
}

QWidget *HostWindow::makeToolBar()
{
    auto *bar = new QWidget;
    bar->setObjectName("toolBar");
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(16, 12, 16, 12);
    row->setSpacing(8);
    m_new = addButton(row, "newFile", tr("New Photometric File..."), tr("Starts the tool in a tab of its own"));
    m_new->setProperty("primary", true);
    row->addStretch();
    m_dataChanged = addButton(row, "sendDataChanged", tr("Send DATACHANGED"),
                              tr("Puts the selected file into the store of the tool shown and tells it"));
    m_deleteFile = addButton(row, "sendDeleteFile", tr("Send DELETEFILE"),
                             tr("Tells the tool shown that the selected file is gone"));
    m_close = addButton(row, "sendClose", tr("Send CLOSE"), tr("Closes the tool shown"));
    return bar;
}

QWidget *HostWindow::makeCentre()
{
    m_panel = new FilePanel(m_files);
    m_text = new QPlainTextEdit;
    m_text->setObjectName("fileText");
    m_text->setAccessibleName(tr("Text of the selected file"));
    m_text->setReadOnly(true);
    m_text->document()->setDocumentMargin(10);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setPlaceholderText(tr("Select a file to see its text, or start with New Photometric File..."));
    m_tabs = new QTabWidget;
    m_tabs->setObjectName("tabs");
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setDrawBase(false);
    m_tabs->addTab(m_text, tr("File Text"));
    m_log = new LinkLog;

    auto *right = new QSplitter(Qt::Vertical);
    right->addWidget(m_tabs);
    right->addWidget(m_log);
    right->setStretchFactor(0, 1);
    // On a small screen the tool gets the room.
    const bool isSmall = startSize() != kComfortableSize;
    right->setSizes({640, isSmall ? 90 : 150});
    right->setChildrenCollapsible(false);
    auto *centre = new QSplitter;
    centre->addWidget(m_panel);
    centre->addWidget(right);
    centre->setStretchFactor(1, 1);
    centre->setSizes({isSmall ? 190 : 240, 960});
    centre->setChildrenCollapsible(false);
    centre->setContentsMargins(16, 12, 16, 16);
    centre->setHandleWidth(12);
    right->setHandleWidth(12);
    return centre;
}

void HostWindow::connectButtons()
{
    connect(m_new, &QPushButton::clicked, this, &HostWindow::startTool);
    connect(m_dataChanged, &QPushButton::clicked, this, &HostWindow::sendDataChanged);
    connect(m_deleteFile, &QPushButton::clicked, this, &HostWindow::sendDeleteFile);
    connect(m_close, &QPushButton::clicked, this, [this] { shownTool()->run().tool().sendClose(); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &HostWindow::enableButtons);
    connect(m_panel, &FilePanel::selectionChanged, this, [this] {
        showSelectedText();
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
    address.section = "Host_" + std::to_string(QCoreApplication::applicationPid()) + '_' + tag;

    auto *tab = new ToolTab(*m_tabs, m_store, address);
    m_tools.append(tab);
    connect(&tab->run(), &ToolRun::logged, this,
            [this, tab](ToolRun::Line line, const QString &text) { m_log->append(tab->run().name(), line, text); });
    connect(&tab->run(), &ToolRun::commandTaken, this, [this, tab](const ToolCommand &command) { take(tab, command); });
    connect(&tab->run(), &ToolRun::recordsWanted, this, [this, tab] { storeSelected(tab); });
    // Queued: a tool that cannot be started ends before its tab has begun.
    connect(
        &tab->run(), &ToolRun::ended, this, [this, tab] { removeTool(tab); }, Qt::QueuedConnection);
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

void HostWindow::take(ToolTab *tab, const ToolCommand &command)
{
    if (bringsRecord(command.word))
        takeRecord(tab, isSavedOnDisk(command.word));
    if (expectsClose(command.word))
        tab->run().tool().sendClose();
    emit commandDone(tab, command);
}

void HostWindow::takeRecord(ToolTab *tab, bool isSaved)
{
    try {
        for (const LoadedRecord &read : tab->run().tool().loadRecords()) {
            const QString name = QString::fromStdString(read.record.filename);
            if (!read.problem.empty())
                note(tab, tr("%1: %2").arg(name, QString::fromStdString(read.problem)));
            else if (!addFile({photometricRecord(read.record), isSaved}))
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

void HostWindow::followPalette()
{
    const QString sheet = hostStyleSheet(QApplication::palette());
    if (sheet == styleSheet())
        return;  // setting it would be told as a change again
    setStyleSheet(sheet);
    QPalette own = m_text->palette();
    own.setColor(QPalette::PlaceholderText, quietText(QApplication::palette()));
    m_text->setPalette(own);
}

void HostWindow::closeEvent(QCloseEvent *event)
{
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

void HostWindow::showSelectedText()
{
    const int place = m_panel->selected();
    if (place < 0)
        return m_text->clear();
    try {
        m_text->setPlainText(QString::fromStdString(iesFileText(m_files.at(place).record)));
    } catch (const RunTimeError &error) {
        m_text->setPlainText(QString::fromStdString(error.description()));
    }
}

void HostWindow::enableButtons()
{
    const bool isTool = shownTool() && !m_isClosing;
    const bool isFile = m_panel->selected() >= 0;
    m_new->setEnabled(!m_isClosing);
    m_close->setEnabled(isTool);
    m_dataChanged->setEnabled(isTool && isFile);
    m_deleteFile->setEnabled(isTool && isFile);
}

ToolTab *HostWindow::shownTool() const
{
    return qobject_cast<ToolTab *>(m_tabs->currentWidget());
}

}  // namespace penwright
