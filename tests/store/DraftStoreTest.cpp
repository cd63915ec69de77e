#include <sys/stat.h>

#include "store/DraftTest.h"

namespace penwright::test {
namespace {

using DraftStoreTest = DraftTest;

int modesOf(const std::filesystem::path &path)
{
    struct stat found {};
    stat(path.c_str(), &found);
    return static_cast<int>(found.st_mode & 0777U);
}

TEST_F(DraftStoreTest, runThatWritesNothingLeavesNothing)
{
    {
        SqliteDraftStore run(drafts);
        EXPECT_TRUE(run.look().free.empty());
        run.finish();
        run.drop();
    }
    EXPECT_FALSE(std::filesystem::exists(folder.file("state")));
}

TEST_F(DraftStoreTest, draftOfARunThatIsGoneComesBackAsItWas)
{
    const std::string name = leave("EL-2054");
    SqliteDraftStore next(drafts);
    const DraftsFound found = next.look();
    ASSERT_EQ(found.free.size(), 1U);
    EXPECT_EQ(found.free[0].name, name);
    EXPECT_EQ(found.free[0].head, (DraftHead{kTime, 2, "EL-2054"}));
    Draft draft;
    EXPECT_EQ(next.takeOver(name, draft), TakeEnd::Taken);
    EXPECT_EQ(draft.head, (DraftHead{kTime, 2, "EL-2054"}));
    EXPECT_EQ(draft.texts, kTexts);
}

TEST_F(DraftStoreTest, latestWritingCountsAndGoneTextsAreGone)
{
    {
        SqliteDraftStore run(drafts);
        write(run, "first");
        write(run, "second", {{0, "txtWatt", "60"}, {4, "cdaGridCd", std::string(100'000, '7')}});
        write(run, "third", {{0, "txtWatt", "61"}, {4, "cdaGridCd", std::string(100'000, '7')}});
    }
    SqliteDraftStore next(drafts);
    Draft draft;
    EXPECT_EQ(next.takeOver(next.look().free.at(0).name, draft), TakeEnd::Taken);
    EXPECT_EQ(draft.head.about, "third");
    EXPECT_EQ(draft.texts, (std::vector<DraftText>{{0, "txtWatt", "61"}, {4, "cdaGridCd", std::string(100'000, '7')}}));
}

TEST_F(DraftStoreTest, everyByteIsKept)
{
    std::string bytes;
    for (int i = 1; i < 256; ++i)
        bytes += static_cast<char>(i);
    const std::vector<DraftText> texts{{0, "a", bytes}, {0, "b", std::string("nul\0inside", 10)}, {5, "", "no name"}};
    const std::string name = leave("any", texts);
    Draft draft;
    EXPECT_EQ(SqliteDraftStore(drafts).takeOver(name, draft), TakeEnd::Taken);
    EXPECT_EQ(draft.texts, texts);
}

TEST_F(DraftStoreTest, folderAndFilesAreTheOwnersAloneWhateverTheUmask)
{
    const mode_t before = umask(0);
    {
        SqliteDraftStore run(drafts);
        write(run, "any");
        for (const std::string &name : files())
            EXPECT_EQ(modesOf(pathOf(name)), 0600) << name;
    }
    umask(before);
    EXPECT_EQ(files().size(), 2U);
    for (const char *made : {"state", "state/Lumentor", "state/Lumentor/drafts"})
        EXPECT_EQ(modesOf(folder.file(made)), 0700) << made;
}

TEST_F(DraftStoreTest, modesOfOtherFilesAreNotTouchedMeanwhile)
{
    SqliteDraftStore run(drafts);
    mode_t seen = 0;
    run.write({kTime, 0, ""}, [&, first = true]() mutable -> std::optional<DraftText> {
        seen = umask(022);
        umask(seen);
        return std::exchange(first, false) ? std::optional(DraftText{0, "a", "b"}) : std::nullopt;
    });
    const mode_t outside = umask(022);
    umask(outside);
    EXPECT_EQ(seen, outside) << "the umask is the whole process's, and another thread may be saving a file";
}

TEST_F(DraftStoreTest, droppedDraftIsGone)
{
    SqliteDraftStore run(drafts);
    write(run, "any");
    run.drop();
    EXPECT_TRUE(files().empty());
    write(run, "again");
    EXPECT_EQ(files().size(), 2U) << "a draft and its lock";
}

TEST_F(DraftStoreTest, discardedDraftIsGoneAndOthersStay)
{
    leave("one");
    const std::string name = leave("two");
    SqliteDraftStore(drafts).discard({name, headOf("two")});
    EXPECT_EQ(offered(), "one\n");
}

TEST_F(DraftStoreTest, finishedDraftIsTheLastFileAndNoDraft)
{
    SqliteDraftStore run(drafts);
    write(run, "EL-1");
    run.finish();
    EXPECT_EQ(files(), std::vector<std::string>{"last.sqlite3"});
    const DraftsFound found = SqliteDraftStore(drafts).look();
    EXPECT_TRUE(found.free.empty());
    EXPECT_EQ(found.last, (DraftHead{kTime, 2, "EL-1"}));
    EXPECT_EQ(SqliteDraftStore(drafts).readLast().value().texts, kTexts);
}

TEST_F(DraftStoreTest, laterFinishedFileTakesThePlaceOfTheLast)
{
    for (const char *about : {"EL-1", "EL-2"}) {
        SqliteDraftStore run(drafts);
        write(run, about);
        run.finish();
        write(run, "goes on");
        run.drop();
    }
    EXPECT_EQ(files(), std::vector<std::string>{"last.sqlite3"});
    EXPECT_EQ(SqliteDraftStore(drafts).readLast().value().head.about, "EL-2");
}

TEST_F(DraftStoreTest, clearedFolderIsMadeAnewByTheNextWriting)
{
    SqliteDraftStore run(drafts);
    write(run, "one");
    std::filesystem::remove_all(folder.file("state"));
    write(run, "two");
    EXPECT_EQ(files().size(), 2U);
}

TEST_F(DraftStoreTest, userFolderIsWhereTheStateGoes)
{
    const char *before = getenv("XDG_STATE_HOME");
    const std::string kept = before ? before : "";
    setenv("XDG_STATE_HOME", "/the/state", 1);
    EXPECT_EQ(SqliteDraftStore::userFolder(), "/the/state/Lumentor/drafts");
    setenv("XDG_STATE_HOME", "not/absolute", 1);
    EXPECT_EQ(SqliteDraftStore::userFolder(), std::string(getenv("HOME")) + "/.local/state/Lumentor/drafts");
    unsetenv("XDG_STATE_HOME");
    EXPECT_EQ(SqliteDraftStore::userFolder(), std::string(getenv("HOME")) + "/.local/state/Lumentor/drafts");
    if (before)
        setenv("XDG_STATE_HOME", kept.c_str(), 1);
}

TEST_F(DraftStoreTest, folderBehindALinkIsAsGood)
{
    std::filesystem::create_directory(folder.file("elsewhere"));
    std::filesystem::create_directory_symlink(folder.file("elsewhere"), folder.file("state"));
    leave("one");
    EXPECT_EQ(offered(), "one\n");
}

}  // namespace
}  // namespace penwright::test
