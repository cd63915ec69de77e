#include "pages/candela/PasteHints.h"

#include "core/CodePoints.h"
#include "core/Counted.h"
#include "core/NumberText.h"
#include "grid/TableNumber.h"
#include "pages/candela/PastedValues.h"

namespace penwright {
namespace {

/// The beginning of a text that a message box has room for.
std::string shortened(std::string_view text)
{
    constexpr std::size_t kMostBytes = 60;
    const std::string_view beginning = withinBytes(text, kMostBytes);
    return std::string(beginning) + (beginning.size() < text.size() ? "..." : "");
}

}  // namespace

std::string arrangementHint(const PastedValues &values, int columns)
{
    const int shortest = values.shortestLine();
    const int longest = values.longestLine();
    if (shortest == columns && longest == columns)
        return {};
    const std::string table = " pasted into " + counted(columns, "column");
    if (longest == values.count())
        return "One line of " + counted(longest, "value") + " was" + table;
    const std::string least = shortest == longest ? "" : std::to_string(shortest) + " to ";
    return "Lines of " + least + counted(longest, "value") + " were" + table;
}

std::string wholeTableHint(const PastedValues &values, int rows, int columns)
{
    const std::string hint =
        "Ctrl+V pastes the whole table, here " + counted(rows, "row") + " of " + counted(columns, "value");
    if (values.count() == 1)
        return hint + ". Into this cell alone: F2, Ctrl+A, Ctrl+V";
    return hint + ", without angles. Paste Table... (Ctrl+Shift+V) takes a table with its angles";
}

std::string pasteRefusal(const std::string &cell, std::string_view text, bool isFirst)
{
    const std::string why = isNumeric(text) ? " is too large a number." : whyNoNumber(text);
    const std::string pasted = isFirst ? "" : " The values before it have been pasted.";
    return cell + ": \"" + shortened(text) + "\"" + why + pasted;
}

std::string otherSignsHint(std::string_view text)
{
    return signAdvice(text).empty() ? ""
                                    : "Paste Table... (Ctrl+Shift+V) takes decimal commas and signs between thousands";
}

std::string boundaryHint(std::string_view cell)
{
    return std::string(cell) + " and all behind it are as before the paste";
}

std::string thousandsHint(const std::string &value, const std::string &cell, const std::string &neighbour)
{
    return cell + ": " + value + " stands beside " + neighbour +
           ": was a sign between thousands read as a decimal point? Paste Table... (Ctrl+Shift+V) reads such signs";
}

std::string joinedHints(const std::string &one, const std::string &other)
{
    return one.empty() || other.empty() ? one + other : one + ". " + other;
}

}  // namespace penwright
