#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "store/DraftTest.h"
#include "store/InjectedCall.h"

namespace penwright::test {
namespace {

constexpr const char *kStranger = "draft-20240101T000000-1-0badf00d.sqlite3";

/// Files that are no draft, or none that can be read: each is put aside under another name, said once, never deleted,
/// and hinders nothing.
class DraftFaultTest : public DraftTest {
protected:
    DraftFaultTest() { leave("sound"); }

    /// Looks twice: the first look puts one file aside, the second has nothing to say, and what is sound is offered.
    void expectPutAside(const std::string &name)
    {
        const DraftsFound first = SqliteDraftStore(drafts).look();
        EXPECT_EQ(offered(first), "sound\n");
        EXPECT_EQ(first.putAside, 1);
        const DraftsFound second = SqliteDraftStore(drafts).look();
        EXPECT_EQ(offered(second), "sound\n");
        EXPECT_EQ(second.putAside, 0);
        EXPECT_EQ(asideOf(name).size(), 1U);
        EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(pathOf(name))));
    }

    std::vector<std::string> asideOf(const std::string &name) const
    {
        std::vector<std::string> names = files();
        const std::string front = "aside-" + name.substr(0, name.size() - 8);
        std::erase_if(names,
                      [&](const std::string &file) { return !file.starts_with(front) || !file.ends_with(".sqlite3"); });
        return names;
    }

    /// Changes a draft with SQL, as any program could.
    void change(const std::string &name, const std::string &sql) { Peer(pathOf(name)).sql(sql); }

    void overwrite(const std::string &name, std::size_t at, const std::string &bytes)
    {
        std::fstream file(pathOf(name), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(static_cast<std::streamoff>(at));
        file << bytes;
    }
};

TEST_F(DraftFaultTest, rubbish)
{
    for (const std::size_t size : {1U, 20U, 511U, 100'000U}) {
        std::ofstream(pathOf(kStranger)) << std::string(size, 'x');
        expectPutAside(kStranger);
        const std::string aside = asideOf(kStranger).at(0);
        EXPECT_TRUE(contentOf(pathOf(aside)) == std::string(size, 'x'));
        std::filesystem::remove(pathOf(aside));
    }
}

TEST_F(DraftFaultTest, otherVersion)
{
    for (const char *version : {"2", "0", "-1"}) {
        const std::string name = leave("later");
        change(name, std::string("PRAGMA user_version = ") + version);
        expectPutAside(name);
    }
}

TEST_F(DraftFaultTest, databaseOfAnotherProgram)
{
    const std::string name = leave("later");
    change(name, "PRAGMA application_id = 7");
    expectPutAside(name);
}

TEST_F(DraftFaultTest, tablesOfAnotherForm)
{
    for (const char *sql :
         {"DROP TABLE draft", "DELETE FROM draft", "ALTER TABLE draft RENAME COLUMN about TO subject"}) {
        const std::string name = leave("later");
        change(name, sql);
        expectPutAside(name);
    }
}

TEST_F(DraftFaultTest, headThatWasNotWrittenByADraftsRun)
{
    for (const char *sql :
         {"UPDATE draft SET page = 4000000000", "UPDATE draft SET about = 'other'", "UPDATE draft SET time = 'noon'"}) {
        const std::string name = leave("later");
        change(name, sql);
        expectPutAside(name);
    }
}

TEST_F(DraftFaultTest, emptyFileIsNoDraftAndNothingIsLostWithIt)
{
    std::ofstream(pathOf(kStranger));
    const DraftsFound found = SqliteDraftStore(drafts).look();
    EXPECT_EQ(offered(found), "sound\n");
    EXPECT_EQ(found.putAside, 0);
    EXPECT_FALSE(std::filesystem::exists(pathOf(kStranger)));
}

TEST_F(DraftFaultTest, linkIsNotFollowed)
{
    const std::string name = leave("later");
    std::filesystem::rename(pathOf(name), folder.file("elsewhere"));
    const std::string before = contentOf(folder.file("elsewhere"));
    std::filesystem::create_symlink(folder.file("elsewhere"), pathOf(name));
    expectPutAside(name);
    EXPECT_TRUE(contentOf(folder.file("elsewhere")) == before);
}

TEST_F(DraftFaultTest, linkThatLeadsNowhere)
{
    std::filesystem::create_symlink(folder.file("nowhere"), pathOf(kStranger));
    expectPutAside(kStranger);
    EXPECT_FALSE(std::filesystem::exists(folder.file("nowhere")));
}

TEST_F(DraftFaultTest, pipeIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(pathOf(kStranger).c_str(), 0600), 0);
    expectPutAside(kStranger);
}

TEST_F(DraftFaultTest, folderInTheNameOfADraft)
{
    std::filesystem::create_directory(pathOf(kStranger));
    expectPutAside(kStranger);
}

TEST_F(DraftFaultTest, gigabyteIsNotRead)
{
    const std::string name = leave("later");
    std::filesystem::resize_file(pathOf(name), std::uintmax_t{1} << 30U);
    expectPutAside(name);
}

TEST_F(DraftFaultTest, journalThatNoDraftHas)
{
    for (const char *end : {"-journal", "-wal", "-shm"}) {
        const std::function<void(const std::string &)> ways[]{
            [](const std::string &path) { std::ofstream(path).close(), std::filesystem::resize_file(path, 1U << 30U); },
            [](const std::string &path) { ASSERT_EQ(mkfifo(path.c_str(), 0600), 0); },
            [this](const std::string &path) { std::filesystem::create_symlink(folder.file("nowhere"), path); }};
        for (const auto &makeJournal : ways) {
            const std::string name = leave("later");
            makeJournal(pathOf(name + end));
            expectPutAside(name);
            for (const std::string &file : files())
                if (file.starts_with("aside-"))
                    std::filesystem::remove(pathOf(file));
        }
    }
    EXPECT_FALSE(std::filesystem::exists(folder.file("nowhere")));
}

TEST_F(DraftFaultTest, fileOfSomebodyElse)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can give a file away";
    const std::string name = leave("later");
    ASSERT_EQ(chown(pathOf(name).c_str(), 65534, 65534), 0);
    expectPutAside(name);
}

