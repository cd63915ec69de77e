#include "plot/PlotTable.h"

#include <cmath>

namespace penwright {

namespace {

std::optional<PlotPlace> placeIn(const OneBased<float> &angles, int count, const PlotAngle &angle)
{
    const float degrees = angle.degrees;
    if (angle.place >= 1 && angle.place <= count && angles(angle.place) == degrees)
        return PlotPlace{angle.place, angle.place, 0};
    for (int i = 1; i <= count; ++i)
        if (angles(i) == degrees)
            return PlotPlace{i, i, 0};
    for (int i = 1; i < count; ++i)
        if (angles(i) < degrees && degrees < angles(i + 1))
            return PlotPlace{i, i + 1,
                             (double{degrees} - double{angles(i)}) / (double{angles(i + 1)} - double{angles(i)})};
    return std::nullopt;
}

std::optional<double> between(std::optional<double> low, std::optional<double> high, double share)
{
    if (!low || !high)
        return std::nullopt;
    return inProportion(*low, *high, share);
}

}  // namespace

PlotTable::PlotTable(const PhotometricRecord &record) : m_record(record), m_cells(nullptr)
{
    checkSize(record.Candela.rows(), record.Candela.columns());
}

PlotTable::PlotTable(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells)
    : m_record(record), m_cells(&cells)
{
    checkSize(cells.rows(), cells.columns());
}

void PlotTable::checkSize(int rows, int columns) const
{
    const int horizontal = m_record.NumHorzAngles;
    const int vertical = m_record.NumVertAngles;
    if (horizontal < 0 || horizontal > m_record.HorAngles.size() || horizontal > rows || vertical < 0 ||
        vertical > m_record.VertAngles.size() || vertical > columns)
        throw subscriptOutOfRange();
}

std::optional<PlotPlace> PlotTable::horizontalPlace(const PlotAngle &angle) const
{
    return placeIn(m_record.HorAngles, m_record.NumHorzAngles, angle);
}

std::optional<PlotPlace> PlotTable::verticalPlace(const PlotAngle &angle) const
{
    return placeIn(m_record.VertAngles, m_record.NumVertAngles, angle);
}

std::vector<PlotNode> PlotTable::plane(const PlotPlace &horizontal) const
{
    std::vector<PlotNode> nodes;
    for (int v = 1; v <= m_record.NumVertAngles; ++v)
        nodes.push_back(
            {m_record.VertAngles(v), between(value(horizontal.low, v), value(horizontal.high, v), horizontal.share)});
    return nodes;
}

std::vector<PlotNode> PlotTable::cone(const PlotPlace &vertical) const
{
    std::vector<PlotNode> nodes;
    for (int h = 1; h <= m_record.NumHorzAngles; ++h)
        nodes.push_back(
            {m_record.HorAngles(h), between(value(h, vertical.low), value(h, vertical.high), vertical.share)});
    return nodes;
}

std::optional<double> PlotTable::value(int h, int v) const
{
    const std::optional<double> number = m_cells ? numberOf((*m_cells)(h, v)) : m_record.Candela(h, v);
    if (!number || !std::isfinite(*number) || *number < 0)
        return std::nullopt;
    return number;
}

}  // namespace penwright
