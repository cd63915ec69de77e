#include "grid/TableFault.h"

namespace penwright {

TableFault faultAt(std::size_t line, std::size_t cell, const std::string &wrong)
{
    const std::string place = "Line " + std::to_string(line) + (cell > 0 ? ", cell " + std::to_string(cell) : "");
    return {place + ": " + wrong, line, cell};
}

}  // namespace penwright
