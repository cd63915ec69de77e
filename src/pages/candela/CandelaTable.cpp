#include "pages/candela/CandelaTable.h"

#include "core/CodePoints.h"
#include "core/NumberText.h"
#include "pages/candela/PastedValues.h"

namespace penwright {
namespace {

constexpr std::string_view kLabelCaption = "  ";

constexpr double kRefusedFrom = 9999999;  // though the message speaks of 10 million

/// The beginning of a text that a message box has room for.
std::string shortened(std::string_view text)
{
    constexpr std::size_t kMostBytes = 60;
    const std::string_view beginning = withinBytes(text, kMostBytes);
    return std::string(beginning) + (beginning.size() < text.size() ? "..." : "");
}

}  // namespace

CandelaTable::CandelaTable(ToolState &state, CandelaState &flags, std::string title)
    : m_state(state), m_flags(flags), m_title(std::move(title))
{
}

void CandelaTable::lsbStart()
{
    const PhotometricRecord &from = m_state.PhotFiles(1);
    const int horizontal = from.NumHorzAngles;
    const int vertical = from.NumVertAngles;
    if (horizontal > from.HorAngles.size() || vertical > from.VertAngles.size())
        throw subscriptOutOfRange();
    if (!m_flags.GridStarted || m_state.CandelaWorkRecord.empty())
        m_state.CandelaWorkRecord.reset(1);
    PhotometricRecord &work = m_state.CandelaWorkRecord(1);
    work.NumHorzAngles = from.NumHorzAngles;
    work.NumVertAngles = from.NumVertAngles;
    work.Candela.resizeKeeping(horizontal, vertical);
    work.PhotometricType = from.PhotometricType;
    work.HorAngles = from.HorAngles;
    work.HorAngles.resize(horizontal);
    work.VertAngles = from.VertAngles;
    work.VertAngles.resize(vertical);

    m_cells.reset(horizontal, vertical);
    if (m_flags.GridStarted)
        for (int h = 1; h <= horizontal; ++h)
            for (int v = 1; v <= vertical; ++v)
                m_cells(h, v) = work.Candela(h, v);
    m_flags.GridReady = true;
    m_flags.GridStarted = true;
}

std::string CandelaTable::CopyCandelaTable() const
{
    const int horizontal = m_cells.rows();
    std::string text;
    for (int v = 1; v <= m_cells.columns(); ++v) {
        for (int h = 1; h <= horizontal; ++h) {
            appendTextOf(text, m_cells(h, v));
            if (h < horizontal)
                text += '\t';
        }
        text += "\r\n";
    }
    return text;
}

std::optional<CandelaTable::PasteRefusal> CandelaTable::PasteCandelaTable(std::string_view text)
{
    PastedValues values(text);
    const int highest = values.count() - 1;
    const int needed = m_cells.rows() * m_cells.columns() - 1;
    if (highest != needed)
        return PasteRefusal{{.text = generalText(highest) + " values read; need " + generalText(needed)}};
    for (int v = 1; v <= m_cells.columns(); ++v)
        for (int h = 1; h <= m_cells.rows(); ++h) {
            const std::string_view value = values.next();
            try {
                take(h, v, toSingle(value));
            } catch (const RunTimeError &) {
                return PasteRefusal{pasteRefusal(h, v, value), v, h};
            }
        }
    return std::nullopt;
}

MessageBox CandelaTable::pasteRefusal(int h, int v, std::string_view text) const
{
    std::string place = "Row " + std::to_string(v) + ", column " + std::to_string(h);
    if (const auto angles = anglesOf(v, h))
        place += " (V:" + generalText(angles->vertical) + " H:" + generalText(angles->horizontal) + ")";
    const std::string why = isNumeric(text) ? " is too large a number." : " is not a number.";
    return {.text = place + ": \"" + shortened(text) + '"' + why + " The values before it have been pasted.",
            .title = m_title};
}

void CandelaTable::take(int h, int v, float value)
{
    m_cells(h, v) = value;
    // The host may have put a record of another size in the place of the working one.
    if (m_state.CandelaWorkRecord.empty())
        return;
    OneBasedTable<double> &kept = m_state.CandelaWorkRecord(1).Candela;
    if (h <= kept.rows() && v <= kept.columns())
        kept(h, v) = double{value};
}

const PhotometricRecord *CandelaTable::record() const
{
    return m_state.PhotFiles.empty() ? nullptr : &m_state.PhotFiles(1);
}

bool CandelaTable::isCell(int row, int column) const
{
    return row >= 1 && row <= m_cells.columns() && column >= 1 && column <= m_cells.rows();
}

std::optional<CandelaTable::CellAngles> CandelaTable::anglesOf(int row, int column) const
{
    const PhotometricRecord *from = record();
    if (!isCell(row, column) || !from || row > from->VertAngles.size() || column > from->HorAngles.size())
        return std::nullopt;
    return CellAngles{from->HorAngles(column), from->VertAngles(row)};
}

int CandelaTable::rowCount() const
{
    return m_flags.GridReady ? m_cells.columns() : 0;
}

int CandelaTable::columnCount() const
{
    return m_flags.GridReady ? 1 + m_cells.rows() : 0;
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
    if (!m_flags.GridReady)
        return {};
    // Never seen unless the host changes the record meanwhile; the two texts are fixed all the same.
    const PhotometricRecord *from = record();
    if (!from || row > from->NumVertAngles || row > from->VertAngles.size() || row < 1)
        return "out o bound";
    if (column == kLabelColumn)
        return generalText(from->VertAngles(row));
    if (column <= from->NumHorzAngles && isCell(row, column))
        return textOf(m_cells(column, row));
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

std::optional<MessageBox> CandelaTable::write(int row, int column, std::string_view text)
{
    if (!isCell(row, column))
        return std::nullopt;
    auto refusal = check(row, column, text);
    if (!refusal)
        take(column, row, toSingle(text));
    return refusal;
}

std::optional<MessageBox> CandelaTable::clear(int row, int column)
{
    if (isCell(row, column) && !numberOf(m_cells(column, row)))
        return std::nullopt;
    return write(row, column, {});
}

}  // namespace penwright
