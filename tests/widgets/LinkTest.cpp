#include "widgets/WizardTest.h"

#include <cerrno>

#include "hostlink/RecordText.h"
#include "support/SampleRecords.h"
#include "support/SpinUntil.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {
namespace {

/// Commands as they come: through the store and the poll.
class Link : public WizardTest {
protected:
    /// Sends a command and lets the window take and execute it.
    void obey(const std::string &command)
    {
        const QString before = log();
        sendCommand(command);
        ASSERT_TRUE(spinUntil([&] { return log() != before; }));
    }
    QString log() { return find<QPlainTextEdit>("txtCmds")->toPlainText(); }
};

TEST_F(Link, startStopsTheDeathTimerAndShowsPageOne)
{
    loadWindow();
    window->startDeathTimer();
    obey("START");
    EXPECT_FALSE(find<QTimer>("tmrDeath")->isActive());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(shownPage(), kLampPage);
}

TEST_F(Link, commandsAreTakenFromTheInboxAndLoggedLineByLine)
{
    loadWindow();
    obey("nothing,known");
    EXPECT_EQ(store.read("Lumentor_PE", "Sec", "PenwrightPE|7"), "");
    obey("DATACHANGED");
    EXPECT_EQ(log(), "nothing,known\nDATACHANGED\nNo data or error -1\n");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Link, logKeepsItsLatestThousandLines)
{
    loadWindow();
    for (int i = 1; i <= 1003; ++i)
        window->link().msbCmd("x" + std::to_string(i));
    EXPECT_EQ(log().count('\n'), 1000);
    EXPECT_TRUE(log().startsWith("x4\n"));
    EXPECT_TRUE(log().endsWith("x1003\n"));
}

TEST_F(Link, refreshThatFailsIsInTheLogAtOnce)
{
    startWizard();
    QTimer::singleShot(0, window.get(), [this] { store.write("Lumentor_PE", "Sec", "HostBox", ""); });
    window->operations().refresh();
    EXPECT_EQ(log(), "No data error: no file\n");
}

TEST_F(Link, closeUnloadsTellsTheHostAndEnds)
{
    startWizard();
    sendCommand("CLOSE");
    EXPECT_EQ(runUntilEnd(), 0);
    EXPECT_EQ(taken, std::vector<std::string>{"CloseRemove,PenwrightPE,7"});
}

TEST_F(Link, deleteFileOfAReceivedRecordUnloads)
{
    state.CandelaWorkRecord.reset(1);
    state.CandelaWorkRecord(1).Filename = "C:\\a.ies";
    startWizard();
    sendCommand("DELETEFILE,c:\\A.IES");
    EXPECT_EQ(runUntilEnd(), 0);
    EXPECT_EQ(taken, std::vector<std::string>{"CloseRemove,PenwrightPE,7"});
}

TEST_F(Link, commandsThatComeWhileUnloadingAreLoggedAndIgnored)
{
    startWizard();
    window->ShowPage(kCandelaPage);
    closing.begin();
    obey("START");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(log(), "START\n");
}

TEST_F(Link, vanishedHostIsNotTold)
{
    startWizard();
    QTimer::singleShot(0, &closing, [this] { closing.hostVanished(); });
    EXPECT_EQ(runUntilEnd(), 0);
    EXPECT_TRUE(taken.empty());
    EXPECT_EQ(hostInbox(), "");
}

TEST_F(Link, hostThatTakesNothingIsWaitedForThreeSeconds)
{
    startWizard();
    QTimer::singleShot(0, &closing, [this] { closing.begin(); });
    QTimer bound;
    QObject::connect(&bound, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    bound.start(20000);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_GE(clock.elapsed(), 3000);
    EXPECT_EQ(hostInbox(), "CloseRemove,PenwrightPE,7");
}

TEST_F(Link, commandRunsWhileADialogIsOpen)
{
    useRealDialogs();
    startWizard();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!QApplication::activeModalWidget())
            return;
        if (log().isEmpty())
            sendCommand("anything");
        else
            static_cast<QDialog *>(QApplication::activeModalWidget())->reject();
    });
    look.start(5);
    click("cmdCancel");
    EXPECT_EQ(log(), "anything\n");
}

