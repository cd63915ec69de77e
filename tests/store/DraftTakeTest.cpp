#include <sys/stat.h>

#include <atomic>
#include <thread>

#include "store/DraftTest.h"

namespace penwright::test {
namespace {

using DraftTakeTest = DraftTest;

TEST_F(DraftTakeTest, draftOfARunThatLivesIsNotOffered)
{
    SqliteDraftStore alive(drafts);
    write(alive, "alive");
    EXPECT_EQ(offered(), "");
    for (const std::string &name : files()) {
        Draft draft;
        SqliteDraftStore other(drafts);
        EXPECT_NE(other.takeOver(name, draft), TakeEnd::Taken) << name;
        other.discard({name, headOf("alive")});
    }
    EXPECT_EQ(files().size(), 2U);
}

TEST_F(DraftTakeTest, draftWhoseLockIsNoFileIsNotOffered)
{
    const std::string lock = pathOf(leave("one") + ".lock");
    std::filesystem::remove(lock);
    ASSERT_EQ(mkfifo(lock.c_str(), 0600), 0);
    EXPECT_EQ(offered(), "");
    std::filesystem::remove(lock);
    EXPECT_EQ(offered(), "one\n");
}

TEST_F(DraftTakeTest, bothAreOfferedTheDraftAndOneGetsIt)
{
    leave("wanted");
    SqliteDraftStore first(drafts);
    SqliteDraftStore second(drafts);
    const std::string name = first.look().free.at(0).name;
    ASSERT_EQ(second.look().free.at(0).name, name);
    Draft draft;
    EXPECT_EQ(first.takeOver(name, draft), TakeEnd::Taken);
    EXPECT_EQ(second.takeOver(name, draft), TakeEnd::InUse);
    second.discard({name, headOf("wanted")});
    EXPECT_EQ(files().size(), 2U);
    EXPECT_EQ(offered(second.look()), "");
}

TEST_F(DraftTakeTest, takenDraftGoesOnAsTheRunsOwn)
{
    const std::string name = leave("one");
    {
        SqliteDraftStore next(drafts);
        write(next, "typed before");
        Draft draft;
        ASSERT_EQ(next.takeOver(name, draft), TakeEnd::Taken);
        EXPECT_EQ(files(), (std::vector<std::string>{name, name + ".lock"})) << "what the run had before is gone";
        write(next, "one, typed on");
    }
    EXPECT_EQ(offered(), "one, typed on\n");
}

TEST_F(DraftTakeTest, takenDraftOfARunThatIsKilledAtOnceIsFreeAgain)
{
    const std::string name = leave("one");
    {
        SqliteDraftStore next(drafts);
        Draft draft;
        ASSERT_EQ(next.takeOver(name, draft), TakeEnd::Taken);
    }
    EXPECT_EQ(offered(), "one\n");
}

TEST_F(DraftTakeTest, draftThatARunLeavesIsFreeForItTooAndItsNextOneIsAnother)
{
    SqliteDraftStore run(drafts);
    run.leave();
    write(run, "first");
    run.leave();
    EXPECT_EQ(offered(run.look()), "first\n");
    write(run, "second");
    EXPECT_EQ(offered(), "first\n");
    Draft draft;
    EXPECT_EQ(run.takeOver(run.look().free.at(0).name, draft), TakeEnd::Taken);
    EXPECT_EQ(draft.head.about, "first");
    EXPECT_EQ(files().size(), 2U) << "the second one gave way";
}

TEST_F(DraftTakeTest, draftThatIsGoneIsGone)
{
    const std::string name = leave("one");
    SqliteDraftStore(drafts).discard({name, headOf("one")});
    Draft draft;
    EXPECT_EQ(SqliteDraftStore(drafts).takeOver(name, draft), TakeEnd::Gone);
    EXPECT_EQ(SqliteDraftStore(drafts).takeOver("../../etc/passwd", draft), TakeEnd::Gone);
    EXPECT_TRUE(files().empty());
}

TEST_F(DraftTakeTest, draftThatAnotherRunHasGoneOnWithIsNotDiscarded)
{
    const std::string name = leave("one");
    const DraftEntry found = SqliteDraftStore(drafts).look().free.at(0);
    {
        SqliteDraftStore another(drafts);
        Draft draft;
        ASSERT_EQ(another.takeOver(name, draft), TakeEnd::Taken);
        another.write({kTime + 1, 2, "one"}, sourceOf(kTexts));
    }
    SqliteDraftStore(drafts).discard(found);
    EXPECT_EQ(offered(), "one\n");
    SqliteDraftStore(drafts).discard({name, {kTime + 1, 2, "one"}});
    EXPECT_TRUE(files().empty());
}

// Two that start at once look at the same drafts at the same time and both want the first.
TEST_F(DraftTakeTest, runsThatStartAtOnceNeverShareADraft)
{
    for (int round = 0; round < 10; ++round) {
        leave(std::to_string(round));
        std::atomic<int> ready{0};
        std::atomic<int> offers{0};
        std::atomic<int> taken{0};
        std::vector<std::unique_ptr<SqliteDraftStore>> runs;
        for (int i = 0; i < 3; ++i)
            runs.push_back(std::make_unique<SqliteDraftStore>(drafts));
        std::vector<std::thread> threads;
        for (const auto &run : runs)
            threads.emplace_back([&, store = run.get()] {
                for (++ready; ready < 3;)
                    std::this_thread::yield();
                const DraftsFound found = store->look();
                Draft draft;
                offers += static_cast<int>(found.free.size());
                if (!found.free.empty())
                    taken += store->takeOver(found.free[0].name, draft) == TakeEnd::Taken ? 1 : 0;
            });
        for (std::thread &thread : threads)
            thread.join();
        EXPECT_GE(offers, 1);
        EXPECT_EQ(taken, 1) << "round " << round;
        for (const auto &run : runs)
            run->drop();
    }
    EXPECT_TRUE(files().empty());
}

}  // namespace
}  // namespace penwright::test
