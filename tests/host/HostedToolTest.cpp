// The library as a host uses it, with a tool that is told what to do.
#include <penwright_host/HostedTool.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright {
namespace {

constexpr std::string_view kApplication = "Lumentor_PE";

class HostedToolTest : public testing::Test {
protected:
    HostedToolTest()
    {
        setenv("XDG_CONFIG_HOME", m_folder.path().c_str(), 1);
        setenv("XDG_STATE_HOME", m_folder.path().c_str(), 1);
        setenv("FAKE_TOOL_LOG", m_folder.file("log").c_str(), 1);
        m_tool.onText([this](LinkWay way, const std::string &text) {
            m_texts.push_back((way == LinkWay::ToTool ? "> " : "< ") + text);
        });
        m_tool.onCommand([this](const ToolCommand &command) {
            m_commands.push_back(command);
            m_threads.push_back(std::this_thread::get_id());
            if (expectsClose(command.word))
                m_tool.sendClose();
        });
        m_tool.onEnded([this] { ++m_ends; });
    }

    static void behave(const char *behaviour) { setenv("FAKE_TOOL", behaviour, 1); }

    void startAndShow()
    {
        m_tool.start(FAKE_TOOL);
        m_tool.sendStart();
    }

    bool pollUntil(const std::function<bool()> &condition)
    {
        return test::waitUntil([&] {
            m_tool.poll();
            return condition();
        });
    }

    std::vector<Setting> section() { return SqliteSettingsStore(HostStore::userPath()).readAll(kApplication, "Sec"); }

    test::TempFolder m_folder;
    HostStore m_store{m_folder.file("Lumentor/settings.sqlite3")};
    HostedTool m_tool{m_store, {.window = 123, .tag = "7", .section = "Sec"}};
    std::vector<std::string> m_texts;
    std::vector<ToolCommand> m_commands;
    std::vector<std::thread::id> m_threads;
    int m_ends = 0;
};

TEST_F(HostedToolTest, runsAToolToItsEnd)
{
    behave("SendNewDataClose");
    std::vector<LoadedRecord> records;
    m_tool.onCommand([&](const ToolCommand &command) {
        if (bringsRecord(command.word))
            records = m_tool.loadRecords();
        if (expectsClose(command.word))
            m_tool.sendClose();
    });
    startAndShow();
    EXPECT_EQ(m_tool.run(), 0);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].problem, "");
    EXPECT_EQ(records[0].record.filename, "/tmp/of tool 7.ies");
    EXPECT_EQ(records[0].record.keywords, std::vector<std::string>{"IESNA:LM-63-2002"});
    EXPECT_EQ(m_texts, (std::vector<std::string>{"> START", "< SendNewDataClose,PenwrightPE,7", "> CLOSE",
                                                 "< CloseRemove,PenwrightPE,7"}));
    EXPECT_EQ(m_ends, 1);
    EXPECT_TRUE(section().empty());
}

TEST_F(HostedToolTest, callsBackOnTheThreadThatPolls)
{
    behave("SendNewDataClose");
    startAndShow();
    std::thread::id polling;
    std::thread([&] {
        polling = std::this_thread::get_id();
        m_tool.run();
    }).join();
    ASSERT_EQ(m_threads.size(), 2U);
    EXPECT_EQ(m_threads, std::vector<std::thread::id>(2, polling));
}

TEST_F(HostedToolTest, pollingWithinACallbackDoesNothing)
{
    behave("SendNewDataClose");
    std::vector<std::string> textsWithin;
    m_tool.onCommand([&](const ToolCommand &command) {
        if (command.word != ToolWord::SendNewDataClose)
            return;
        m_tool.sendClose();
        EXPECT_TRUE(m_tool.poll());
        textsWithin = m_texts;
    });
    startAndShow();
    EXPECT_EQ(m_tool.run(), 0);
    EXPECT_EQ(textsWithin, (std::vector<std::string>{"> START", "< SendNewDataClose,PenwrightPE,7"}));
}

TEST_F(HostedToolTest, whatAnEarlierRunLeftIsNotMistakenForThisOne)
{
    SqliteSettingsStore before(HostStore::userPath());
    before.write(kApplication, "Sec", "HostInbox", "CloseRemove,PenwrightPE,7");
    before.write(kApplication, "Sec", "PenwrightPE|7", "CLOSE");
    before.write(kApplication, "Sec", "Filename1", "old.ies");
    behave("wait");
    startAndShow();
    EXPECT_TRUE(pollUntil([&] { return m_tool.isAllTaken(); }));
    EXPECT_EQ(m_texts, std::vector<std::string>{"> START"});
    EXPECT_TRUE(m_tool.loadRecords().empty());
    m_tool.sendClose();
    EXPECT_EQ(m_tool.run(), 0);
}

TEST_F(HostedToolTest, aToolThatDiesIsToldOnceWithWhatItHandedOver)
{
    behave("last words");
    std::string name;
    m_tool.onCommand([&](const ToolCommand &) { name = m_tool.loadRecords().at(0).record.filename; });
    startAndShow();
    EXPECT_EQ(m_tool.run(), -1);
    EXPECT_EQ(name, "/tmp/last words.ies");
    EXPECT_FALSE(m_tool.poll());
    EXPECT_EQ(m_ends, 1);
}

