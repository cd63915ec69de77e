#include <sys/stat.h>

#include <fstream>

#include "store/StoreTest.h"
#include "store/TracedStatements.h"

namespace penwright::test {
namespace {

/// Stores that must be refused when they are opened, with one description that names file and reason.
class RefusalTest : public StoreTest {
protected:
    RefusalTest()
    {
        std::filesystem::create_directories(m_place);
        chmod(folder.path().c_str(), 0755);
    }

    std::string refusal() const
    {
        return errorOf([this] { SqliteSettingsStore{path}; });
    }
    std::string refusalOfAnOrdinaryUser() const
    {
        return inOrdinaryChild([this] { return refusal(); });
    }

    void fileHolds(const std::string &bytes) { std::ofstream(path, std::ios::binary) << bytes; }

    /// The refusal; the file must be byte for byte what it was, and nothing may lie beside it.
    std::string refusalThatTouchesNothing()
    {
        const std::string before = contentOf(path);
        std::string text = refusal();
        EXPECT_TRUE(contentOf(path) == before) << "the file was changed";
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_place), {}), 1) << "files were left beside it";
        return text;
    }

    const std::filesystem::path m_place = std::filesystem::path(path).parent_path();
};

TEST_F(RefusalTest, newerVersion)
{
    Peer(path).sql("PRAGMA user_version = 2");
    EXPECT_EQ(refusalThatTouchesNothing(), "13\n" + path + ": the store is of version 2, this program knows version 1");
}

TEST_F(RefusalTest, newerVersionInWalMode)
{
    {
        Peer peer(path);
        peer.sql("PRAGMA journal_mode = WAL");
        peer.sql("PRAGMA user_version = 12345");
        ASSERT_TRUE(peer.process().pid() > 0);
        EXPECT_EQ(refusal(), "13\n" + path + ": the store is of version 12345, this program knows version 1");
    }
    EXPECT_EQ(Peer(path).sql("PRAGMA user_version"), "12345\n");
}

TEST_F(RefusalTest, versionThatAnotherProcessRaisesAtTheLastMoment)
{
    Peer other(path);
    const TracedStatements traced([&other](const std::string &sql) {
        if (sql == "BEGIN IMMEDIATE")
            other.sql("PRAGMA user_version = 2");
    });
    EXPECT_EQ(refusal(), "13\n" + path + ": the store is of version 2, this program knows version 1");
    EXPECT_EQ(other.sql("PRAGMA user_version; SELECT count(*) FROM sqlite_schema"), "2\n0\n");
}

TEST_F(RefusalTest, versionThatIsNone)
{
    Peer(path).sql("PRAGMA user_version = -1");
    EXPECT_EQ(refusalThatTouchesNothing(),
              "13\n" + path + ": the store is of version -1, this program knows version 1");
}

TEST_F(RefusalTest, notADatabase)
{
    for (const std::size_t size : {2U, 20U, 511U, 100000U}) {
        fileHolds(std::string(size, 'x'));
        EXPECT_EQ(refusalThatTouchesNothing(), "13\n" + path + ": file is not a database") << size;
    }
}

TEST_F(RefusalTest, tableOfAnotherForm)
{
    Peer(path).sql("CREATE TABLE setting (name, data); INSERT INTO setting VALUES ('a', 'b')");
    const std::string text = refusalThatTouchesNothing();
    EXPECT_EQ(text.substr(0, path.size() + 5), "13\n" + path + ": ");
    Peer(path).sql("DROP TABLE setting; CREATE TABLE setting (position, application, section, name, data)");
    EXPECT_EQ(refusalThatTouchesNothing().substr(0, path.size() + 5), "13\n" + path + ": ");
}

TEST_F(RefusalTest, tableOfAnotherFormThatSaysThatItIsAStore)
{
    const std::string columns =
        "(position INTEGER PRIMARY KEY, application TEXT NOT NULL, section TEXT NOT NULL, name TEXT NOT NULL, ";
    const std::string tables[]{
        "CREATE TABLE setting (a, b)",
        "CREATE TABLE setting " + columns + "data TEXT)",
        "CREATE TABLE setting " + columns + "data TEXT AS (name) STORED, UNIQUE (application, section, name))",
        "CREATE VIRTUAL TABLE setting USING fts5 (position, application, section, name, data)",
    };
    for (const std::string &table : tables) {
        std::filesystem::remove(path);
        Peer(path).sql(table + "; PRAGMA user_version = 1");
        EXPECT_EQ(refusalThatTouchesNothing().substr(0, path.size() + 5), "13\n" + path + ": ") << table;
    }
}

TEST_F(RefusalTest, brokenFirstPage)
{
    Peer(path).sql("CREATE TABLE mine (x)");
    std::string bytes = contentOf(path);
    bytes.replace(100, 1000, 1000, '\xff');
    fileHolds(bytes);
    const std::string text = refusalThatTouchesNothing();
    EXPECT_EQ(text, "13\n" + path + ": database disk image is malformed");
}

TEST_F(RefusalTest, folderInItsPlace)
{
    std::filesystem::create_directory(path);
    EXPECT_EQ(refusal(), "70\n" + path + ": unable to open database file: Is a directory");
    EXPECT_TRUE(std::filesystem::is_empty(path));
}

TEST_F(RefusalTest, fileInThePlaceOfItsFolder)
{
    std::filesystem::remove(m_place);
    std::ofstream(m_place) << "mine";
    EXPECT_EQ(refusal(), "76\n" + path + ": Not a directory");
    EXPECT_EQ(contentOf(m_place), "mine");
}

TEST_F(RefusalTest, readOnlyFile)
{
    write("a", "1");
    closeStore();
    chmod(path.c_str(), 0444);
    for (std::filesystem::path up = m_place; up != folder.path(); up = up.parent_path())
        chmod(up.c_str(), 0755);
    EXPECT_EQ(refusalOfAnOrdinaryUser(), "75\n" + path + ": the file is read-only");
}

TEST_F(RefusalTest, fileThatMayNotBeRead)
{
    write("a", "1");
    closeStore();
    chmod(path.c_str(), 0000);
    for (std::filesystem::path up = m_place; up != folder.path(); up = up.parent_path())
        chmod(up.c_str(), 0755);
    EXPECT_EQ(refusalOfAnOrdinaryUser(), "70\n" + path + ": unable to open database file: Permission denied");
}

TEST_F(RefusalTest, folderThatMayNotBeMade)
{
    std::filesystem::remove_all(folder.file("config"));
    chmod(folder.path().c_str(), 0555);
    EXPECT_EQ(refusalOfAnOrdinaryUser(), "70\n" + path + ": Permission denied");
    chmod(folder.path().c_str(), 0755);
}

TEST_F(RefusalTest, folderThatMayNotBeWritten)
{
    write("a", "1");
    closeStore();
    chmod(path.c_str(), 0666);
    for (std::filesystem::path up = m_place; up != folder.path(); up = up.parent_path())
        chmod(up.c_str(), 0555);
    EXPECT_EQ(refusalOfAnOrdinaryUser(), "75\n" + path + ": the folder is read-only");
    chmod(m_place.c_str(), 0755);
}

}  // namespace
}  // namespace penwright::test