TEST_F(Link, closeIsObeyedUnderTheMessageOfAnEarlierCommand)
{
    useRealDialogs();
    startWizard();
    sendCommand("MOVEWIN,99999999999,0,0,0");
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!QApplication::activeModalWidget())
            return;
        look.stop();
        sendCommand("CLOSE");
    });
    look.start(5);
    EXPECT_EQ(runUntilEnd(), 0);
    EXPECT_EQ(taken, std::vector<std::string>{"CloseRemove,PenwrightPE,7"});
}

/// Something open over the wizard, or nothing, with what makes it so.
struct Situation {
    std::string name;
    std::function<void(WizardWindow &)> open;
    friend void PrintTo(const Situation &situation, std::ostream *out) { *out << situation.name; }
};

void press(WizardWindow &window, const char *button)
{
    window.findChild<QPushButton *>(button)->click();
}

void saveAs(WizardWindow &window)
{
    window.ShowPage(kFinishPage);
    press(window, "cmdSaveAs");
}

/// Chooses a name in the save dialog once it is there, so that the box about the failure follows.
void saveAsWhatCannotBeWritten(WizardWindow &window)
{
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&look] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            look.stop();
            dialog->findChild<QLineEdit *>("fileNameEdit")->setText("/full/a.ies");
            static_cast<QDialog *>(dialog)->accept();
        }
    });
    look.start(5);
    saveAs(window);
}

const Situation kSituations[] = {
    {"hidden", [](WizardWindow &window) { window.hide(); }},
    {"page1", [](WizardWindow &window) { window.ShowPage(0); }},
    {"page2", [](WizardWindow &window) { window.ShowPage(1); }},
    {"page3", [](WizardWindow &window) { window.ShowPage(2); }},
    {"page4", [](WizardWindow &window) { window.ShowPage(3); }},
    {"page5", [](WizardWindow &window) { window.ShowPage(4); }},
    {"page6", [](WizardWindow &window) { window.ShowPage(5); }},
    {"list", [](WizardWindow &window) { window.findChild<QComboBox *>("lmpCmbShape")->showPopup(); }},
    {"menu",
     [](WizardWindow &window) {
         QMenu menu(&window);
         menu.addAction("entry");
         menu.exec();
     }},
    {"cancelQuestion", [](WizardWindow &window) { press(window, "cmdCancel"); }},
    {"warnings",
     [](WizardWindow &window) {
         window.dlgWarn().Add("a warning");
         window.dlgWarn().showModal();
     }},
    {"saveDialog", saveAs},
    {"retryBox", saveAsWhatCannotBeWritten},
    {"post",
     [](WizardWindow &window) {
         window.ShowPage(kFinishPage);
         press(window, "cmdUnname");
     }},
};

class LinkUnder : public WizardTest {
protected:
    /// Whether the situation has come about.
    bool isThere(const std::string &name)
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (name == "retryBox")
            return qobject_cast<QMessageBox *>(modal) && modal->windowTitle() == "Error saving /full/a.ies";
        if (name == "saveDialog")
            return modal && modal->objectName() == "commonDialog";
        if (name == "warnings")
            return modal == &window->dlgWarn();
        if (name == "cancelQuestion")
            return modal && modal->windowTitle() == "Canceling New File Wizard";
        if (name == "list" || name == "menu")
            return QApplication::activePopupWidget();
        return name != "post" || wait.isWaiting();
    }

    /// Opens a situation and acts once when it is there; the status with which the program ends, -77 when it does not.
    int openAnd(const Situation &situation, const std::function<void()> &act)
    {
        useRealDialogs();
        files.failure = ENOSPC;
        state.PhotFiles(1).Keywords = {"IESNA:LM-63-2002"};
        state.CandelaWorkRecord.reset(1);
        state.CandelaWorkRecord(1).Filename = "of the host.ies";
        startWizard();
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (!isThere(situation.name))
                return;
            look.stop();
            act();
        });
        // A host that takes nothing but the last word keeps a post waiting.
        QTimer host;
        QObject::connect(&host, &QTimer::timeout, [this] {
            if (hostInbox() == "CloseRemove,PenwrightPE,7")
                taken.push_back(store.pop("Lumentor_PE", "Sec", "HostBox"));
        });
        host.start(5);
        QTimer::singleShot(0, window.get(), [&] {
            look.start(5);
            situation.open(*window);
        });
        QTimer::singleShot(20000, &look, [] { QCoreApplication::exit(-77); });
        return QApplication::exec();
    }
};

