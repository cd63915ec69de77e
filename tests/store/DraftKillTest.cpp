#include <csignal>

#include "store/DraftTest.h"

namespace penwright::test {
namespace {

/// Runs that are killed while they write: the draft is what it was after the last writing that ended.
class DraftKillTest : public DraftTest {
protected:
    /// Has a process write twice and be killed at a text of the second writing.
    void writeAndBeKilledAtText(int which, std::size_t size)
    {
        const std::string end = inChild([&]() -> std::string {
            SqliteDraftStore run(drafts);
            write(run, "before", textsOf(size, '1'));
            run.write({kTime, 2, "after"}, [&, source = sourceOf(textsOf(size, '2')), n = 0]() mutable {
                if (++n == which)
                    raise(SIGKILL);
                return source();
            });
            return "was not killed";
        });
        ASSERT_EQ(end, "(died)");
    }

    static std::vector<DraftText> textsOf(std::size_t size, char digit)
    {
        std::vector<DraftText> texts;
        for (int i = 0; i < 10; ++i)
            texts.push_back({i % 5, "box" + std::to_string(i), std::string(size, digit)});
        return texts;
    }
};

TEST_F(DraftKillTest, halfWrittenDraftIsWhatItWasBefore)
{
    // 10 MB is beyond what SQLite keeps in memory, so that the file itself is half written.
    for (const std::size_t size : {std::size_t{10}, std::size_t{1'000'000}})
        for (const int which : {1, 5, 11}) {
            writeAndBeKilledAtText(which, size);
            SqliteDraftStore next(drafts);
            const DraftsFound found = next.look();
            ASSERT_EQ(offered(found), "before\n") << size << " bytes, text " << which;
            Draft draft;
            EXPECT_EQ(next.takeOver(found.free[0].name, draft), TakeEnd::Taken);
            EXPECT_TRUE(draft.texts == textsOf(size, '1'));
            next.drop();
        }
    EXPECT_TRUE(files().empty());
}

TEST_F(DraftKillTest, draftThatWasNeverWrittenWholeIsNoneAndGoes)
{
    const std::string end = inChild([&]() -> std::string {
        SqliteDraftStore(drafts).write({kTime, 0, "never"}, []() -> std::optional<DraftText> {
            raise(SIGKILL);
            return std::nullopt;
        });
        return "was not killed";
    });
    ASSERT_EQ(end, "(died)");
    const DraftsFound found = SqliteDraftStore(drafts).look();
    EXPECT_EQ(offered(found), "");
    EXPECT_EQ(found.putAside, 0);
    EXPECT_TRUE(files().empty());
}

TEST_F(DraftKillTest, lockGoesWithTheProcess)
{
    EXPECT_EQ(inChild([&]() -> std::string {
                  SqliteDraftStore run(drafts);
                  write(run, "killed");
                  raise(SIGKILL);
                  return "";
              }),
              "(died)");
    EXPECT_EQ(offered(), "killed\n");
}

TEST_F(DraftKillTest, lockWithoutADraftGoes)
{
    leave("one");
    std::ofstream(pathOf("draft-20240101T000000-1-0badf00d.sqlite3.lock"));
    EXPECT_EQ(offered(), "one\n");
    EXPECT_EQ(files().size(), 2U);
}

}  // namespace
}  // namespace penwright::test
