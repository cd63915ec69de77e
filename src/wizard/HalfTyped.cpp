#include "wizard/HalfTyped.h"

#include <optional>
#include <sstream>

#include "grid/GridView.h"

namespace penwright {
namespace {

constexpr const char *kEnd = ".editor";

std::string nameOf(const GridView &grid)
{
    return grid.objectName().toStdString() + kEnd;
}

std::string textOf(const GridText &cell)
{
    return std::to_string(cell.row) + " " + std::to_string(cell.column) + " " + cell.text;
}

std::optional<GridText> cellFrom(const std::string &text)
{
    std::istringstream in(text);
    GridText cell;
    if (!(in >> cell.row >> cell.column) || in.get() != ' ')
        return std::nullopt;
    std::getline(in, cell.text);
    return cell;
}

}  // namespace

PageValue halfTyped(const PageFields &fields)
{
    PageValue value;
    for (const GridView *grid : fields.grids())
        if (const auto cell = grid->halfTyped())
            value.push_back({nameOf(*grid), [text = textOf(*cell)] { return text; }});
    return value;
}

bool isHalfTyped(const std::string &name)
{
    return name.ends_with(kEnd);
}

void resumeTyping(const PageFields &fields, const PageText &texts)
{
    for (GridView *grid : fields.grids())
        if (const auto text = texts.find(nameOf(*grid)); text != texts.end())
            if (const auto cell = cellFrom(text->second))
                grid->resumeTyping(*cell);
}

}  // namespace penwright
