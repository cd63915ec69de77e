#include <benchmark/benchmark.h>

#include <QImage>

#include <random>

#include "plot/PlotView.h"
#include "Sides.h"
#include "support/PlotTables.h"

namespace {

using penwright::PlotView;
using penwright::test::PlotTableCase;

PlotTableCase square(int angles)
{
    return penwright::test::plotTable("", penwright::kTypeC, penwright::test::evenAngles(angles, 360),
                                      penwright::test::evenAngles(angles, 180), penwright::test::forward, 0, 0);
}

/// Values that jump from angle to angle: the longest lines that a table can ask for.
PlotTableCase noise(int angles)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> candela(0, 1000);
    return penwright::test::plotTable(
        "", penwright::kTypeC, penwright::test::evenAngles(angles, 360), penwright::test::evenAngles(angles, 180),
        [&](double, double) { return candela(random); }, 0, 0);
}

/// The next plane and the next cone of the table, as when the current cell walks across it.
void walk(PlotTableCase &table, int step)
{
    const int place = step % table.record.NumHorzAngles + 1;
    table.horizontal = table.record.HorAngles(place);
    table.vertical = table.record.VertAngles(place);
}

void curvesFound(benchmark::State &state)
{
    PlotTableCase table = square(static_cast<int>(state.range(0)));
    int step = 0;
    for (auto _ : state) {
        walk(table, step += 7);
        benchmark::DoNotOptimize(
            penwright::plotCurves(table.record, table.cells, table.horizontal, table.vertical).largest());
    }
}
BENCHMARK(curvesFound)->Apply(penwright::forEachSide)->Unit(benchmark::kMicrosecond);

/// From the call to the last pixel of a picture box of 400 logical pixels, at 100 % and 200 %.
void draw(benchmark::State &state, PlotTableCase table)
{
    PlotView view;
    view.resize(400, 400);
    const auto scale = static_cast<int>(state.range(1));
    QImage image(view.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    int step = 0;
    for (auto _ : state) {
        walk(table, step += 7);
        view.draw(table.record, table.cells, table.horizontal, table.vertical);
        view.render(&image);
    }
}

void pictureDrawn(benchmark::State &state)
{
    draw(state, square(static_cast<int>(state.range(0))));
}
BENCHMARK(pictureDrawn)->Args({19, 1})->Args({361, 1})->Args({1000, 1})->Args({1000, 2})->Unit(benchmark::kMillisecond);

void noiseDrawn(benchmark::State &state)
{
    draw(state, noise(static_cast<int>(state.range(0))));
}
BENCHMARK(noiseDrawn)->Args({361, 1})->Args({1000, 1})->Args({1000, 2})->Unit(benchmark::kMillisecond);

}  // namespace
