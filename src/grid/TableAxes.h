#pragma once

#include "grid/TableReading.h"
#include "grid/TableSample.h"

namespace penwright {

/// Finds, for a table whose separator and signs are known, how many lines stand before it, whether its first line and
/// its first column hold angles, and which of them are the vertical ones, and puts that into the reading.
void findAxes(const TableSample &sample, TableReading &reading);

}  // namespace penwright
