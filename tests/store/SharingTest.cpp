#include <algorithm>
#include <sstream>

#include "hostlink/ExchangeStore.h"
#include "hostlink/HostPost.h"
#include "store/StampedRecord.h"
#include "store/StoreTest.h"
#include "support/ToolBench.h"

namespace penwright::test {
namespace {

/// A wait that sleeps between two looks, by the real clock.
struct SleepingWait : EventWait {
    WaitEnd until(const std::function<bool()> &done, std::chrono::milliseconds limit) override
    {
        return waitUntil(done, limit) ? WaitEnd::Done : WaitEnd::TimedOut;
    }
    bool isWaiting() const override { return false; }
    bool isUnloading() const override { return false; }
};

/// Tool and host at one store, each a process of its own.
class SharingTest : public testing::Test {
protected:
    static std::vector<std::string> wordsOf(const std::string &text)
    {
        std::istringstream words(text);
        return {std::istream_iterator<std::string>(words), {}};
    }

    /// Takes commands until `count` of them have been seen or the host has answered.
    std::vector<std::string> takeUntil(const std::function<bool()> &enough, std::vector<std::string> &taken)
    {
        const bool done = waitUntil(
            [&] {
                std::string command = bench.store.pop("Lumentor_PE", "Sec", "Inbox");
                if (!command.empty())
                    taken.push_back(std::move(command));
                return enough();
            },
            60s);
        EXPECT_TRUE(done);
        return taken;
    }

