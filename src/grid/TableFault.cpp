#include "grid/TableFault.h"

namespace penwright {

TableFault faultAt(std::size_t line, std::size_t cell, const std::string &wrong)
{
    const std::string place = "Line " + std::to_string(line) + (cell > 0 ? ", cell " + std::to_string(cell) : "");
    return {place + ": " + wrong, line, cell};
}

TableFault faultOfNothing(const std::optional<TableFault> &remark)
{
    TableFault fault = remark.value_or(TableFault());
    const std::string needed = "No line of numbers was found; a table has one for each angle.";
    fault.text = fault.text.empty() ? needed : needed + " " + fault.text;
    return fault;
}

}  // namespace penwright