TEST_F(DraftFaultTest, changedDigitIsFoundWhenItIsTakenOver)
{
    const std::string name = leave("later", {{4, "cdaGridCd", std::string(50'000, '7')}});
    const std::string bytes = contentOf(pathOf(name));
    overwrite(name, bytes.find(std::string(1000, '7')) + 500, "8");
    SqliteDraftStore next(drafts);
    EXPECT_EQ(offered(next.look()), "later\nsound\n");
    Draft draft;
    EXPECT_EQ(next.takeOver(name, draft), TakeEnd::Damaged);
    EXPECT_EQ(asideOf(name).size(), 1U);
    EXPECT_EQ(offered(next.look()), "sound\n");
}

TEST_F(DraftFaultTest, damagedLastFileIsPutAsideToo)
{
    {
        SqliteDraftStore run(drafts);
        write(run, "last");
        run.finish();
    }
    overwrite("last.sqlite3", 20, "xxxxxxxxxxxxxxxxxxxx");
    expectPutAside("last.sqlite3");
    EXPECT_EQ(SqliteDraftStore(drafts).readLast(), std::nullopt);
}

/// Any place of the file may be damaged: what is then taken over is what was written, or nothing.
TEST_F(DraftFaultTest, damageAnywhereIsNeverAWrongValue)
{
    const std::string name = leave("later");
    const std::string bytes = contentOf(pathOf(name));
    int taken = 0;
    for (std::size_t at = 0; at < bytes.size(); at += 97) {
        std::ofstream(pathOf(name), std::ios::binary) << bytes;
        overwrite(name, at, std::string(1, static_cast<char>(bytes[at] ^ 0x15)));
        SqliteDraftStore next(drafts);
        Draft draft;
        if (next.takeOver(name, draft) != TakeEnd::Taken)
            continue;
        ++taken;
        EXPECT_EQ(draft.head.about, "later") << at;
        EXPECT_TRUE(draft.texts == kTexts) << at;
    }
    EXPECT_GT(taken, 0);
}

TEST_F(DraftFaultTest, cutFileIsNeverAWrongValue)
{
    const std::string name = leave("later", {{4, "cdaGridCd", std::string(50'000, '7')}});
    const std::string bytes = contentOf(pathOf(name));
    for (const std::size_t size : {std::size_t{100}, std::size_t{4096}, bytes.size() / 2, bytes.size() - 1}) {
        std::ofstream(pathOf(name), std::ios::binary) << bytes.substr(0, size);
        SqliteDraftStore next(drafts);
        Draft draft;
        EXPECT_EQ(next.takeOver(name, draft), TakeEnd::Damaged) << size;
        EXPECT_TRUE(draft.texts.empty());
    }
}

ssize_t noRoom(int, const void *, size_t, off_t)
{
    errno = ENOSPC;
    return -1;
}

TEST_F(DraftFaultTest, fullDiskIsAnErrorAndTheDraftStaysWhatItWas)
{
    auto run = std::make_unique<SqliteDraftStore>(drafts);
    write(*run, "first");
    write(*run, "before");
    {
        const InjectedCall first("pwrite", &noRoom), second("pwrite64", &noRoom);
        const std::string error = errorOf([&] { write(*run, "after"); });
        EXPECT_TRUE(error.starts_with("61\n" + drafts + "/draft-")) << error;
        EXPECT_TRUE(error.ends_with(": database or disk is full")) << error;
    }
    write(*run, "there is room again");
    {
        const InjectedCall first("pwrite", &noRoom), second("pwrite64", &noRoom);
        EXPECT_NE(errorOf([&] { write(*run, "after"); }), "no error");
        run.reset();
    }
    EXPECT_EQ(offered(), "there is room again\nsound\n");
}

// A real limit instead of an injected one: no file of the process may grow beyond 300 KB.
TEST_F(DraftFaultTest, draftThatMayNotGrowStaysWhatItWas)
{
    EXPECT_EQ(inChild([this]() -> std::string {
                  signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{300'000, 300'000};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  SqliteDraftStore small(drafts);
                  small.look();  // its draft is later than what it has seen
                  write(small, "before");
                  return errorOf([&] {
                             write(small, "after", {{4, "cdaGridCd", std::string(1'000'000, '7')}});
                         })
                      .substr(0, 3);
              }),
              "57\n");
    EXPECT_EQ(offered(), "before\nsound\n");
}

TEST_F(DraftFaultTest, draftThatIsLockedIsAnErrorUntilTheLockHasGone)
{
    SqliteDraftStore run(drafts);
    write(run, "before");
    const std::vector<std::string> names = files();
    const std::string own = *std::find_if(names.begin(), names.end(), [&](const std::string &name) {
        return name.ends_with(".sqlite3") && Peer(pathOf(name)).sql("SELECT about FROM draft") == "before\n";
    });
    Peer other(pathOf(own));
    other.sql("BEGIN IMMEDIATE");
    EXPECT_EQ(errorOf([&] { write(run, "after"); }), "55\n" + pathOf(own) + ": database is locked");
    other.sql("COMMIT");
    write(run, "after the lock");
    EXPECT_EQ(other.sql("SELECT about FROM draft"), "after the lock\n");
}

TEST_F(DraftFaultTest, readOnlyFolderIsAnErrorOnlyForWhoWrites)
{
    for (std::filesystem::path up = drafts; up != folder.path().parent_path(); up = up.parent_path())
        chmod(up.c_str(), 0555);
    EXPECT_EQ(inOrdinaryChild([this]() -> std::string {
                  SqliteDraftStore run(drafts);
                  const DraftsFound found = run.look();
                  return std::to_string(found.putAside) + " " + errorOf([&] { write(run, "any"); }).substr(0, 2);
              }),
              "0 70");
    for (std::filesystem::path up = drafts; up != folder.path().parent_path(); up = up.parent_path())
        chmod(up.c_str(), 0755);
    EXPECT_EQ(offered(), "sound\n");
}

TEST_F(DraftFaultTest, fileInThePlaceOfTheFolder)
{
    std::filesystem::remove_all(drafts);
    std::ofstream(drafts) << "mine";
    SqliteDraftStore run(drafts);
    EXPECT_TRUE(run.look().free.empty());
    EXPECT_EQ(errorOf([&] { write(run, "any"); }), "76\n" + drafts + ": File exists");
    EXPECT_EQ(contentOf(drafts), "mine");
}

}  // namespace
}  // namespace penwright::test
