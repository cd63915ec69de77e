#include "hostlink/RecordText.h"
#include "run/RunTest.h"

namespace penwright::test {
namespace {

/// The tool without a display, driven over the store alone.
class LinkRun : public RunTest {
protected:
    void SetUp() override { start({"123,1,HostBox,7,24,Sec"}); }
};

TEST_F(LinkRun, closeIsAnsweredByCloseRemoveAndStatusZero)
{
    send("CLOSE");
    expectUnloaded();
}

TEST_F(LinkRun, startThatWaitsAlreadyIsTaken)
{
    // The store is the host's as well: the command may be there before the tool polls.
    send("START");
    send("close");
    expectUnloaded();
}

TEST_F(LinkRun, everyCommandAndUnknownOnesAreTaken)
{
    for (const std::string command : {"START", "movewin,10,20,0,0", "MOVEWIN,10,20,300", "MOVEWIN,1e99,0,0,0",
                                      "DELETEFILE,c:\\A.IES", "DATACHANGED", "nothing known", ",", ",,,,,,", "\r\n"})
        send(command);
    send(" Close ,now");
    expectUnloaded();
}

TEST_F(LinkRun, sigtermUnloads)
{
    send("START");
    tool().signal(SIGTERM);
    expectUnloaded();
}

TEST_F(LinkRun, signalBeforeStartUnloads)
{
    send("anything");  // taken: the event loop runs
    tool().signal(SIGINT);
    expectUnloaded();
}

TEST_F(LinkRun, hostThatTakesNothingIsWaitedForThreeSeconds)
{
    const auto sent = std::chrono::steady_clock::now();
    send("CLOSE");
    EXPECT_EQ(tool().waitForEnd(), 0);
    const auto waited = std::chrono::steady_clock::now() - sent;
    EXPECT_GE(waited, 3s);
    EXPECT_LT(waited, 20s);
    EXPECT_EQ(hostInbox(), "CloseRemove,PenwrightPE,7");
}

TEST_F(LinkRun, commandsWhileItUnloadsAreTakenAndIgnored)
{
    send("CLOSE");
    ASSERT_TRUE(waitUntil([this] { return !hostInbox().empty(); }));
    send("START");
    send("CLOSE");
    expectUnloaded();
    EXPECT_EQ(hostInbox(), "");
}

TEST_F(LinkRun, storeLockedForGoodDoesNotKeepItAlive)
{
    send("START");
    store().transact([this] {
        write("a value", "that keeps the store locked");
        tool().signal(SIGTERM);
        EXPECT_EQ(tool().waitForEnd(), 0);
    });
    EXPECT_EQ(hostInbox(), "");
}

TEST_F(LinkRun, commandEveryTenMillisecondsDoesNoHarm)
{
    const std::vector<std::string> commands{"START", "MOVEWIN,5,5,700,500", "DATACHANGED", "x", "DELETEFILE,y"};
    for (std::size_t i = 0; i < 500; ++i) {
        write("PenwrightPE|7", commands[i % commands.size()]);
        std::this_thread::sleep_for(10ms);  // the rudeness itself, no wait for anything
    }
    ASSERT_TRUE(waitUntil([this] { return inbox().empty(); }));
    send("CLOSE");
    expectUnloaded();
}

TEST_F(LinkRun, tenMegabytesOfTextDoNoHarm)
{
    send(std::string(10'000'000, 'x'));
    send("START" + std::string(10'000'000, ','));
    send("x" + std::string(5'000'000, '\n'));
    send("CLOSE");
    expectUnloaded();
}

TEST_F(LinkRun, binaryRubbishDoesNoHarm)
{
    std::string rubbish;
    for (int round = 0; round < 200; ++round)
        for (int byte = 0; byte < 256; ++byte)
            rubbish.push_back(static_cast<char>(byte * (round + 1) % 256));
    send(rubbish);
    send("DELETEFILE," + rubbish);
    send("MOVEWIN," + rubbish);
    for (const std::string_view word : kRecordWords)
        write(recordValueName(word, 1), rubbish);
    send("DATACHANGED");
    send("CLOSE");
    expectUnloaded();
}

TEST_F(LinkRun, numbersBeyondAllBoundsDoNoHarm)
{
    // Each ends in the same box of the executor; one stands for all, and "CLOSE" takes it away.
    for (int i = 0; i < 50; ++i)
        send("MOVEWIN,1E400,-1E400,99999999999999999999," + std::string(1000, '9'));
    write("Filename1", "a.ies");
    for (const char *name : {"VertAngles1", "HorAngles1"})
        write(name, "32767,1E400");
    send("DATACHANGED");
    send("CLOSE");
    expectUnloaded();
}

TEST_F(LinkRun, halfARecordDoesNoHarm)
{
    write("Filename1", "a.ies");
    write("OtherData1", "1,1000");
    send("DATACHANGED");
    write("Candela1", "1,2,nonsense");
    send("DATACHANGED");
    send("CLOSE");
    expectUnloaded();
}

/// The tool in a world where no file of its own may grow beyond 200 KB.
class NarrowRun : public RunTest {
protected:
    void SetUp() override { start({"123,1,HostBox,7,24,Sec"}, "offscreen", {"prlimit", "--fsize=200000"}); }

    /// Empties the journal, so that writing goes on at its beginning.
    bool checkpoint()
    {
        return waitUntil([this] {
            return Process({"sqlite3", storePath(), "PRAGMA wal_checkpoint(TRUNCATE)"}).readAll().substr(0, 2) == "0|";
        });
    }
};

TEST_F(NarrowRun, storeThatCannotGrowLeavesTheCommandUntilItCan)
{
    send("START");
    write("large", std::string(300'000, 'x'));
    write("PenwrightPE|7", "CLOSE");
    // Several polls, each of which fails.
    EXPECT_FALSE(waitUntil([this] { return inbox().empty() || tool().hasEnded(); }, 500ms));
    ASSERT_TRUE(checkpoint());
    expectUnloaded();
}

TEST_F(LinkRun, windowThatIsNotThereIsNamedOnce)
{
    send("START");
    send("CLOSE");
    expectUnloaded();
    EXPECT_EQ(tool().readAll(), "PenwrightPE: window 123 is not there; the wizard opens as a window of its own.\n");
}

TEST_F(LinkRun, twoToolsSideBySideTakeOnlyTheirOwnCommands)
{
    Process other({PENWRIGHT_PE, "123,1,OtherBox,8,0,Other"},
                  {{"XDG_CONFIG_HOME", config()},
                   {"XDG_STATE_HOME", stateFolder()},
                   {"QT_QPA_PLATFORM", "offscreen"},
                   {"LSAN_OPTIONS", "suppressions=" LIBRARIES_SUPP}},
                  Process::Errors::Joined);
    send("CLOSE");
    expectUnloaded();
    EXPECT_FALSE(other.hasEnded());
    store().write("Lumentor_PE", "Other", "PenwrightPE|8", "CLOSE");
    std::string text;
    ASSERT_TRUE(waitUntil([&] { return !(text = store().pop("Lumentor_PE", "Other", "OtherBox")).empty(); }));
    EXPECT_EQ(text, "CloseRemove,PenwrightPE,8");
    EXPECT_EQ(other.waitForEnd(), 0);
}

}  // namespace
}  // namespace penwright::test
