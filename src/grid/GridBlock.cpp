#include "grid/GridBlock.h"

#include <algorithm>
#include <utility>

#include "grid/PastedCells.h"

namespace penwright {
namespace {

/// The lines as they are but for the lines and columns behind the last text of the block.
GridLines trimmed(GridLines lines)
{
    std::size_t height = 0;
    std::size_t width = 0;
    for (std::size_t row = 0; row < lines.size(); ++row) {
        for (std::size_t column = 0; column < lines[row].size(); ++column) {
            if (lines[row][column].empty())
                continue;
            height = row + 1;
            width = std::max(width, column + 1);
        }
    }
    if (height == 0)
        return lines;
    lines.resize(height);
    for (auto &line : lines)
        line.resize(std::min(line.size(), width));
    return lines;
}

}  // namespace

std::optional<std::string> textOfOneCell(std::string_view text)
{
    PastedCells cells(text);
    auto cell = cells.next();
    if (!cell)
        return std::string();
    return cell->endsLine && cells.isAtEnd() ? std::optional(std::move(cell->text)) : std::nullopt;
}

GridLines splitGridBlock(std::string_view text)
{
    GridLines lines;
    PastedCells cells(text);
    bool beginsLine = true;
    while (auto cell = cells.next()) {
        if (beginsLine)
            lines.emplace_back();
        lines.back().push_back(std::move(cell->text));
        beginsLine = cell->endsLine;
    }
    return trimmed(std::move(lines));
}

std::size_t widestLine(const GridLines &lines)
{
    std::size_t widest = 0;
    for (const auto &line : lines)
        widest = std::max(widest, line.size());
    return widest;
}

}  // namespace penwright
