#include "pages/keywords/KeywordDefaults.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>

#include <csignal>

#include "core/CodePoints.h"
#include "platform/RunTimeError.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

const OneBased<KeywordRow> kBuiltIn{{"IESNA:LM-63-2002", ""}, {"[TEST]", ""},    {"[TESTLAB]", ""},
                                    {"[ISSUEDATE]", ""},      {"[MANUFAC]", ""}, {"[LUMCAT]", ""},
                                    {"[LUMINAIRE]", ""},      {"[LAMPCAT]", ""}, {"[LAMP]", ""}};

/// Runs SQL on the store's file past the store.
void runSql(const std::string &path, const std::string &statements)
{
    sqlite3 *database = nullptr;
    char *reason = nullptr;
    if (sqlite3_open(path.c_str(), &database) != SQLITE_OK ||
        sqlite3_exec(database, statements.c_str(), nullptr, nullptr, &reason) != SQLITE_OK)
        ADD_FAILURE() << statements << ": " << (reason ? reason : "cannot be opened");
    sqlite3_free(reason);
    sqlite3_close(database);
}

class KeywordDefaults : public testing::Test {
protected:
    OneBased<KeywordRow> loaded() { return gsbKeyDefaultLoad(store); }

    /// The section as it stands in the store: "name=data" in the order of writing.
    std::vector<std::string> section()
    {
        std::vector<std::string> lines;
        for (const Setting &setting : store.readAll("Lumentor32", "Tool_DefaultKeywords"))
            lines.push_back(setting.name + "=" + setting.data);
        return lines;
    }
    void write(const std::string &name, const std::string &data)
    {
        store.write("Lumentor32", "Tool_DefaultKeywords", name, data);
    }

    TempFolder folder;
    const std::string path = folder.file("settings.sqlite3");
    SqliteSettingsStore store{path};
};

TEST_F(KeywordDefaults, withNothingStoredAreTheBuiltInNine)
{
    EXPECT_EQ(loaded(), kBuiltIn);
    gsbKeyDefaultSave(store, {});
    EXPECT_EQ(loaded(), kBuiltIn);
}

TEST_F(KeywordDefaults, areStoredUnderPrefixAndKeyInTheOrderOfTheRows)
{
    gsbKeyDefaultSave(store, {{"IESNA:LM-63-2002", ""}, {"[TEST]", "1"}, {"", ""}, {"[MORE]", "a"}, {"[MORE]", "b"}});
    EXPECT_EQ(section(), (std::vector<std::string>{"AIESNA:LM-63-2002=", "B[TEST]=1", "C=", "D[MORE]=a", "E[MORE]=b"}));
}

TEST_F(KeywordDefaults, comeBackAsTheyWereSaved)
{
    const OneBased<KeywordRow> rows{{"[LAMP]", "z"}, {"", ""}, {"[MORE]", "\u00FC"}, {"[MORE]", ""}, {"", "x"}};
    gsbKeyDefaultSave(store, rows);
    EXPECT_EQ(loaded(), rows);
}

TEST_F(KeywordDefaults, replaceTheBlockBeforeAndNothingElse)
{
    store.write("Lumentor32", "Lumentor32", "InputUnits", "1");
    gsbKeyDefaultSave(store, {{"[A]", "1"}, {"[B]", "2"}, {"[C]", "3"}});
    gsbKeyDefaultSave(store, {{"[B]", "4"}, {"[A]", "5"}});
    EXPECT_EQ(section(), (std::vector<std::string>{"A[B]=4", "B[A]=5"}));
    EXPECT_EQ(store.read("Lumentor32", "Lumentor32", "InputUnits"), "1");
}

TEST_F(KeywordDefaults, areRestoredAsTheyWereAndNothingElseIsLeft)
{
    gsbKeyDefaultSave(store, {{"[A]", "1"}, {"[B]", "2"}});
    const auto block = storedDefaults(store);
    ASSERT_TRUE(block);
    gsbKeyDefaultSave(store, {{"[B]", "3"}, {"[C]", "4"}, {"[D]", "5"}});
    restoreDefaults(store, *block);
    EXPECT_EQ(section(), (std::vector<std::string>{"A[A]=1", "B[B]=2"}));
    restoreDefaults(store, {});
    EXPECT_EQ(section(), std::vector<std::string>());
}

TEST_F(KeywordDefaults, orderOfWritingCountsNotThePrefix)
{
    write("Z[LAMP]", "1");
    write("A[TEST]", "2");
    write("?[MORE]", "3");
    EXPECT_EQ(loaded(), (OneBased<KeywordRow>{{"[LAMP]", "1"}, {"[TEST]", "2"}, {"[MORE]", "3"}}));
}

TEST_F(KeywordDefaults, oddNamesAreTaken)
{
    write("", "no name");
    write("A", "no key");
    write("\u00C4[TEST]", "two bytes");
    write("\U0001F4A1[LAMP]", "four bytes");
    write("\xFF[MORE]", "no character");
    EXPECT_EQ(loaded(), (OneBased<KeywordRow>{{"", "no name"},
                                              {"", "no key"},
                                              {"[TEST]", "two bytes"},
                                              {"[LAMP]", "four bytes"},
                                              {"[MORE]", "no character"}}));
}

