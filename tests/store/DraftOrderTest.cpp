#include "store/DraftTest.h"

namespace penwright::test {
namespace {

using DraftOrderTest = DraftTest;

TEST_F(DraftOrderTest, latestWrittenIsOfferedFirst)
{
    {
        SqliteDraftStore first(drafts);
        SqliteDraftStore second(drafts);
        write(first, "begun first");
        write(second, "begun second");
        write(first, "begun first, written last");
    }
    EXPECT_EQ(offered(), "begun first, written last\nbegun second\n");
}

TEST_F(DraftOrderTest, clockThatIsSetBackReordersNothing)
{
    for (const std::int64_t time : {std::int64_t{2'000'000'000}, std::int64_t{1}, std::int64_t{1'000'000'000}}) {
        SqliteDraftStore run(drafts);
        run.look();
        run.write({time, 0, std::to_string(time)}, sourceOf({}));
    }
    EXPECT_EQ(offered(), "1000000000\n1\n2000000000\n");
}

TEST_F(DraftOrderTest, draftsBeyondTwentyGoTheOldestFirst)
{
    for (int i = 1; i <= 23; ++i)
        leave(std::to_string(i));
    const DraftsFound found = SqliteDraftStore(drafts).look();
    ASSERT_EQ(found.free.size(), 20U);
    EXPECT_EQ(found.free.front().head.about, "23");
    EXPECT_EQ(found.free.back().head.about, "4");
    EXPECT_EQ(files().size(), 40U) << "a draft and its lock each";
}

TEST_F(DraftOrderTest, runsThatLiveCountAmongTheTwentyAndStay)
{
    SqliteDraftStore alive(drafts);
    write(alive, "alive, and the oldest of all");
    for (int i = 1; i <= 20; ++i)
        leave(std::to_string(i));
    EXPECT_EQ(SqliteDraftStore(drafts).look().free.size(), 19U);
    write(alive, "still alive");
    EXPECT_EQ(files().size(), 40U);
}

TEST_F(DraftOrderTest, whatIsNotUnderstoodWhileADraftBeginsIsSaidByTheNextLook)
{
    SqliteDraftStore run(drafts);
    run.look();
    for (int i = 1; i <= 20; ++i)
        leave(std::to_string(i));
    std::ofstream(pathOf("draft-20240101T000000-1-0badf00d.sqlite3")) << "rubbish";
    write(run, "one more");
    EXPECT_EQ(SqliteDraftStore(drafts).look().putAside, 1);
}

}  // namespace
}  // namespace penwright::test
