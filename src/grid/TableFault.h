#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace penwright {

/// Why a text is no table, for the user.
struct TableFault {
    std::string text;      ///< what stands there, what is needed, what was read before; "" when reading was stopped
    std::size_t line = 0;  ///< of the text, counted from 1; 0 when no line is to blame
    std::size_t cell = 0;  ///< of the line, counted from 1; 0 when no cell is to blame
};

/// A fault whose text begins with its place, as "Line 3, cell 2: ". Without a cell the whole line is to blame.
TableFault faultAt(std::size_t line, std::size_t cell, const std::string &wrong);

/// The fault of a text without a line of values. `remark` is that of its first line of words, if it has one.
TableFault faultOfNothing(const std::optional<TableFault> &remark);

}  // namespace penwright
