#pragma once

#include <string_view>

#include "grid/TableReading.h"
#include "grid/TableSample.h"

namespace penwright {

/// Finds out, for a table whose separator and signs are known, whether it is a list of directions, two angles and a
/// value in each line, and if so puts into the reading where it begins and which angle is the vertical one.
bool findList(const TableSample &sample, std::string_view text, TableReading &reading);

}  // namespace penwright
