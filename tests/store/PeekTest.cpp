#include "store/InjectedCall.h"
#include "store/StoreTest.h"
#include "store/TracedStatements.h"

namespace penwright::test {
namespace {

using PeekTest = StoreTest;

TEST_F(PeekTest, missingValueIsEmpty)
{
    EXPECT_EQ(peek("nothing"), "");
    EXPECT_EQ(pop("nothing"), "");
    EXPECT_EQ(read("nothing"), "(none)");
}

TEST_F(PeekTest, seesItsOwnWritesAndThoseOfOthers)
{
    write("a", "1");
    EXPECT_EQ(peek("a"), "1");
    write("a", "2");
    EXPECT_EQ(peek("a"), "2");
    Peer peer(path);
    peer.sql("UPDATE setting SET data = '3' WHERE name = 'a'");
    EXPECT_EQ(peek("a"), "3");
    peer.sql("DELETE FROM setting");
    EXPECT_EQ(peek("a"), "");
    store().transact([this] { write("a", "4"); });
    EXPECT_EQ(peek("a"), "4");
    store().removeSection("Lumentor_PE", "Sec");
    EXPECT_EQ(peek("a"), "");
}

TEST_F(PeekTest, valuesOfOneNameInTwoSectionsAreTwo)
{
    store().write("ab", "c", "n", "1");
    store().write("a", "bc", "n", "2");
    EXPECT_EQ(store().peek("ab", "c", "n"), "1");
    EXPECT_EQ(store().peek("a", "bc", "n"), "2");
    EXPECT_EQ(store().peek("a", "b", "cn"), "");
}

TEST_F(PeekTest, whatATransactionWroteAndUndidIsNotSeenAfterwards)
{
    write("a", "before");
    EXPECT_NE(errorOf([this] {
                  store().transact([this] {
                      write("a", "within");
                      EXPECT_EQ(peek("a"), "within");
                      EXPECT_EQ(pop("a"), "") << "an inbox is not emptied within another's transaction";
                      throw overflow();
                  });
              }),
              "no error");
    EXPECT_EQ(peek("a"), "before");
}

TEST_F(PeekTest, takingEmptiesOnce)
{
    write("a", "command");
    EXPECT_EQ(pop("a"), "command");
    EXPECT_EQ(pop("a"), "");
    EXPECT_EQ(read("a"), "");
}

TEST_F(PeekTest, tickThatFindsNothingNewAsksForTheVersionAlone)
{
    int others = 0;
    const TracedStatements traced([&others](const std::string &sql) { others += sql != "PRAGMA data_version"; });
    write("a", "");
    EXPECT_EQ(peek("a"), "");
    EXPECT_GT(others, 0);
    others = 0;
    for (int tick = 0; tick < 1000; ++tick) {
        ASSERT_EQ(peek("a"), "");
        ASSERT_EQ(pop("a"), "");
    }
    EXPECT_EQ(others, 0);
}

// Between reading and emptying nobody can write: the command written there would be emptied unread.
TEST_F(PeekTest, takingLocksOthersOutBetweenReadingAndEmptying)
{
    std::unique_ptr<Peer> host;
    std::string intrusion;
    const TracedStatements traced([&](const std::string &sql) {
        if (!host || sql.find("INSERT") == std::string::npos)
            return;
        try {
            intrusion = host->sql("UPDATE setting SET data = 'second'") + "written";
        } catch (const std::runtime_error &failure) {
            intrusion = failure.what();
        }
    });
    write("a", "first");
    host = std::make_unique<Peer>(path);
    host->sql("PRAGMA busy_timeout = 0");
    EXPECT_EQ(pop("a"), "first");
    EXPECT_EQ(intrusion, "UPDATE setting SET data = 'second': error: database is locked");
}

ssize_t failingRead(int, void *, size_t, off_t)
{
    errno = EIO;
    return -1;
}

TEST_F(PeekTest, storeThatCannotBeReadIsNothingAndTheNextLookTells)
{
    write("a", "");
    Peer(path).sql("UPDATE setting SET data = 'command'");
    {
        const InjectedCall first("pread", &failingRead), second("pread64", &failingRead);
        EXPECT_EQ(peek("a"), std::nullopt);
        EXPECT_EQ(pop("a"), "");
        EXPECT_NE(errorOf([this] { read("a"); }), "no error");
    }
    EXPECT_EQ(peek("a"), "command");
    EXPECT_EQ(pop("a"), "command");
}

}  // namespace
}  // namespace penwright::test
