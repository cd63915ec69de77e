#include <penwright_host/HostedTool.h>

#include <algorithm>
#include <QTimer>

#include "hostlib/RecordBridge.h"
#include "interop/host/Guide.h"
#include "platform/sqlite/SqliteSettingsStore.h"

namespace penwright::test {
namespace {

constexpr std::uint32_t kKeyDelete = 0xffff;

using Words = std::vector<ToolWord>;

/// The real tool, with a host that looks for its commands whenever events run. What the page forbids costs what the
/// page says, and what it warns of may happen.
class Bounds : public Guide {
protected:
    Bounds()
    {
        QObject::connect(&m_look, &QTimer::timeout, [this] { m_tool->poll(); });
        m_look.setInterval(20);
    }

    void startTool(int openFiles = 0)
    {
        m_tool = std::make_unique<HostedTool>(
            m_store, ToolAddress{.window = 1, .tag = "7", .openFiles = openFiles, .section = "Bounds"});
        m_tool->onCommand([this](const ToolCommand &command) { m_words.push_back(command.word); });
        m_tool->start();
        m_look.start();
    }

    void startWizard()
    {
        startTool();
        m_tool->sendStart();
    }

    /// Sends a command and waits until it has been obeyed: the next one is taken after that alone.
    bool send(const std::string &command)
    {
        m_tool->send(command);
        m_tool->send("NOTHING");
        return waitFor([&] { return m_tool->isAllTaken(); });
    }

    bool hasEnded()
    {
        return waitFor([&] { return !m_tool->isRunning(); });
    }

    void closeTool()
    {
        m_tool->sendClose();
        EXPECT_TRUE(hasEnded());
        EXPECT_EQ(m_tool->exitStatus(), 0);
    }

    /// Presses "Finish Unnamed" and reads what the tool hands over.
    HostRecord finish()
    {
        m_display.pressKey(kKeySpace);
        EXPECT_TRUE(waitFor([&] { return m_words == Words{ToolWord::SendNewDataCloseUnnamed}; }));
        return m_tool->loadRecords().at(0).record;
    }

    static HostRecord hostsRecord()
    {
        HostRecord record = hostRecord(sampleLuminaire());
        record.filename = "of the host.ies";
        record.lamps = 7;
        record.optionalData = "of the host";
        return record;
    }

    HostStore m_store;
    std::unique_ptr<HostedTool> m_tool;
    QTimer m_look;
    Words m_words;
};

TEST_F(Bounds, aSecondStartEmptiesTheCandelaTable)
{
    startWizard();
    ASSERT_TRUE(fillPages(5));
    ASSERT_TRUE(send("START"));
    for (int page = 1; page <= 5; ++page) {
        ASSERT_TRUE(waitForPage(page));
        pressNext();
    }
    EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == "Data incomplete!"; }));
    closeTool();
}

TEST_F(Bounds, deleteFileWithoutANameEndsTheToolOncePage5WasReached)
{
    startWizard();
    ASSERT_TRUE(fillPages(3));
    ASSERT_TRUE(send("DELETEFILE,"));
    LuminaireTyper(m_display, sampleLuminaire()).typePage(4);
    pressNext();
    ASSERT_TRUE(waitForPage(5));
    ASSERT_TRUE(send("DELETEFILE,new_file_1"));
    EXPECT_EQ(m_words, Words{});
    m_tool->sendDeleteFile("");
    EXPECT_TRUE(hasEnded());
    EXPECT_EQ(m_words, Words{ToolWord::CloseRemove});
}

TEST_F(Bounds, dataChangedOnTheLastPageHandsOverTheHostsRecord)
{
    startWizard();
    ASSERT_TRUE(fillPages(5));
    HostRecord expected = hostsRecord();
    m_tool->storeRecords({expected});
    ASSERT_TRUE(send("DATACHANGED"));
    expected.filename = "new_file_1";
    const HostRecord record = finish();
    EXPECT_EQ(record.lamps, 7);
    EXPECT_EQ(record.keywords, expected.keywords);
    EXPECT_EQ(record.filename, expected.filename);
    closeTool();
}