    ToolBench bench;
    const std::string path = bench.folder.file("Lumentor/settings.sqlite3");
    Peer host{path};
    ExchangeStore exchange{bench.state, bench.store, bench.dialogs};
};

TEST_F(SharingTest, hostNeverSeesHalfARecordWhileTheToolSaves)
{
    host.tell("watch");
    for (int i = 1; i <= 1000; ++i) {
        bench.state.PhotFiles(1) = stamped(i);
        if (i == 1000)
            bench.state.PhotFiles(1).Filename = "last";
        ASSERT_EQ(exchange.SaveRecordsToStore(1, 1, 1), 1);
    }
    const std::vector<std::string> seen = wordsOf(host.answer());
    ASSERT_EQ(seen.size(), 4U);
    EXPECT_GE(std::stoi(seen[1]), 1) << "whole records";
    EXPECT_EQ(seen[3], "0") << "half records";
}

TEST_F(SharingTest, toolNeverLoadsHalfARecordWhileTheHostSaves)
{
    host.tell("store 1000");
    int whole = 0, half = 0;
    const bool ended = waitUntil(
        [&] {
            if (exchange.loadRecords())
                return false;
            ++(isWhole(bench.state.PhotFiles(1)) ? whole : half);
            return bench.state.PhotFiles(1).Filename == "last";
        },
        60s);
    EXPECT_TRUE(ended);
    EXPECT_EQ(half, 0);
    EXPECT_GE(whole, 1);
    EXPECT_EQ(host.answer(), "ok");
}

// While the tool waits for the lock, window events run, and with them the host's "DATACHANGED".
TEST_F(SharingTest, recordThatWaitsForALockIsNotReplacedByTheHosts)
{
    bench.state.PhotFiles(1) = stamped(1);
    host.sql("BEGIN EXCLUSIVE");
    bench.store.setBusyWait([this] {
        bench.state.PhotFiles = {stamped(2)};
        host.sql("COMMIT");
        return true;
    });
    EXPECT_EQ(exchange.SaveRecordsToStore(1, 1, 1), 1);
    EXPECT_EQ(bench.state.PhotFiles(1), stamped(2)) << "the lock was never waited for";
    EXPECT_EQ(bench.value("Filename1"), "1");
    EXPECT_EQ(bench.value("Candela1"), "1");
}

TEST_F(SharingTest, everyCommandOfAPoliteHostIsTakenOnceAndInOrder)
{
    host.tell("polite Inbox 300");
    std::vector<std::string> taken;
    takeUntil([&] { return taken.size() == 300; }, taken);
    EXPECT_EQ(host.answer(), "ok");
    for (std::size_t i = 0; i < taken.size(); ++i)
        ASSERT_EQ(taken[i], "c" + std::to_string(i + 1));
    EXPECT_EQ(bench.store.pop("Lumentor_PE", "Sec", "Inbox"), "");
}

// A host that writes every millisecond overwrites what was not yet taken. Each command ends in exactly one of two
// places: taken by the tool, or overwritten as the host saw it.
TEST_F(SharingTest, takingIsAtomicUnderAHostThatWritesEveryMillisecond)
{
    constexpr int kCount = 1000;
    host.tell("flood Inbox " + std::to_string(kCount));
    std::vector<std::string> taken;
    const std::string last = "c" + std::to_string(kCount);
    takeUntil([&] { return !taken.empty() && taken.back() == last; }, taken);
    std::vector<std::string> all = wordsOf(host.answer());
    ASSERT_FALSE(all.empty());
    all.erase(all.begin());
    EXPECT_GT(taken.size(), 1U);
    all.insert(all.end(), taken.begin(), taken.end());
    std::sort(all.begin(), all.end());
    std::vector<std::string> expected;
    for (int i = 1; i <= kCount; ++i)
        expected.push_back("c" + std::to_string(i));
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(all, expected);
}

TEST_F(SharingTest, postEndsWhenTheHostHasTakenTheCommand)
{
    SleepingWait wait;
    HostPost post(bench.state.start, bench.store, wait);
    host.tell("take HostBox");
    EXPECT_EQ(post.postCommand("SendNewDataClose,"), WaitEnd::Done);
    EXPECT_EQ(host.answer(), "SendNewDataClose,PenwrightPE,7");
}

TEST_F(SharingTest, silentHostIsWaitedForALittleOver3Seconds)
{
    SleepingWait wait;
    HostPost post(bench.state.start, bench.store, wait);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(post.postCommand("SendNewDataClose,"), WaitEnd::TimedOut);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 3s);
    EXPECT_EQ(host.sql("SELECT data FROM setting WHERE name = 'HostBox'"), "SendNewDataClose,PenwrightPE,7\n");
}

TEST_F(SharingTest, shellAloneCanPlayTheHost)
{
    const auto shell = [this](const std::string &sql) {
        return Process({"sqlite3", path, ".timeout 5000", sql}, {}, Process::Errors::Joined).readAll();
    };
    EXPECT_EQ(shell("INSERT INTO setting (application, section, name, data) VALUES ('Lumentor_PE', 'Sec', "
                    "'PenwrightPE|7', 'START') ON CONFLICT (application, section, name) DO UPDATE SET data = "
                    "excluded.data;"),
              "");
    EXPECT_EQ(bench.store.pop("Lumentor_PE", "Sec", "PenwrightPE|7"), "START");
    bench.state.PhotFiles(1) = stamped(5);
    exchange.SaveRecordsToStore(1, 1, 1);
    EXPECT_EQ(shell("SELECT name, data FROM setting WHERE section = 'Sec' AND data <> '' ORDER BY position;"),
              "Filename1|5\nKeywords1|0\nTiltIncl1|0\nOtherData1|5,0,0,0,0,0,0,0,0,0\nHorAngles1|1,0\n"
              "VertAngles1|1,0\nCandela1|5\nOptionalData1|5\nPictureFilename1|5\n");
}

// Killed at any moment, the tool leaves one whole record or another.
TEST_F(SharingTest, toolThatIsKilledLeavesAWholeRecord)
{
    for (int round = 0; round < 10; ++round) {
        Process tool({SAVING_TOOL, path});
        const std::string before = bench.value("OptionalData1");
        EXPECT_TRUE(waitUntil([&] { return bench.value("OptionalData1") != before; }, 60s));
        tool.signal(SIGKILL);
        tool.waitForEnd();
        ASSERT_EQ(exchange.loadRecords(), std::nullopt);
        ASSERT_TRUE(isWhole(bench.state.PhotFiles(1)));
    }
    bench.setValue("HostBox", "still writable");
    EXPECT_EQ(bench.value("HostBox"), "still writable");
}

}  // namespace
}  // namespace penwright::test
