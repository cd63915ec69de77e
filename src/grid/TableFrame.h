#pragma once

#include "grid/TableLines.h"

namespace penwright {

/// Finds, by a text's first lines, what stands beside its table and is no part of it, where that is sure: at least
/// three lines that all have it, and angles that rise as lists of them do.
TableFrame tableFrame(std::string_view text, TableSeparator separator);

}  // namespace penwright
