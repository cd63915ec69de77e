#include "pages/luminaire/TiltTable.h"

#include "core/NumberText.h"
#include "grid/HeldCells.h"
#include "grid/TableNumber.h"

namespace penwright {

std::string HeldTilt::textOf(const TiltValues &values)
{
    std::string text;
    for (int row = 1; row <= values.angles.size(); ++row) {
        appendHeldNumber(text, values.angles(row));
        text += '\t';
        appendHeldNumber(text, values.factors(row));
        text += '\n';
    }
    return text;
}

std::optional<TiltValues> HeldTilt::valuesOf(std::string_view text)
{
    const auto number = [](std::optional<std::string_view> cell) {
        return cell ? heldNumber<float>(*cell) : std::nullopt;
    };
    TiltValues values;
    for (HeldCells cells(text); !cells.isAtEnd();) {
        const auto angle = number(cells.next('\t'));
        const auto factor = number(cells.next('\n'));
        if (!angle || !factor || values.angles.size() == TiltTable::kMostAngles)
            return std::nullopt;
        values.angles.append(*angle);
        values.factors.append(*factor);
    }
    return values;
}

std::size_t HeldTilt::bytesOf(const TiltValues &values)
{
    return static_cast<std::size_t>(values.angles.size() + values.factors.size()) * sizeof(float);
}

std::optional<GridEdit> TiltTable::newCount(std::string_view text)
{
    if (!isNumeric(text) || toDouble(text) <= 0 || toDouble(text) > kMostAngles + 1)
        return std::nullopt;
    const int count = toInt32(text);
    if (count < 1 || count > kMostAngles || count == rowCount())
        return std::nullopt;
    if (count == m_atBegin.angles.size())
        return replacement("New Count", m_atBegin);
    return replacement("New Count", {OneBased<float>(count), OneBased<float>(count)});
}

std::string TiltTable::read(int row, int column) const
{
    return generalText(column == kAngle ? angles()(row) : factors()(row));
}

RelativeRow TiltTable::relativeRow(std::string_view start, int offset) const
{
    const int row = rowAtDistance(start, offset < 0 ? rowCount() + 1 : 0, offset);
    return {row >= 1 && row <= rowCount() ? std::to_string(row) : "", row};
}

std::optional<MessageBox> TiltTable::check(int row, int column, std::string_view text) const
{
    const std::string cell = "Row " + std::to_string(row) + ", " + columnCaption(column) + ": ";
    const auto refuse = [&](const std::string &why) { return MessageBox{.text = cell + why, .title = m_title}; };
    if (!isNumeric(text))
        return refuse("\"" + std::string(text) + "\"" + whyNoNumber(text));
    try {
        static_cast<void>(toSingle(text));
        return std::nullopt;
    } catch (const RunTimeError &error) {
        return refuse(error.description());
    }
}

void TiltTable::write(TiltValues &values, int row, int column, std::string_view text) const
{
    (column == kAngle ? values.angles : values.factors)(row) = toSingle(text);
}

}  // namespace penwright
