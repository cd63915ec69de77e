#pragma once

#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace penwright {

/// A failure of SQLite by its result code; the store turns it into a RunTimeError or tries again.
struct SqliteFailure {
    int code;
    std::string reason;

    /// The last failure of a connection, with the system's own words where it has any.
    static SqliteFailure of(sqlite3 *database);

    /// Whether another connection holds a lock for the moment.
    bool isBusy() const;

    /// The run-time error that it stands for: 70 no permission, 75 read-only, 61 full, 57 device, 55 locked, 31001 out
    /// of memory, 13 for all that makes the file no store of ours.
    int errorNumber() const;
};

/// One prepared statement, finalized at the end. Every routine throws SqliteFailure.
class SqliteStatement {
public:
    SqliteStatement(sqlite3 *database, const char *sql);
    SqliteStatement(const SqliteStatement &) = delete;
    SqliteStatement &operator=(const SqliteStatement &) = delete;
    ~SqliteStatement();

    /// Binds a text to a parameter, counted from 1; the text must live until the statement has run.
    SqliteStatement &bind(int parameter, std::string_view text);
    SqliteStatement &bind(int parameter, long long number);

    /// Whether there is a (next) row.
    bool step();

    /// A column of the current row, counted from 0, byte for byte.
    std::string text(int column) const;
    long long integer(int column) const;

    /// Ends a run; the statement can run again and holds no lock.
    void reset();

private:
    sqlite3 *m_database;
    sqlite3_stmt *m_statement = nullptr;
};

/// One run of a statement that is kept: however it ends, the statement is reset.
class SqliteRun {
public:
    explicit SqliteRun(SqliteStatement &statement) : m_statement(statement) {}
    SqliteRun(const SqliteRun &) = delete;
    SqliteRun &operator=(const SqliteRun &) = delete;
    ~SqliteRun() { m_statement.reset(); }
    SqliteStatement *operator->() { return &m_statement; }

private:
    SqliteStatement &m_statement;
};

/// Runs a statement without rows, or passes over its rows.
void runSqlite(sqlite3 *database, const char *sql);

/// The number that a statement answers with.
long long sqliteNumber(sqlite3 *database, const char *sql);

/// One writing transaction; undone unless it is committed. Beginning it fails as busy while another process writes.
class SqliteTransaction {
public:
    explicit SqliteTransaction(sqlite3 *database);
    SqliteTransaction(const SqliteTransaction &) = delete;
    SqliteTransaction &operator=(const SqliteTransaction &) = delete;
    ~SqliteTransaction();
    void commit();

private:
    sqlite3 *m_database;
};

}  // namespace penwright
