#pragma once

#include <cmath>
#include <functional>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "core/CandelaCell.h"
#include "core/PhotometricRecord.h"
#include "support/RecordAngles.h"

namespace penwright::test {

/// One table to draw: angles, cells by (horizontal, vertical), and the plane and the cone that are shown.
struct PlotTableCase {
    std::string name;
    PhotometricRecord record;
    OneBasedTable<CandelaCell> cells;
    float horizontal = 0;
    float vertical = 0;
};

/// A candela value for an angle pair in degrees, not there for a blank cell.
using PlotValues = std::function<std::optional<double>(double horizontal, double vertical)>;

inline std::vector<float> anglesTo(float last, float step, float first = 0)
{
    std::vector<float> angles;
    for (int i = 0; first + static_cast<float>(i) * step <= last; ++i)
        angles.push_back(first + static_cast<float>(i) * step);
    return angles;
}

inline PlotTableCase plotTable(std::string name, std::int16_t type, const std::vector<float> &horizontal,
                               const std::vector<float> &vertical, const PlotValues &values, float h, float v)
{
    PlotTableCase table;
    table.name = std::move(name);
    setAngles(table.record, type, horizontal, vertical);
    table.cells.reset(table.record.NumHorzAngles, table.record.NumVertAngles);
    for (int row = 1; row <= table.cells.rows(); ++row)
        for (int column = 1; column <= table.cells.columns(); ++column)
            if (const auto value = values(double{table.record.HorAngles(row)}, double{table.record.VertAngles(column)}))
                table.cells(row, column) = static_cast<float>(*value);
    table.horizontal = h;
    table.vertical = v;
    return table;
}

inline double cosine(double degrees)
{
    return std::cos(degrees * std::numbers::pi / 180);
}

/// A row of lamps seen from below: a batwing across, a plain lobe along, nothing above the horizontal.
inline std::optional<double> batwing(double horizontal, double vertical)
{
    if (vertical >= 90)
        return 0;
    const double across = std::pow(cosine(horizontal), 2);
    const double wings = std::exp(-std::pow((vertical - 35) / 20, 2)) * 900 + 600 * std::pow(cosine(vertical), 3);
    return across * wings + (1 - across) * 1100 * cosine(vertical);
}

/// A street light: throws forward (0 degrees), little behind.
inline std::optional<double> forward(double horizontal, double vertical)
{
    if (vertical >= 90)
        return 0;
    const double ahead = (1 + cosine(horizontal)) / 2;
    return 400 * cosine(vertical) + 2400 * ahead * std::exp(-std::pow((vertical - 62) / 14, 2));
}

/// A narrow beam around the axis of a floodlight.
inline std::optional<double> beam(double horizontal, double vertical)
{
    return 25000 * std::exp(-(std::pow(horizontal / 30, 2) + std::pow((vertical + 5) / 12, 2)));
}

/// The tables that pictures and points are looked at with: every symmetry, every type, and what tables can lack.
inline std::vector<PlotTableCase> plotTables()
{
    const auto nothing = [](double, double) { return std::nullopt; };
    const auto lobe = [](double, double v) { return v <= 90 ? 1000 * cosine(v) : 0; };
    const auto upDown = [](double, double v) { return 300 * std::pow(cosine(v), 2) * (v > 90 ? 2.5 : 1); };
    const auto spike = [](double h, double v) { return h == 0 && v == 40 ? 5000 : 0; };
    const auto holes = [](double h, double v) -> std::optional<double> {
        return (v > 25 && v < 45) || h == 45 ? std::nullopt : batwing(h, v);
    };
    const auto signs = [](double h, double v) { return v == 30 || h == 90 ? -500 : *batwing(h, v); };
    return {
        plotTable("one angle", kTypeC, {0}, anglesTo(90, 5), lobe, 0, 45),
        plotTable("one angle, up and down", kTypeC, {0}, anglesTo(180, 5), upDown, 0, 120),
        plotTable("quadrants 0 to 90", kTypeC, anglesTo(90, 22.5F), anglesTo(90, 5), batwing, 0, 35),
        plotTable("quadrants 90 to 180", kTypeC, anglesTo(180, 15, 90), anglesTo(180, 5), batwing, 180, 35),
        plotTable("mirrored 0 to 180", kTypeC, anglesTo(180, 15), anglesTo(90, 2.5F), forward, 0, 62.5F),
        plotTable("as given 0 to 360", kTypeC, anglesTo(360, 10), anglesTo(180, 5), forward, 30, 60),
        plotTable("as given 90 to 360", kTypeC, anglesTo(360, 10, 90), anglesTo(90, 5), forward, 270, 60),
        plotTable("type B, -90 to 90", kTypeB, anglesTo(90, 5, -90), anglesTo(90, 5, -90), beam, 0, 0),
        plotTable("type B, 0 to 90", kTypeB, anglesTo(90, 5), anglesTo(90, 5), beam, 0, 0),
        plotTable("any other type", 3, anglesTo(90, 5, -90), anglesTo(90, 5, -90), beam, 0, 0),
        plotTable(
            "one value", kTypeC, {0}, {90}, [](double, double) { return 100; }, 0, 90),
        plotTable("one spike", kTypeC, anglesTo(360, 45), anglesTo(180, 10), spike, 0, 40),
        plotTable(
            "zeros only", kTypeC, anglesTo(90, 45), anglesTo(90, 10), [](double, double) { return 0; }, 0, 0),
        plotTable("blanks only", kTypeC, anglesTo(90, 45), anglesTo(90, 10), nothing, 0, 0),
        plotTable("some blanks", kTypeC, anglesTo(90, 22.5F), anglesTo(90, 5), holes, 0, 20),
        plotTable("some negatives", kTypeC, anglesTo(180, 22.5F), anglesTo(90, 5), signs, 0, 35),
        plotTable("1,000 angles", kTypeC, evenAngles(1000, 360), evenAngles(1000, 180), forward, 0, 60),
    };
}

}  // namespace penwright::test
