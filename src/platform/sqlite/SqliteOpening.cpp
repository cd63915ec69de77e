#include "platform/sqlite/SqliteOpening.h"

#include <sqlite3.h>

#include "platform/sqlite/SqliteStatement.h"

namespace penwright {
namespace {

constexpr int kVersion = 1;

constexpr const char *kTable =
    "CREATE TABLE IF NOT EXISTS setting ("
    "position INTEGER PRIMARY KEY, "
    "application TEXT NOT NULL, section TEXT NOT NULL, name TEXT NOT NULL, data TEXT NOT NULL, "
    "UNIQUE (application, section, name))";

/// Whether the database says that it is a store; a version that is not ours to touch is a failure.
bool isMarked(sqlite3 *database)
{
    const long long version = sqliteNumber(database, "PRAGMA user_version");
    if (version != 0 && version != kVersion)
        throw SqliteFailure{SQLITE_MISMATCH, "the store is of version " + std::to_string(version) +
                                                 ", this program knows version " + std::to_string(kVersion)};
    return version == kVersion;
}

bool hasTable(sqlite3 *database)
{
    return sqliteNumber(database, "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND name = 'setting'") > 0;
}

/// Refuses a table of the same name and another form, which does not take this.
void expectForm(sqlite3 *database)
{
    const SqliteStatement probe(database,
                                "INSERT INTO setting (position, application, section, name, data) VALUES (1, '', '', "
                                "'', '') ON CONFLICT (application, section, name) DO UPDATE SET data = excluded.data");
}

void createTable(sqlite3 *database)
{
    SqliteTransaction transaction(database);
    isMarked(database);  // again: another process may just have made it a newer one
    runSqlite(database, kTable);
    expectForm(database);
    runSqlite(database, "PRAGMA user_version = 1");
    transaction.commit();
}

// Without shared memory the switch does not fail but leaves the journal as it is.
void useWal(sqlite3 *database)
{
    SqliteStatement journal(database, "PRAGMA journal_mode = WAL");
    if (!journal.step() || journal.text(0) != "wal")
        throw SqliteFailure{SQLITE_CANTOPEN, "the store cannot be shared from this file system"};
}

SqliteHandle opened(const std::string &path, int flags)
{
    sqlite3 *database = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &database, flags, nullptr);
    SqliteHandle handle(database);
    if (code != SQLITE_OK)
        throw database ? SqliteFailure::of(database) : SqliteFailure{code, sqlite3_errstr(code)};
    return handle;
}

}  // namespace

void SqliteCloser::operator()(sqlite3 *database) const
{
    sqlite3_close(database);
}

SqliteHandle openSqlite(const std::string &path)
{
    return opened(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

SqliteHandle openExistingSqlite(const std::string &path, int milliseconds)
{
    SqliteHandle database = opened(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOFOLLOW);
    sqlite3_busy_timeout(database.get(), milliseconds);
    return database;
}

void makeSettingsStore(sqlite3 *database)
{
    // A file that may not be written is opened for reading without a word.
    if (sqlite3_db_readonly(database, "main"))
        throw SqliteFailure{SQLITE_READONLY, "the file is read-only"};
    if (!isMarked(database) || !hasTable(database))
        createTable(database);
    expectForm(database);  // before the file is changed
    useWal(database);
    // In WAL mode a crash loses nothing and breaks nothing; waiting for the disk after each command is for power cuts.
    runSqlite(database, "PRAGMA synchronous = NORMAL");
}

}  // namespace penwright
