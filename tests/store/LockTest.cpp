#include <fcntl.h>

#include <chrono>

#include "store/InjectedCall.h"
#include "store/StoreTest.h"

namespace penwright::test {
namespace {

/// A store whose writing another process has locked.
class LockTest : public StoreTest {
protected:
    LockTest() { host.sql("BEGIN EXCLUSIVE"); }

    std::string lockedError() const { return "55\n" + path + ": database is locked"; }

    Peer host{pathOfAStoreWithAValue()};
    int turns = 0;

private:
    /// The other process opens the file as soon as it runs, so that the file is there before.
    std::string pathOfAStoreWithAValue()
    {
        write("a", "before");
        return path;
    }
};

TEST_F(LockTest, writeRunsTheHookUntilTheLockIsGone)
{
    store().setBusyWait([this] {
        if (++turns == 3)
            host.sql("COMMIT");
        return true;
    });
    write("a", "after");
    EXPECT_EQ(turns, 3);
    EXPECT_EQ(read("a"), "after");
}

TEST_F(LockTest, hookThatAnswersFalseGivesUpAtOnce)
{
    store().setBusyWait([this] { return ++turns, false; });
    EXPECT_EQ(errorOf([this] { write("a", "after"); }), lockedError());
    EXPECT_EQ(errorOf([this] { store().remove("Lumentor_PE", "Sec", "a"); }), lockedError());
    EXPECT_EQ(errorOf([this] { store().removeSection("Lumentor_PE", "Sec"); }), lockedError());
    EXPECT_EQ(turns, 3);
    host.sql("ROLLBACK");
    EXPECT_EQ(read("a"), "before");
}

TEST_F(LockTest, nothingIsOpenWhileTheHookRuns)
{
    store().setBusyWait([this] {
        if (++turns > 1)
            return true;
        EXPECT_EQ(read("a"), "before");
        EXPECT_EQ(peek("a"), "before");
        EXPECT_EQ(pop("a"), "");
        host.sql("COMMIT");
        write("a", "from an event");  // a transaction that were open would refuse this one
        EXPECT_EQ(host.sql("UPDATE setting SET data = data || '!'"), "");
        return true;
    });
    write("b", "after");
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(read("a"), "from an event!");
    EXPECT_EQ(read("b"), "after");
}

TEST_F(LockTest, waitingTransactionRunsItsWritesOnce)
{
    int runs = 0;
    store().setBusyWait([this] {
        if (++turns == 3)
            host.sql("COMMIT");
        return true;
    });
    store().transact([&] {
        ++runs;
        write("a", "after");
    });
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(turns, 3);
}

TEST_F(LockTest, takeLeavesTheCommandForTheNextTick)
{
    EXPECT_EQ(pop("a"), "");
    EXPECT_EQ(peek("a"), "before") << "readers are not held up by a writer";
    EXPECT_EQ(read("a"), "before");
    host.sql("COMMIT");
    EXPECT_EQ(pop("a"), "before");
}

TEST_F(LockTest, writeGivesUpAfter5Seconds)
{
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(errorOf([this] { write("a", "after"); }), lockedError());
    EXPECT_GE(std::chrono::steady_clock::now() - start, 5s);
    host.sql("COMMIT");
    write("a", "after");
    EXPECT_EQ(read("a"), "after");
}

TEST_F(LockTest, hookIsAskedForNoLongerThan5Seconds)
{
    const auto start = std::chrono::steady_clock::now();
    store().setBusyWait([] {
        std::this_thread::sleep_for(20ms);
        return true;
    });
    EXPECT_EQ(errorOf([this] { write("a", "after"); }), lockedError());
    EXPECT_GE(std::chrono::steady_clock::now() - start, 5s);
}

TEST_F(LockTest, hostThatDiesWhileItWritesLeavesTheStoreAsItWas)
{
    host.sql("UPDATE setting SET data = 'half'");
    host.process().signal(SIGKILL);
    host.process().waitForEnd();
    EXPECT_EQ(read("a"), "before");
    EXPECT_EQ(pop("a"), "before");
}

int g_refused = 0;
Peer *g_opener = nullptr;

/// A lock that is refused tells the peer to let go.
int observedLock(int file, int command, void *argument)
{
    const int result = fcntl(file, command, argument);
    if (result == -1 && ++g_refused == 1)
        g_opener->sql("COMMIT; PRAGMA locking_mode = NORMAL; SELECT count(*) FROM setting");
    return result;
}

TEST_F(StoreTest, openingWaitsForAStoreThatIsLockedWhole)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    Peer host(path);
    host.sql(
        "CREATE TABLE setting (position INTEGER PRIMARY KEY, application TEXT NOT NULL, section TEXT NOT NULL, "
        "name TEXT NOT NULL, data TEXT NOT NULL, UNIQUE (application, section, name))");
    host.sql("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
    g_refused = 0;
    g_opener = &host;
    const InjectedCall observed("fcntl", &observedLock);
    EXPECT_EQ(read("a"), "(none)");
    EXPECT_GE(g_refused, 1);
}

TEST_F(StoreTest, openingGivesUpAfter5Seconds)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    Peer host(path);
    host.sql("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; CREATE TABLE mine (x)");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(errorOf([this] { open(); }), "55\n" + path + ": database is locked");
    EXPECT_GE(std::chrono::steady_clock::now() - start, 5s);
    host.sql("COMMIT");
    EXPECT_EQ(host.sql("PRAGMA user_version"), "0\n");
}

}  // namespace
}  // namespace penwright::test
