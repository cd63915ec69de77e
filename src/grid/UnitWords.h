#pragma once

#include <string_view>

#include "grid/TableReading.h"
#include "grid/TableSample.h"

namespace penwright {

/// The unit of a table's values by the words of the text's beginning: candela where nothing else is named. Percent and
/// lux count where a line above the values says that they are in them.
ValueUnit unitOf(std::string_view beginning, const TableSample &sample, const TableReading &reading);

}  // namespace penwright