TEST_F(HostedToolTest, theEndIsToldEvenWhenACallbackFails)
{
    behave("last words");
    m_tool.onCommand([](const ToolCommand &) { throw std::logic_error("of the host's own"); });
    startAndShow();
    m_tool.poll();
    siginfo_t end;
    ASSERT_EQ(waitid(P_PID, static_cast<id_t>(m_tool.processId()), &end, WEXITED | WNOWAIT), 0);
    EXPECT_THROW(m_tool.poll(), std::logic_error);
    EXPECT_FALSE(m_tool.isRunning());
    EXPECT_EQ(m_ends, 1);
}

TEST_F(HostedToolTest, killingEndsIt)
{
    behave("silence");
    startAndShow();
    ASSERT_TRUE(pollUntil([&] { return m_tool.isAllTaken(); }));
    EXPECT_TRUE(m_tool.isRunning());
    m_tool.kill();
    EXPECT_EQ(m_tool.run(), -1);
    EXPECT_EQ(m_ends, 1);
}

TEST_F(HostedToolTest, destroyingTakesTheToolAndItsSectionAlong)
{
    behave("silence");
    auto tool = std::make_unique<HostedTool>(m_store, ToolAddress{.window = 123, .tag = "8", .section = "Sec"});
    tool->start(FAKE_TOOL);
    tool->sendStart();
    ASSERT_TRUE(test::waitUntil([&] { return tool->poll() && tool->isAllTaken(); }));
    const auto process = static_cast<pid_t>(tool->processId());
    EXPECT_EQ(kill(process, 0), 0);
    tool.reset();
    EXPECT_EQ(kill(process, 0), -1);
    EXPECT_TRUE(section().empty());
}

TEST_F(HostedToolTest, aProgramThatIsNotThereIsAnError)
{
    try {
        m_tool.start("/nowhere/PenwrightPE");
        FAIL() << "started";
    } catch (const std::runtime_error &error) {
        EXPECT_STREQ(error.what(), "/nowhere/PenwrightPE: No such file or directory");
    }
    EXPECT_FALSE(m_tool.isRunning());
    EXPECT_FALSE(m_tool.poll());
    EXPECT_EQ(m_ends, 0);
}

TEST_F(HostedToolTest, anAddressThatNoToolTakesIsAnErrorAndTouchesNothing)
{
    SqliteSettingsStore(HostStore::userPath()).write(kApplication, "Sec", "Filename1", "kept");
    HostedTool tool(m_store, {.window = 123, .inbox = "Filename1", .section = "Sec"});
    try {
        tool.start(FAKE_TOOL);
        FAIL() << "started";
    } catch (const std::runtime_error &error) {
        EXPECT_STREQ(error.what(), "the inbox is \"Filename1\", a value of a record");
    }
    EXPECT_EQ(tool.processId(), -1);
    EXPECT_EQ(section().size(), 1U);
}

TEST_F(HostedToolTest, startingTwiceIsAnError)
{
    behave("wait");
    startAndShow();
    EXPECT_THROW(m_tool.start(FAKE_TOOL), std::runtime_error);
    m_tool.sendClose();
    EXPECT_EQ(m_tool.run(), 0);
}

TEST_F(HostedToolTest, freshRecordsAreThereBeforeTheRequestIsTaken)
{
    behave("RefreshData");
    HostRecord record;
    record.filename = "fresh";
    m_tool.onRecordsWanted([&] { m_tool.storeRecords({record}); });
    startAndShow();
    // "RefreshData" is taken in the turn that told of it; what it then read it notes before it listens again.
    ASSERT_TRUE(pollUntil([&] { return m_texts.size() >= 2; }));
    m_tool.sendClose();
    EXPECT_EQ(m_tool.run(), 0);
    EXPECT_NE(test::contentOf(m_folder.file("log")).find("then Filename1 is fresh\n"), std::string::npos);
}

TEST_F(HostedToolTest, aRecordThatDoesNotParseIsNamed)
{
    HostRecord record;
    record.filename = "a.ies";
    m_tool.storeRecords({record});
    SqliteSettingsStore(HostStore::userPath()).write(kApplication, "Sec", "VertAngles1", "3,0");
    ASSERT_EQ(m_tool.loadRecords().size(), 1U);
    EXPECT_EQ(m_tool.loadRecords()[0].problem, "Problem parsing vertical angles");
    EXPECT_EQ(m_tool.loadRecords()[0].record.filename, "a.ies");
}

TEST(HostStore, aStoreThatCannotBeOpenedIsAnErrorWithItsName)
{
    try {
        HostStore store("/proc/nowhere/settings.sqlite3");
        FAIL() << "opened";
    } catch (const std::runtime_error &error) {
        EXPECT_EQ(std::string(error.what()).rfind("/proc/nowhere/settings.sqlite3: ", 0), 0U) << error.what();
    }
}

}  // namespace
}  // namespace penwright
