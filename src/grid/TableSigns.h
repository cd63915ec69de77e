#pragma once

#include "grid/TableReading.h"
#include "grid/TableSample.h"

namespace penwright {

/// Finds the decimal sign and the sign between thousands of a table by the cells from its first line on, and from the
/// lines before it where its angles may stand, and puts them into the reading. "2.481" may be either: where all such
/// cells have three digits behind the sign, beside whole numbers below 1,000 that they fit as thousands, or beside
/// zeros without the digits that they have, it stands between thousands.
void findSigns(const TableSample &sample, TableReading &reading);

}  // namespace penwright
