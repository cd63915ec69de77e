#include <sys/stat.h>

#include <cstdlib>
#include <fstream>

#include "store/StoreTest.h"

namespace penwright::test {
namespace {

using CreationTest = StoreTest;

constexpr const char *kTable =
    "CREATE TABLE IF NOT EXISTS setting (position INTEGER PRIMARY KEY, application TEXT NOT NULL, section TEXT NOT "
    "NULL, name TEXT NOT NULL, data TEXT NOT NULL, UNIQUE (application, section, name)); ";

int modeOf(const std::string &path)
{
    struct stat status;
    return stat(path.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : -1;
}

std::string parentOf(const std::string &path)
{
    return std::filesystem::path(path).parent_path().string();
}

std::string shell(const std::string &path, const std::string &sql)
{
    std::string text = Process({"sqlite3", path, sql}, {}, Process::Errors::Joined).readAll();
    return text;
}

TEST_F(CreationTest, makesFolderAndFilesForTheirOwnerAlone)
{
    const mode_t before = umask(0);
    write("a", "1");
    EXPECT_EQ(umask(before), 0U) << "the process's own mask is as it was";
    EXPECT_EQ(modeOf(parentOf(path)), 0700);
    EXPECT_EQ(modeOf(parentOf(parentOf(path))), 0700);
    for (const char *suffix : {"", "-wal", "-shm"})
        EXPECT_EQ(modeOf(path + suffix), 0600) << suffix;
}

TEST_F(CreationTest, filesThatComeLaterAreForTheirOwnerAloneToo)
{
    const mode_t before = umask(0);
    open();  // the last one who closes takes -wal and -shm away
    EXPECT_EQ(modeOf(path + "-wal"), -1);
    Peer peer(path);
    peer.sql("UPDATE setting SET data = ''");
    for (const char *suffix : {"-wal", "-shm"})
        EXPECT_EQ(modeOf(path + suffix), 0600) << suffix;
    umask(before);
}

TEST_F(CreationTest, maskIsPutBackThoughTheStoreIsRefused)
{
    std::ofstream(folder.file("file")) << "x";
    const mode_t before = umask(0);
    EXPECT_THROW(SqliteSettingsStore(folder.file("file/store")), RunTimeError);
    EXPECT_EQ(umask(before), 0U);
}

TEST_F(CreationTest, anotherProgramFindsTheDocumentedStore)
{
    write("a", "1");
    EXPECT_EQ(shell(path, "PRAGMA user_version; PRAGMA journal_mode; SELECT * FROM setting;"),
              "1\nwal\n1|Lumentor_PE|Sec|a|1\n");
    EXPECT_EQ(shell(path, "SELECT name, type, \"notnull\", pk FROM pragma_table_info('setting');"),
              "position|INTEGER|0|1\napplication|TEXT|1|0\nsection|TEXT|1|0\nname|TEXT|1|0\ndata|TEXT|1|0\n");
    EXPECT_NE(shell(path, "INSERT INTO setting VALUES (9, 'Lumentor_PE', 'Sec', 'a', 'twice');").find("UNIQUE"),
              std::string::npos);
}

struct AdoptCase {
    const char *description;
    std::string sql;
};

class Adoption : public StoreTest, public testing::WithParamInterface<AdoptCase> {};

TEST_P(Adoption, ofWhatTheHostMadeFirst)
{
    std::filesystem::create_directories(parentOf(path));
    EXPECT_EQ(shell(path, GetParam().sql), "");
    const bool filled = GetParam().sql.find("INSERT") != std::string::npos;
    EXPECT_EQ(read("a"), filled ? "host" : "(none)");
    write("b", "tool");
    EXPECT_EQ(shell(path, "PRAGMA user_version; PRAGMA journal_mode; SELECT data FROM setting WHERE name = 'b';"),
              "1\nwal\ntool\n");
}

const std::string kRow =
    "INSERT INTO setting (application, section, name, data) VALUES ('Lumentor_PE', 'Sec', 'a', 'host'); ";

INSTANTIATE_TEST_SUITE_P(
    Stores, Adoption,
    testing::Values(AdoptCase{"version 0 with the table", kTable + kRow},
                    AdoptCase{"version 1 not yet in WAL mode", kTable + kRow + "PRAGMA user_version = 1;"},
                    AdoptCase{"version 1 without the table", "PRAGMA user_version = 1;"},
                    AdoptCase{"table of another program beside", kTable + kRow + "CREATE TABLE mine (x);"},
                    AdoptCase{"text in UTF-16", "PRAGMA encoding = 'UTF-16'; " + std::string(kTable) + kRow}),
    [](const auto &chosen) { return "store" + std::to_string(chosen.index); });

TEST_F(CreationTest, emptyFileIsMadeAStore)
{
    std::filesystem::create_directories(parentOf(path));
    std::ofstream{path};
    write("a", "1");
    EXPECT_EQ(read("a"), "1");
}

// Eight processes meet where there is no store yet; each must be able to use it.
TEST_F(CreationTest, everyProcessThatCreatesAtOnceSucceeds)
{
    for (int round = 0; round < 12; ++round) {
        const std::string shared = folder.file("round" + std::to_string(round) + "/Lumentor/settings.sqlite3");
        int gate[2];
        ASSERT_EQ(pipe(gate), 0);
        std::vector<pid_t> children;
        for (int i = 0; i < 8; ++i) {
            const pid_t child = fork();
            if (child == 0) {
                char byte;
                close(gate[1]);
                if (::read(gate[0], &byte, 1) != 0)  // ends when the gate opens
                    _exit(2);
                const std::string failure =
                    errorOf([&] { SqliteSettingsStore(shared).write("Lumentor_PE", "Sec", std::to_string(i), "x"); });
                if (failure != "no error")
                    std::fprintf(stderr, "%s\n", failure.c_str());
                _exit(failure == "no error" ? 0 : 1);
            }
            children.push_back(child);
        }
        close(gate[0]);
        close(gate[1]);
        for (const pid_t child : children) {
            int status = 0;
            waitpid(child, &status, 0);
            EXPECT_EQ(status, 0) << "round " << round;
        }
        EXPECT_EQ(SqliteSettingsStore(shared).readAll("Lumentor_PE", "Sec").size(), 8U);
    }
}

class UserPath : public testing::Test {
protected:
    static std::string pathFor(const char *config, const char *home)
    {
        return inChild([=] {
            const auto set = [](const char *name, const char *value) {
                return value ? setenv(name, value, 1) : unsetenv(name);
            };
            set("XDG_CONFIG_HOME", config);
            set("HOME", home);
            return SqliteSettingsStore::userPath();
        });
    }
};

TEST_F(UserPath, liesInTheConfigurationFolder)
{
    EXPECT_EQ(pathFor("/conf", "/home/x"), "/conf/Lumentor/settings.sqlite3");
    EXPECT_EQ(pathFor(nullptr, "/home/x"), "/home/x/.config/Lumentor/settings.sqlite3");
    EXPECT_EQ(pathFor("", "/home/x"), "/home/x/.config/Lumentor/settings.sqlite3");
    EXPECT_EQ(pathFor("relative", "/home/x"), "/home/x/.config/Lumentor/settings.sqlite3");
}

TEST_F(UserPath, isAbsoluteWithoutAHomeToo)
{
    EXPECT_EQ(pathFor(nullptr, nullptr).front(), '/');
    EXPECT_EQ(pathFor(nullptr, "").front(), '/');
}

}  // namespace
}  // namespace penwright::test
