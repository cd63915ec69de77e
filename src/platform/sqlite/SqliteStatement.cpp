#include "platform/sqlite/SqliteStatement.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <system_error>

namespace penwright {
namespace {

struct NumberRow {
    int code;
    int number;
};

constexpr NumberRow kNumbers[]{
    {SQLITE_BUSY, 55},     {SQLITE_LOCKED, 55}, {SQLITE_PROTOCOL, 55}, {SQLITE_IOERR, 57},    {SQLITE_FULL, 61},
    {SQLITE_CANTOPEN, 70}, {SQLITE_PERM, 70},   {SQLITE_AUTH, 70},     {SQLITE_READONLY, 75}, {SQLITE_NOMEM, 31001},
};
constexpr int kNoStoreOfOurs = 13;

int family(int code)
{
    return code & 0xFF;  // the upper bits say which of the failures of its kind it is
}

void check(sqlite3 *database, int code)
{
    if (code != SQLITE_OK)
        throw SqliteFailure::of(database);
}

}  // namespace

SqliteFailure SqliteFailure::of(sqlite3 *database)
{
    SqliteFailure failure{sqlite3_extended_errcode(database), sqlite3_errmsg(database)};
    if (failure.code == SQLITE_READONLY_CANTINIT || failure.code == SQLITE_READONLY_DIRECTORY)
        failure.reason = "the folder is read-only";
    else if (family(failure.code) == SQLITE_CANTOPEN && sqlite3_system_errno(database) != 0)
        failure.reason += ": " + std::generic_category().message(sqlite3_system_errno(database));
    return failure;
}

bool SqliteFailure::isBusy() const
{
    return errorNumber() == 55;
}

int SqliteFailure::errorNumber() const
{
    const auto *row = std::find_if(std::begin(kNumbers), std::end(kNumbers),
                                   [this](const NumberRow &r) { return r.code == family(code); });
    return row == std::end(kNumbers) ? kNoStoreOfOurs : row->number;
}

SqliteStatement::SqliteStatement(sqlite3 *database, const char *sql) : m_database(database)
{
    check(database, sqlite3_prepare_v2(database, sql, -1, &m_statement, nullptr));
}

SqliteStatement::~SqliteStatement()
{
    sqlite3_finalize(m_statement);
}

SqliteStatement &SqliteStatement::bind(int parameter, std::string_view text)
{
    // A null pointer would bind NULL, which is not the empty text.
    const char *data = text.data() ? text.data() : "";
    check(m_database, sqlite3_bind_text64(m_statement, parameter, data, text.size(), SQLITE_STATIC, SQLITE_UTF8));
    return *this;
}

SqliteStatement &SqliteStatement::bind(int parameter, long long number)
{
    check(m_database, sqlite3_bind_int64(m_statement, parameter, number));
    return *this;
}

bool SqliteStatement::step()
{
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        throw SqliteFailure::of(m_database);
    return false;
}

std::string SqliteStatement::text(int column) const
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
    return bytes ? std::string(bytes, static_cast<std::size_t>(sqlite3_column_bytes(m_statement, column)))
                 : std::string();
}

long long SqliteStatement::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

void SqliteStatement::reset()
{
    // What it returns is the failure of the run, which the run itself has reported.
    sqlite3_reset(m_statement);
    // The bound texts belong to the caller and may be gone before the next run.
    sqlite3_clear_bindings(m_statement);
}

void runSqlite(sqlite3 *database, const char *sql)
{
    SqliteStatement statement(database, sql);
    while (statement.step()) {
    }
}

long long sqliteNumber(sqlite3 *database, const char *sql)
{
    SqliteStatement statement(database, sql);
    return statement.step() ? statement.integer(0) : 0;
}

SqliteTransaction::SqliteTransaction(sqlite3 *database) : m_database(database)
{
    runSqlite(database, "BEGIN IMMEDIATE");
}

SqliteTransaction::~SqliteTransaction()
{
    // Some failures, a full disk among them, have undone it already.
    if (!sqlite3_get_autocommit(m_database))
        sqlite3_exec(m_database, "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqliteTransaction::commit()
{
    runSqlite(m_database, "COMMIT");
}

}  // namespace penwright
