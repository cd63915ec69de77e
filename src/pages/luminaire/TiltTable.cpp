#include "pages/luminaire/TiltTable.h"

#include "core/NumberText.h"

namespace penwright {

bool TiltTable::takeCount(std::string_view text)
{
    if (!isNumeric(text) || toDouble(text) <= 0 || toDouble(text) > kMostAngles + 1)
        return false;
    const int count = toInt32(text);
    if (count < 1 || count > kMostAngles)
        return false;
    m_angles.reset(count);
    m_factors.reset(count);
    return true;
}

std::string TiltTable::read(int row, int column) const
{
    return generalText(column == kAngle ? m_angles(row) : m_factors(row));
}

RelativeRow TiltTable::relativeRow(std::string_view start, int offset) const
{
    const int fromNowhere = offset < 0 ? rowCount() + 1 : 0;
    const int row = (start.empty() ? fromNowhere : toInt32(start)) + offset;
    return {row >= 1 && row <= rowCount() ? std::to_string(row) : "", row};
}

std::optional<MessageBox> TiltTable::check(int row, int column, std::string_view text) const
{
    const std::string cell = "Row " + std::to_string(row) + ", " + columnCaption(column) + ": ";
    const auto refuse = [&](const std::string &why) { return MessageBox{.text = cell + why, .title = m_title}; };
    if (!isNumeric(text))
        return refuse('"' + std::string(text) + "\" is not a number.");
    try {
        static_cast<void>(toSingle(text));
        return std::nullopt;
    } catch (const RunTimeError &error) {
        return refuse(error.description());
    }
}

std::optional<MessageBox> TiltTable::write(int row, int column, std::string_view text)
{
    if (auto refusal = check(row, column, text))
        return refusal;
    value(row, column) = toSingle(text);
    return std::nullopt;
}

std::optional<MessageBox> TiltTable::clear(int row, int column)
{
    value(row, column) = 0;
    return std::nullopt;
}

}  // namespace penwright
