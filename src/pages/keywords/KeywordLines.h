#pragma once

#include <string>

#include "core/PhotometricRecord.h"
#include "pages/keywords/KeywordRows.h"
#include "wizard/WarningList.h"

namespace penwright {

/// The most characters that a line passes with; the message about a longer one says "less than" all the same.
inline constexpr int kMostLineCharacters = 254;

/// Adds a line for each fault of the keyword rows, in their order. Always true: what counts is whether the list is
/// clean. The places of the faults are the grid's cells.
bool gfnKeyVerify(const OneBased<KeywordRow> &rows, WarningList &dlgWarn);

/// Makes the record's keyword lines of the rows: key, one blank, value for each row, the empty ones included. Its own
/// result is empty.
std::string gfnKeyPull(const OneBased<KeywordRow> &rows, PhotometricRecord &record);

/// Stores verified rows in the record: key, one blank, value. A row without a key leaves its line empty, and a key
/// without a value ends with the blank, the version line too.
void storeKeywordLines(const OneBased<KeywordRow> &rows, PhotometricRecord &record);

}  // namespace penwright
