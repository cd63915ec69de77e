#include "platform/sqlite/DraftFile.h"

#include <sqlite3.h>

#include <initializer_list>
#include <set>
#include <string_view>
#include <utility>

#include "platform/sqlite/SqliteStatement.h"

namespace penwright {
namespace {

constexpr long long kApplication = 1282753650;
constexpr long long kDraftVersion = 1;
constexpr int kPatienceInMilliseconds = 1000;

constexpr const char *kTables[]{
    "CREATE TABLE draft (only_one INTEGER PRIMARY KEY CHECK (only_one = 1), ordering INTEGER NOT NULL, "
    "time INTEGER NOT NULL, page INTEGER NOT NULL, about TEXT NOT NULL, sum INTEGER NOT NULL)",
    "CREATE TABLE held (position INTEGER PRIMARY KEY, page INTEGER NOT NULL, name TEXT NOT NULL, text TEXT NOT NULL, "
    "sum INTEGER NOT NULL, UNIQUE (page, name))",
    "PRAGMA application_id = 1282753650",  // "LuDr"
    "PRAGMA user_version = 1",
};

/// A sum over texts and their lengths (FNV-1a), by which a changed byte is found.
std::int64_t sumOf(std::initializer_list<std::string_view> texts)
{
    std::uint64_t sum = 14695981039346656037U;
    const auto add = [&sum](std::string_view bytes) {
        for (const char byte : bytes)
            sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    };
    for (const std::string_view text : texts) {
        add(text);
        add("/" + std::to_string(text.size()) + ";");
    }
    return static_cast<std::int64_t>(sum);
}

std::int64_t sumOf(const DraftMark &mark)
{
    return sumOf(
        {std::to_string(mark.order), std::to_string(mark.head.time), std::to_string(mark.head.page), mark.head.about});
}

std::int64_t sumOf(const DraftText &text)
{
    return sumOf({std::to_string(text.page), text.name, text.text});
}

/// Why a file is none that can be taken over; nobody is told more than that.
SqliteFailure failureOf(int code)
{
    return {code, sqlite3_errstr(code)};
}

bool isNew(sqlite3 *database)
{
    return sqliteNumber(database, "SELECT count(*) FROM sqlite_schema") == 0 &&
           sqliteNumber(database, "PRAGMA application_id") == 0 && sqliteNumber(database, "PRAGMA user_version") == 0;
}

void expectVersion(sqlite3 *database)
{
    if (sqliteNumber(database, "PRAGMA application_id") != kApplication ||
        sqliteNumber(database, "PRAGMA user_version") != kDraftVersion)
        throw failureOf(SQLITE_MISMATCH);
}

void writeMark(sqlite3 *database, const DraftMark &mark)
{
    SqliteStatement write(database,
                          "INSERT OR REPLACE INTO draft (only_one, ordering, time, page, about, sum) "
                          "VALUES (1, ?, ?, ?, ?, ?)");
    write.bind(1, mark.order).bind(2, mark.head.time).bind(3, mark.head.page).bind(4, mark.head.about);
    write.bind(5, sumOf(mark)).step();
}

/// What is kept under the names of controls: the page and the name.
using Place = std::pair<long long, std::string>;

std::set<Place> placesIn(sqlite3 *database)
{
    std::set<Place> places;
    SqliteStatement read(database, "SELECT page, name FROM held");
    while (read.step())
        places.emplace(read.integer(0), read.text(1));
    return places;
}

/// A text as long as a table is written anew only when it has changed.
void writeTexts(sqlite3 *database, const DraftTextSource &texts)
{
    std::set<Place> gone = placesIn(database);
    SqliteStatement write(database,
                          "INSERT INTO held (page, name, text, sum) VALUES (?, ?, ?, ?) "
                          "ON CONFLICT (page, name) DO UPDATE SET text = excluded.text, sum = excluded.sum "
                          "WHERE text <> excluded.text");
    while (const std::optional<DraftText> text = texts()) {
        SqliteRun run(write);
        run->bind(1, text->page).bind(2, text->name).bind(3, text->text).bind(4, sumOf(*text)).step();
        gone.erase({text->page, text->name});
    }
    SqliteStatement remove(database, "DELETE FROM held WHERE page = ? AND name = ?");
    for (const auto &[page, name] : gone) {
        SqliteRun run(remove);
        run->bind(1, page).bind(2, name).step();
    }
}

// A commit waits for the disk neither in the first transaction, which has nothing to lose yet, nor later in WAL mode: a
// disk that takes seconds would cost seconds of typing when the process is killed meanwhile. What a power cut leaves is
// sound all the same.
void makeDraft(sqlite3 *database, const DraftMark &mark, const DraftTextSource &texts)
{
    runSqlite(database, "PRAGMA synchronous = OFF");
    SqliteTransaction transaction(database);
    for (const char *statement : kTables)
        runSqlite(database, statement);
    writeMark(database, mark);
    writeTexts(database, texts);
    transaction.commit();
    runSqlite(database, "PRAGMA journal_mode = WAL");
    runSqlite(database, "PRAGMA synchronous = NORMAL");
}

}  // namespace

SqliteHandle openDraftFile(const std::string &path)
{
    SqliteHandle database = openExistingSqlite(path, kPatienceInMilliseconds);
    // What stands in the file is no reason to run anything.
    runSqlite(database.get(), "PRAGMA trusted_schema = OFF");
    runSqlite(database.get(), "PRAGMA cell_size_check = ON");
    runSqlite(database.get(), "PRAGMA synchronous = NORMAL");
    return database;
}

DraftMark readDraftMark(sqlite3 *database)
{
    if (isNew(database))
        return {.isEmpty = true};
    expectVersion(database);
    SqliteStatement read(database, "SELECT ordering, time, page, about, sum FROM draft");
    if (!read.step())
        throw failureOf(SQLITE_CORRUPT);
    DraftMark mark{.order = read.integer(0),
                   .head = {read.integer(1), static_cast<int>(read.integer(2)), read.text(3)}};
    if (read.integer(4) != sumOf(mark))
        throw failureOf(SQLITE_CORRUPT);
    return mark;
}

std::vector<DraftText> readDraftTexts(sqlite3 *database)
{
    std::vector<DraftText> texts;
    SqliteStatement read(database, "SELECT page, name, text, sum FROM held ORDER BY position");
    while (read.step()) {
        texts.push_back({static_cast<int>(read.integer(0)), read.text(1), read.text(2)});
        if (read.integer(3) != sumOf(texts.back()))
            throw failureOf(SQLITE_CORRUPT);
    }
    return texts;
}

void writeDraft(sqlite3 *database, const DraftMark &mark, const DraftTextSource &texts)
{
    if (isNew(database))
        return makeDraft(database, mark, texts);
    SqliteTransaction transaction(database);
    writeMark(database, mark);
    writeTexts(database, texts);
    transaction.commit();
}

void settleDraft(sqlite3 *database)
{
    runSqlite(database, "PRAGMA journal_mode = DELETE");
}

}  // namespace penwright
