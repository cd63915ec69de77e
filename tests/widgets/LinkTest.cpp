#include "widgets/WizardTest.h"

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
        ASSERT_TRUE(QTest::qWaitFor([&] { return log() != before; }));
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

}  // namespace
}  // namespace penwright::test