TEST_F(KeywordDefaults, manyRowsKeepTheirOrderAndNames)
{
    OneBased<KeywordRow> rows;
    std::vector<std::string> expected;
    for (int row = 1; row <= 300; ++row) {
        const std::string value = std::to_string(row);
        rows.append({row % 3 ? "[MORE]" : "", value});
        expected.push_back(codePointText(static_cast<char32_t>(64 + row)) + (row % 3 ? "[MORE]=" : "=") + value);
    }
    gsbKeyDefaultSave(store, rows);
    EXPECT_EQ(section(), expected);
    EXPECT_EQ(loaded(), rows);
}

struct PrefixCase {
    int row;
    std::string bytes;
};

class DefaultsPrefix : public testing::TestWithParam<PrefixCase> {};

INSTANTIATE_TEST_SUITE_P(Borders, DefaultsPrefix,
                         testing::Values(PrefixCase{1, "A"}, PrefixCase{26, "Z"}, PrefixCase{27, "["},
                                         PrefixCase{62, "~"}, PrefixCase{63, "\x7F"}, PrefixCase{64, "\xC2\x80"},
                                         PrefixCase{191, "\xC3\xBF"}, PrefixCase{192, "\xC4\x80"},
                                         PrefixCase{1984, "\xE0\xA0\x80"}, PrefixCase{55231, "\xED\x9F\xBF"},
                                         PrefixCase{55232, "\xEE\x80\x80"}, PrefixCase{65536, "\xF0\x90\xA1\x80"},
                                         PrefixCase{1111999, "\xF4\x8F\xBF\xBF"}, PrefixCase{1112000, ""}));

TEST_P(DefaultsPrefix, isTheCharacterOfTheRow)
{
    EXPECT_EQ(defaultsPrefix(GetParam().row), GetParam().bytes);
    if (!GetParam().bytes.empty())
        EXPECT_EQ(withoutFirstCodePoint(GetParam().bytes + "[MORE]"), "[MORE]");
}

TEST_F(KeywordDefaults, readingFaultIsRaised)
{
    runSql(path, "DROP TABLE setting");
    try {
        gsbKeyDefaultLoad(store);
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.description(), path + ": no such table: setting");
    }
}

TEST_F(KeywordDefaults, rowThatCannotBeWrittenIsLeftOut)
{
    runSql(path,
           "CREATE TRIGGER refusal BEFORE INSERT ON setting WHEN NEW.name = 'B[TEST]' "
           "BEGIN SELECT RAISE(ABORT, 'refused'); END");
    gsbKeyDefaultSave(store, {{"IESNA91", ""}, {"[TEST]", "1"}, {"[LAMP]", "2"}});
    EXPECT_EQ(section(), (std::vector<std::string>{"AIESNA91=", "C[LAMP]=2"}));
}

TEST_F(KeywordDefaults, sectionThatCannotBeDeletedIsWrittenOver)
{
    gsbKeyDefaultSave(store, {{"[A]", "1"}, {"[B]", "2"}});
    runSql(path, "CREATE TRIGGER refusal BEFORE DELETE ON setting BEGIN SELECT RAISE(ABORT, 'refused'); END");
    gsbKeyDefaultSave(store, {{"[A]", "3"}, {"[C]", "4"}});
    EXPECT_EQ(section(), (std::vector<std::string>{"A[A]=3", "B[B]=2", "B[C]=4"}));
}

TEST_F(KeywordDefaults, lockedStoreKeepsItsBlock)
{
    gsbKeyDefaultSave(store, {{"[A]", "1"}, {"[B]", "2"}});
    store.setBusyWait([] { return false; });
    SqliteSettingsStore other(path);
    other.transact([&] { gsbKeyDefaultSave(store, {{"[C]", "3"}}); });
    EXPECT_EQ(section(), (std::vector<std::string>{"A[A]=1", "B[B]=2"}));
}

/// While it lives, no file of the process may grow: every write to disk fails.
class FullDisk {
public:
    FullDisk() : m_before(limit()), m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        const rlimit none{0, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    static rlimit limit()
    {
        rlimit now{};
        getrlimit(RLIMIT_FSIZE, &now);
        return now;
    }

    rlimit m_before;
    void (*m_handler)(int);
};

TEST_F(KeywordDefaults, storeThatCannotBeWrittenKeepsItsBlock)
{
    gsbKeyDefaultSave(store, {{"[A]", "1"}, {"[B]", "2"}});
    {
        const FullDisk full;
        gsbKeyDefaultSave(store, {{"[C]", "3"}});
    }
    EXPECT_EQ(section(), (std::vector<std::string>{"A[A]=1", "B[B]=2"}));
    gsbKeyDefaultSave(store, {{"[C]", "3"}});
    EXPECT_EQ(section(), (std::vector<std::string>{"A[C]=3"}));
}

}  // namespace
}  // namespace penwright::test
