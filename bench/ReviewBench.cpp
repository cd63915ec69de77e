#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "review/Figures.h"
#include "review/Remarks.h"
#include "Seconds.h"
#include "Sides.h"
#include "SquareRecord.h"

namespace {

using namespace penwright;

PhotometricRecord smooth(int side)
{
    return squareRecord(
        side, [side](int, int v) { return 5000.0F * static_cast<float>(side - v) / static_cast<float>(side); });
}

/// Every other value stands out, and low ones stand beside high ones everywhere: all that the rules look at twice.
PhotometricRecord full(int side)
{
    std::mt19937 random(1);
    return squareRecord(side,
                        [&](int, int v) { return v % 2 ? 999.0F : 1 + static_cast<float>(random() % 3000) / 1000; });
}

/// The bar: one look at every value.
double sum(const PhotometricRecord &record)
{
    double all = 0;
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (const double value : record.Candela.row(h))
            all += value;
    return all;
}

/// Figures with remarks and the bar in turns. The counter is the best time over that of the bar; the time itself is
/// the goal's measure (at most 30 ms for 1,000 x 1,000).
void review(benchmark::State &state, const PhotometricRecord &record)
{
    double reviewing = 1e9;
    double looking = 1e9;
    for ([[maybe_unused]] auto _ : state) {
        const double turn = seconds([&] {
            const Photometry photometry = photometryOf(record);
            benchmark::DoNotOptimize(figuresOf(record, photometry).size());
            benchmark::DoNotOptimize(remarksOf(record, photometry).size());
        });
        reviewing = std::min(reviewing, turn);
        looking = std::min(looking, seconds([&] { benchmark::DoNotOptimize(sum(record)); }));
        state.SetIterationTime(turn);
    }
    state.counters["to_one_look"] = reviewing / looking;
}

void smoothTable(benchmark::State &state)
{
    review(state, smooth(static_cast<int>(state.range(0))));
}
BENCHMARK(smoothTable)->Apply(forEachSide)->UseManualTime()->Unit(benchmark::kMillisecond);

void tableFullOfSlips(benchmark::State &state)
{
    review(state, full(static_cast<int>(state.range(0))));
}
BENCHMARK(tableFullOfSlips)->Apply(forEachSide)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
