#pragma once

#include <functional>
#include <string_view>
#include <variant>

#include "grid/TableContent.h"
#include "grid/TableFault.h"
#include "grid/TableReading.h"

namespace penwright {

/// Reads a table that has a line for each direction, in any order: two angles and the value. Each pair of the angles
/// that stand in it has one line, or that is a fault. Left out are lines without any number above the first of values,
/// behind the last, and those that name angles again. Takes time and memory in proportion to the text. `goOn` is asked
/// as when any table is read.
std::variant<TableContent, TableFault> readList(std::string_view text, const TableReading &reading,
                                                const std::function<bool(double)> &goOn);

}  // namespace penwright
