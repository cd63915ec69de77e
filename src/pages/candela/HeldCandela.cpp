#include "pages/candela/HeldCandela.h"

#include <algorithm>

#include "grid/HeldCells.h"

namespace penwright {
namespace {

constexpr char kDouble = 'd';

std::optional<CandelaCell> cellFrom(std::string_view text)
{
    if (text.empty())
        return CandelaCell();
    if (text.back() != kDouble)
        return heldNumber<float>(text);
    return heldNumber<double>(text.substr(0, text.size() - 1));
}

}  // namespace

std::string heldCells(const OneBasedTable<CandelaCell> &cells)
{
    std::string text;
    for (int v = 1; v <= cells.columns(); ++v)
        for (int h = 1; h <= cells.rows(); ++h) {
            const CandelaCell &cell = cells(h, v);
            if (const auto *single = std::get_if<float>(&cell)) {
                appendHeldNumber(text, *single);
            } else if (const auto *kept = std::get_if<double>(&cell)) {
                appendHeldNumber(text, *kept);
                text += kDouble;
            }
            text += h < cells.rows() ? '\t' : '\n';
        }
    return text;
}

std::optional<OneBasedTable<CandelaCell>> cellsFromHeld(std::string_view text)
{
    const std::string_view first = text.substr(0, text.find('\n'));
    const auto horizontal = 1 + static_cast<int>(std::count(first.begin(), first.end(), '\t'));
    const auto vertical = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    // Each cell has its separator, so that no text takes more memory than its length is worth.
    if (static_cast<std::size_t>(horizontal) * static_cast<std::size_t>(vertical) > text.size())
        return std::nullopt;
    OneBasedTable<CandelaCell> cells(horizontal, vertical);
    HeldCells held(text);
    for (int v = 1; v <= vertical; ++v)
        for (int h = 1; h <= horizontal; ++h) {
            const auto line = held.next(h < horizontal ? '\t' : '\n');
            const auto cell = line ? cellFrom(*line) : std::nullopt;
            if (!cell)
                return std::nullopt;
            cells(h, v) = *cell;
        }
    return held.isAtEnd() ? std::optional(std::move(cells)) : std::nullopt;
}

}  // namespace penwright
