#pragma once

#include <cstdint>
#include <string>

#include "platform/DraftStore.h"
#include "platform/sqlite/SqliteOpening.h"

namespace penwright {

/// What a draft's file says before its texts are read.
struct DraftMark {
    bool isEmpty = false;    ///< nothing was ever written into the file
    std::int64_t order = 0;  ///< greater than that of any draft that was there when it was written
    DraftHead head{};
};

/// Opens the draft's file at `path`, which is there, and undoes what a killed run left half written. A file of nothing
/// is a new draft. Throws SqliteFailure.
SqliteHandle openDraftFile(const std::string &path);

/// Reads what the draft says of itself. A file that is no draft, of another version or damaged is a SqliteFailure that
/// says so, SQLITE_MISMATCH where it is sound as a database.
DraftMark readDraftMark(sqlite3 *database);

/// Reads all texts, in the order in which they were first written. Each is held against its check sum: what is not as
/// it was written is a SqliteFailure of SQLITE_CORRUPT.
std::vector<DraftText> readDraftTexts(sqlite3 *database);

/// Writes the whole draft as one transaction; texts that have not changed are left alone. Throws SqliteFailure, and
/// what `texts` throws; the file then holds what it held before.
void writeDraft(sqlite3 *database, const DraftMark &mark, const DraftTextSource &texts);

/// Makes the draft one file, without others beside it that belong to its name. Throws SqliteFailure.
void settleDraft(sqlite3 *database);

}  // namespace penwright