TEST_F(Bounds, dataChangedBeforeStartLendsTwoTextsAlone)
{
    startTool();
    m_tool->storeRecords({hostsRecord()});
    m_tool->sendDataChanged();
    m_tool->sendStart();
    ASSERT_TRUE(fillPages(5));
    const HostRecord record = finish();
    EXPECT_EQ(record.optionalData, "of the host");
    EXPECT_EQ(record.pictureFilename, "pendant.png");
    EXPECT_EQ(record.lamps, 2);
    EXPECT_EQ(record.filename, "new_file_1");
    closeTool();
}

TEST_F(Bounds, aLineFeedBehindACommandTakesItsLastLetterAlong)
{
    startTool();
    EXPECT_TRUE(send("CLOSE\n"));
    EXPECT_EQ(m_words, Words{});
    closeTool();
}

TEST_F(Bounds, theLastWordMayStandWhereTheRecordWasTold)
{
    startWizard();
    ASSERT_TRUE(fillPages(5));
    m_look.stop();
    m_display.pressKey(kKeySpace);
    SqliteSettingsStore settings(HostStore::userPath());
    const auto told = [&](const std::string &text) {
        return waitFor([&] { return settings.read("Lumentor_PE", "Bounds", "HostInbox") == text; });
    };
    ASSERT_TRUE(told("SendNewDataClose*,PenwrightPE,7"));
    settings.write("Lumentor_PE", "Bounds", "PenwrightPE|7", "CLOSE");
    ASSERT_TRUE(told("CloseRemove,PenwrightPE,7"));
    EXPECT_EQ(m_tool->loadRecords().at(0).record.filename, "new_file_1");
    m_look.start();
    EXPECT_TRUE(hasEnded());
    EXPECT_EQ(m_words, Words{ToolWord::CloseRemove});
}

TEST_F(Bounds, aRefusalTakesNoCommand)
{
    startTool(25);
    m_tool->sendClose();
    ASSERT_TRUE(waitFor([&] { return m_display.focusedTitle() == "PenwrightPE"; }));
    // Several times as long as a tool needs for its next look.
    EXPECT_FALSE(QTest::qWaitFor([&] { return m_tool->isAllTaken() || !m_tool->isRunning(); }, 1000));
    m_display.pressKey(kKeyReturn);
    EXPECT_TRUE(hasEnded());
    EXPECT_EQ(m_words, Words{ToolWord::ReturnClose});
    EXPECT_EQ(m_tool->exitStatus(), 1);
}

TEST_F(Bounds, recordsMayHoldEqualAnglesEmptyKeywordLinesAndLargeCandelas)
{
    PhotometricRecord luminaire = sampleLuminaire();
    luminaire.Candela(2, 5) = 12'000'000;
    startWizard();
    ASSERT_TRUE(fillPages(2, luminaire));
    for (const std::uint32_t key : {kKeyDown, kKeyDown, kKeyDelete})
        m_display.pressKey(key);
    pressNext();
    ASSERT_TRUE(waitForPage(4));
    for (const std::uint32_t key : {kKeySpace, kKeyTab, kKeyDown, kKeyDown, kKeyDown, kKeyDown, kKeyDown, kKeyTab})
        m_display.pressKey(key);
    m_display.pressKey(kKeyRight);
    m_display.type("10");
    m_display.pressKey(kKeyReturn);
    m_display.pressKey(kKeyTab, kKeyControl);
    m_display.pressKey(kKeyDown);
    m_display.pressKey(kKeyDown);
    pressNext();
    ASSERT_TRUE(waitForPage(5));
    LuminaireTyper(m_display, luminaire).typePage(5);
    pressNext();
    ASSERT_TRUE(waitForPage(6));
    const HostRecord record = finish();
    EXPECT_EQ(record.keywords.at(2), "");
    EXPECT_EQ(record.verticalAngles.at(1), record.verticalAngles.at(2));
    EXPECT_EQ(record.candelaAt(1, 4), 12'000'000);
    closeTool();
}

}  // namespace
}  // namespace penwright::test
