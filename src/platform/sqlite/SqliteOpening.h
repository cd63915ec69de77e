#pragma once

#include <memory>
#include <string>

struct sqlite3;

namespace penwright {

struct SqliteCloser {
    void operator()(sqlite3 *database) const;
};
using SqliteHandle = std::unique_ptr<sqlite3, SqliteCloser>;

/// Opens the database file at `path`, or a new one. Throws SqliteFailure.
SqliteHandle openSqlite(const std::string &path);

/// Opens the database file at `path`, which is there and no link. Statements wait for `milliseconds` while another
/// process has it. Throws SqliteFailure.
SqliteHandle openExistingSqlite(const std::string &path, int milliseconds);

/// Makes sure that the open database is a settings store of version 1 in WAL mode, and creates what is missing. A newer
/// version, a file that is no database and a table of another form are left as they are. Throws SqliteFailure, busy
/// where another process is at the same; it can then be called again.
void makeSettingsStore(sqlite3 *database);

}  // namespace penwright
