#pragma once

#include <string>
#include <vector>

#include "pages/keywords/KeywordRows.h"

namespace penwright {

/// What is said under the grid about the keyword of a row, counted from 1: the description of a standard keyword, or
/// what is to be made of another one. `isNew`: the row is the one to append.
std::string keywordHint(int row, const KeywordRow &line, bool isNew);

/// How many characters a line has of those that it may have: "123 of 254 characters".
std::string lengthHint(int characters);

/// Which rows stand empty and what becomes of them; "" when there is none.
std::string emptyRowsHint(const std::vector<int> &rows);

/// The hints in one text for a screen reader, which speaks it whenever it changes: it says that a line of so many
/// characters is too long, and leaves out the count, which is another one at each key.
std::string spokenHint(const std::string &keyword, int characters, const std::string &emptyRows);

}  // namespace penwright
