#include "pages/candela/CandelaTable.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "core/NumberText.h"
#include "grid/TableNumber.h"
#include "pages/candela/HeldCandela.h"
#include "pages/candela/PastedValues.h"
#include "pages/candela/PasteHints.h"

namespace penwright {
namespace {

constexpr std::string_view kLabelCaption = "  ";

constexpr double kRefusedFrom = 9999999;  // though the message speaks of 10 million

}  // namespace

CandelaTable::CandelaTable(ToolState &state, std::string title)
    : m_state(state), m_numbers(state), m_title(std::move(title))
{
}

GridEdit CandelaTable::newTable()
{
    const PhotometricRecord &from = m_state.PhotFiles(1);
    if (from.NumHorzAngles > from.HorAngles.size() || from.NumVertAngles > from.VertAngles.size())
        throw subscriptOutOfRange();
    return {.name = "New Table", .reach = GridReach::Table, .content = m_numbers.ofAngles(from)};
}

GridEdit CandelaTable::pastedTable(const PhotometricRecord &angles, OneBasedTable<CandelaCell> cells)
{
    GridEdit edit{.name = "Paste Table"};
    if (m_numbers.flags().GridReady && m_numbers.isFor(angles)) {
        edit.reach = GridReach::Values;
        edit.content = m_numbers.withFirst(std::move(cells), CandelaCells().rows() * CandelaCells().columns());
    } else {
        edit.reach = GridReach::Table;
        edit.content = m_numbers.ofAnglesAndCells(angles, std::move(cells));
    }
    return edit;
}

bool CandelaTable::isOutdated() const
{
    const PhotometricRecord *now = record();
    return m_numbers.flags().GridReady && now && !m_numbers.isFor(*now);
}

bool CandelaTable::hasBlanks() const
{
    return hasCell([](const CandelaCell &cell) { return !numberOf(cell); });
}

bool CandelaTable::hasValues() const
{
    return m_numbers.flags().GridReady &&
           hasCell([](const CandelaCell &cell) { return numberOf(cell).value_or(0) != 0; });
}

template <typename Test>
bool CandelaTable::hasCell(const Test &test) const
{
    for (int h = 1; h <= CandelaCells().rows(); ++h)
        for (int v = 1; v <= CandelaCells().columns(); ++v)
            if (test(CandelaCells()(h, v)))
                return true;
    return false;
}

std::string CandelaTable::CopyCandelaTable() const
{
    const int horizontal = CandelaCells().rows();
    std::string text;
    for (int v = 1; v <= CandelaCells().columns(); ++v) {
        for (int h = 1; h <= horizontal; ++h) {
            appendTextOf(text, CandelaCells()(h, v));
            if (h < horizontal)
                text += '\t';
        }
        text += "\r\n";
    }
    return text;
}

GridEdit CandelaTable::PasteCandelaTable(std::string_view text)
{
    GridEdit edit{.name = "Paste", .reach = GridReach::Values};
    PastedValues values(text);
    const int highest = values.count() - 1;
    const int needed = CandelaCells().rows() * CandelaCells().columns() - 1;
    if (highest != needed) {
        edit.refused = {.box = {.text = generalText(highest) + " values read; need " + generalText(needed)}};
        edit.hint = wholeTableHint(values, CandelaCells().columns(), CandelaCells().rows());
        return edit;
    }
    OneBasedTable<CandelaCell> pasted = CandelaCells();
    if (const int count = fill(pasted, values, edit); count > 0)
        edit.content = m_numbers.withFirst(std::move(pasted), count);
    return edit;
}

/// Puts the values into the cells, up to one that is no number, and says what is to be said of them; how many that
/// were.
int CandelaTable::fill(OneBasedTable<CandelaCell> &cells, PastedValues &values, GridEdit &edit) const
{
    LostThousands lost(cells.rows(), cells.rows() * cells.columns());
    for (int v = 1; v <= cells.columns(); ++v)
        for (int h = 1; h <= cells.rows(); ++h) {
            const std::string_view value = values.next();
            try {
                cells(h, v) = toSingle(value);
            } catch (const RunTimeError &) {
                const int count = (v - 1) * cells.rows() + h - 1;
                const std::string cell = cellName(h, v);
                edit.refused = {v, h, {.text = pasteRefusal(cell, value, count == 0), .title = m_title}};
                if (count > 0)
                    edit.hint = joinedHints(arrangementHint(values, cells.rows()), boundaryHint(cell));
                edit.hint = joinedHints(edit.hint, otherSignsHint(value));
                return count;
            }
            lost.look(value);
        }
    edit.hint = joinedHints(arrangementHint(values, cells.rows()), lostThousandsHint(cells, lost.jump(cells)));
    return cells.rows() * cells.columns();
}

std::string CandelaTable::lostThousandsHint(const OneBasedTable<CandelaCell> &cells,
                                            const std::optional<LostThousands::Jump> &jump) const
{
    if (!jump)
        return {};
    const auto [low, beside] = *jump;
    return thousandsHint(textOf(cells(low.h, low.v)), cellName(low.h, low.v), textOf(cells(beside.h, beside.v)));
}

GridEdit CandelaTable::paste(const GridBlock &, std::string_view text, const std::string &)
{
    return PasteCandelaTable(text);
}

std::optional<std::string> CandelaTable::copy(const GridBlock &) const
{
    return CopyCandelaTable();
}

std::string CandelaTable::cellName(int h, int v) const
{
    std::string name = "Row " + std::to_string(v) + ", column " + std::to_string(h);
    if (const auto angles = anglesOf(v, h))
        name += " (V:" + generalText(angles->vertical) + " H:" + generalText(angles->horizontal) + ")";
    return name;
}

const PhotometricRecord *CandelaTable::record() const
{
    return m_state.PhotFiles.empty() ? nullptr : &m_state.PhotFiles(1);
}

bool CandelaTable::isCell(int row, int column) const
{
    return row >= 1 && row <= CandelaCells().columns() && column >= 1 && column <= CandelaCells().rows();
}

std::optional<CandelaTable::CellAngles> CandelaTable::anglesOf(int row, int column) const
{
    const PhotometricRecord *from = record();
    if (!isCell(row, column) || !from || row > from->VertAngles.size() || column > from->HorAngles.size())
        return std::nullopt;
    return CellAngles{from->HorAngles(column), from->VertAngles(row), column, row};
}

int CandelaTable::rowCount() const
{
    return m_numbers.flags().GridReady ? CandelaCells().columns() : 0;
}

int CandelaTable::columnCount() const
{
    return m_numbers.flags().GridReady ? 1 + CandelaCells().rows() : 0;
}

std::string CandelaTable::columnCaption(int column) const
{
    const PhotometricRecord *from = record();
    if (column == kLabelColumn)
        return std::string(kLabelCaption);
    return from && column >= 1 && column <= from->HorAngles.size() ? generalText(from->HorAngles(column)) : "";
}

std::string CandelaTable::rowName(int row) const
{
    return "V " + read(row, kLabelColumn);
}

std::string CandelaTable::columnName(int column) const
{
    return column == kLabelColumn ? "Vertical angle" : "H " + columnCaption(column);
}

std::string CandelaTable::read(int row, int column) const
{
    if (!m_numbers.flags().GridReady)
        return {};
    // Never seen unless the host changes the record meanwhile; the two texts are fixed all the same.
    const PhotometricRecord *from = record();
    if (!from || row > from->NumVertAngles || row > from->VertAngles.size() || row < 1)
        return "out o bound";
    if (column == kLabelColumn)
        return generalText(from->VertAngles(row));
    if (column <= from->NumHorzAngles && isCell(row, column))
        return textOf(CandelaCells()(column, row));
    return "fug";
}

std::optional<MessageBox> CandelaTable::check(int, int, std::string_view text) const
{
    if (!isNumeric(text))
        return MessageBox{.text = "Not a number I know.", .title = "Invalid entry"};
    const double value = toDouble(text);
    if (value < 0)
        return MessageBox{.text = "candela values cannot be negative!"};
    if (!(value < kRefusedFrom))
        return MessageBox{.text = "candel values must be less than 10 million."};
    return std::nullopt;
}

std::string CandelaTable::hintOfRefused(std::string_view text) const
{
    return std::string(signAdvice(text));
}

std::unique_ptr<GridContent> CandelaTable::contentAfter(const GridEdit &edit)
{
    std::vector<CandelaNumbers::Cell> cells;
    for (const GridText &cell : edit.texts)
        if (isCell(cell.row, cell.column))
            cells.push_back({cell.column, cell.row, toSingle(cell.text)});
    return m_numbers.withCells(std::move(cells));
}

std::function<std::string()> CandelaTable::held() const
{
    if (!m_numbers.flags().GridReady)
        return GridSource::held();
    // Memory that is new costs more than the copy: what was handed out last is taken again once nobody has it.
    if (!m_handedOut || m_handedOut.use_count() > 1)
        m_handedOut = std::make_shared<OneBasedTable<CandelaCell>>();
    std::atomic_thread_fence(std::memory_order_acquire);  // another thread may have had it
    *m_handedOut = CandelaCells();
    return [cells = std::shared_ptr<const OneBasedTable<CandelaCell>>(m_handedOut)] { return heldCells(*cells); };
}

std::optional<GridEdit> CandelaTable::fromHeld(std::string_view text)
{
    if (text.empty())  // of a table that was not built
        return GridEdit();
    const auto held = m_numbers.flags().GridReady ? cellsFromHeld(text) : std::nullopt;
    if (!held)
        return std::nullopt;
    OneBasedTable<CandelaCell> cells = CandelaCells();
    for (int h = 1; h <= std::min(cells.rows(), held->rows()); ++h)
        for (int v = 1; v <= std::min(cells.columns(), held->columns()); ++v)
            cells(h, v) = (*held)(h, v);
    GridEdit edit{.reach = GridReach::Values};
    edit.content = m_numbers.withFirst(std::move(cells), CandelaCells().rows() * CandelaCells().columns());
    return edit;
}

std::string CandelaTable::emptied(int row, int column) const
{
    const bool isBlank = isCell(row, column) && !numberOf(CandelaCells()(column, row));
    return isBlank ? read(row, column) : std::string();
}

}  // namespace penwright
