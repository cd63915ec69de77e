#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pages/keywords/KeywordRows.h"
#include "platform/SettingsStore.h"

namespace penwright {

/// What a row's name in the stored defaults begins with: the character of code point 64 + row, "A" for row 1. The
/// surrogates, which are no characters, are stepped over: from row 55,232 on it is 2,048 further. "" for the rows from
/// 1,112,000 on, behind the last code point there is.
std::string defaultsPrefix(int row);

/// The user's default block, in the order in which it was written, or the built-in block of nine when none is stored.
/// Raises the errors of the store.
OneBased<KeywordRow> gsbKeyDefaultLoad(SettingsStore &store);

/// Replaces the user's default block with the rows, the empty ones included. Every error of the store is ignored: a row
/// that cannot be written is left out, and a store that cannot be written at all keeps the block that it had.
void gsbKeyDefaultSave(SettingsStore &store, const OneBased<KeywordRow> &rows);

/// The user's default block as the store has it, empty when none is stored; nothing when the store cannot be read.
std::optional<std::vector<Setting>> storedDefaults(SettingsStore &store);

/// Puts a block back that was stored once. An error of the store is ignored, and keeps the block that it has.
void restoreDefaults(SettingsStore &store, const std::vector<Setting> &block);

}  // namespace penwright