enum class End { Close, DeleteFile, HostGone };

class LinkEnds : public LinkUnder, public testing::WithParamInterface<std::tuple<Situation, End>> {};

TEST_P(LinkEnds, whateverIsOpen)
{
    const auto &[situation, end] = GetParam();
    const auto makeItEnd = [this, by = end] {
        if (by == End::HostGone)
            closing.hostVanished();
        else
            sendCommand(by == End::Close ? "CLOSE" : "DELETEFILE,Of The Host.IES");
    };
    EXPECT_EQ(openAnd(situation, makeItEnd), 0);
    const bool isTold = end != End::HostGone;
    EXPECT_EQ(taken, isTold ? std::vector<std::string>{"CloseRemove,PenwrightPE,7"} : std::vector<std::string>{});
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(files.paths.size(), situation.name == "retryBox" ? 1u : 0u);
    if (situation.name != "post")
        EXPECT_EQ(store.read("Lumentor_PE", "Sec", "Filename1", "(none)"), "(none)");
}

std::string nameOfEnd(const testing::TestParamInfo<std::tuple<Situation, End>> &row)
{
    constexpr const char *kBy[]{"OnClose", "OnDeleteFile", "HostGone"};
    const auto &[situation, end] = row.param;
    return situation.name + kBy[static_cast<int>(end)];
}

INSTANTIATE_TEST_SUITE_P(EverySituation, LinkEnds,
                         testing::Combine(testing::ValuesIn(kSituations),
                                          testing::Values(End::Close, End::DeleteFile, End::HostGone)),
                         nameOfEnd);

class LinkGoesOn : public LinkUnder, public testing::WithParamInterface<Situation> {
protected:
    /// Sends a command and waits until it is in the log with all that it logs of itself.
    void obeyMeanwhile(const std::string &command, const QString &logged)
    {
        const auto *log = find<QPlainTextEdit>("txtCmds");
        sendCommand(command);
        ASSERT_TRUE(QTest::qWaitFor([&] { return log->toPlainText().endsWith(logged); }, 10000)) << command;
    }
};

INSTANTIATE_TEST_SUITE_P(EverySituation, LinkGoesOn, testing::ValuesIn(kSituations),
                         [](const auto &row) { return row.param.name; });

TEST_P(LinkGoesOn, underWhateverIsOpen)
{
    PhotometricRecord fresh = smallRecord();
    fresh.Filename = "of the host.ies";
    const auto commands = [&] {
        writeRecordTexts(fresh, [this](std::string_view word, const std::string &text) {
            store.write("Lumentor_PE", "Sec", recordValueName(word, 1), text);
        });
        obeyMeanwhile("DATACHANGED", "Updated data received and used\n");
        EXPECT_EQ(state.PhotFiles(1).Candela, fresh.Candela);
        EXPECT_EQ(state.CandelaWorkRecord(1).Candela, fresh.Candela);
        EXPECT_TRUE(isThere(GetParam().name));
        obeyMeanwhile("DELETEFILE,another.ies", "DELETEFILE,another.ies\n");
        EXPECT_FALSE(closing.isClosing());
        EXPECT_TRUE(isThere(GetParam().name));
        const QWidget *modal = QApplication::activeModalWidget();
        obeyMeanwhile("START", "START\n");
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(shownPage(), kLampPage);
        EXPECT_EQ(QApplication::activeModalWidget(), modal);
        EXPECT_EQ(wait.isWaiting(), GetParam().name == "post");
        sendCommand("CLOSE");
    };
    EXPECT_EQ(openAnd(GetParam(), commands), 0);
    EXPECT_EQ(taken, std::vector<std::string>{"CloseRemove,PenwrightPE,7"});
    EXPECT_FALSE(window->isVisible());
}

}  // namespace
}  // namespace penwright::test
