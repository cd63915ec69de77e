#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "plot/PlotCurves.h"
#include "support/PlotTables.h"

namespace penwright::test {

/// A corner of an expected run: the direction in degrees from the right, turning left, and the candela there.
struct Corner {
    double direction;
    double candela;
};
using Corners = std::vector<Corner>;

/// The points of a run through the corners in steps of at most 5 degrees, by complex numbers on the true circle.
inline std::vector<std::complex<double>> chain(const Corners &corners)
{
    const auto at = [](double candela, double direction) {
        return std::polar(candela, direction * std::numbers::pi / 180);
    };
    std::vector<std::complex<double>> points = {at(corners.at(0).candela, corners.at(0).direction)};
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const Corner &from = corners[i - 1];
        const Corner &to = corners[i];
        int steps = 1;
        while (std::abs(to.direction - from.direction) > 5 * steps)
            ++steps;
        for (int k = 1; k <= steps; ++k)
            points.push_back(at((from.candela * (steps - k) + to.candela * k) / steps,
                                (from.direction * (steps - k) + to.direction * k) / steps));
    }
    return points;
}

/// Holds a curve against its expected runs. The short radian factor and single precision leave the true circle by
/// less than three millionths of a value.
inline void expectRuns(const PlotCurve &curve, const std::vector<Corners> &runs)
{
    ASSERT_EQ(curve.runs.size(), runs.size());
    for (std::size_t r = 0; r < runs.size(); ++r) {
        const auto expected = chain(runs[r]);
        ASSERT_EQ(curve.runs[r].size(), expected.size()) << "run " << r;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const PlotPoint &point = curve.runs[r][i];
            EXPECT_LE(std::abs(std::complex(point.x, point.y) - expected[i]), 3e-6 * std::abs(expected[i]) + 1e-9)
                << "run " << r << " point " << i << ": " << point.x << ", " << point.y << " for " << expected[i];
        }
    }
}

inline PlotCurves curvesOf(const PlotTableCase &table)
{
    return plotCurves(table.record, table.cells, table.horizontal, table.vertical);
}

/// A table from its values, one row for each horizontal angle.
inline constexpr double kBlank = -1e10;
inline PlotTableCase tableOf(std::int16_t type, const std::vector<float> &horizontal,
                             const std::vector<float> &vertical, const std::vector<std::vector<double>> &rows, float h,
                             float v)
{
    PlotTableCase table = plotTable(
        "", type, horizontal, vertical, [](double, double) { return std::nullopt; }, h, v);
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t column = 0; column < rows[row].size(); ++column)
            if (rows[row][column] != kBlank)
                table.cells(static_cast<int>(row) + 1, static_cast<int>(column) + 1) =
                    static_cast<float>(rows[row][column]);
    return table;
}

}  // namespace penwright::test
