#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>

#include "review/Figures.h"
#include "review/Remarks.h"

namespace {

using namespace penwright;

OneBased<float> evenAngles(int count, float last)
{
    OneBased<float> angles;
    for (int i = 0; i < count; ++i)
        angles.append(last * static_cast<float>(i) / static_cast<float>(count - 1));
    return angles;
}

/// A square table of type C, once around. `candela` gives the value of a vertical angle.
template <typename Candela>
PhotometricRecord squareRecord(int side, const Candela &candela)
{
    PhotometricRecord record;
    record.Keywords = {"IESNA:LM-63-2002"};
    record.PhotometricType = kTypeC;
    record.UnitsType = kMeters;
    record.NumLamps = 1;
    record.LumensPerLamp = record.CandelaMultiplier = record.BallastFactor = record.InputWatts = 1;
    record.NumVertAngles = record.NumHorzAngles = static_cast<std::int16_t>(side);
    record.VertAngles = evenAngles(side, 180);
    record.HorAngles = evenAngles(side, 360);
    record.Candela.reset(side, side);
    for (int h = 1; h <= side; ++h)
        for (int v = 1; v <= side; ++v)
            record.Candela(h, v) = double{static_cast<float>(candela(v))};
    return record;
}

PhotometricRecord smooth(int side)
{
    return squareRecord(side, [side](int v) { return 5000.0 * (side - v) / side; });
}

/// Every other value stands out, and low ones stand beside high ones everywhere: all that the rules look at twice.
PhotometricRecord full(int side)
{
    std::mt19937 random(1);
    return squareRecord(side, [&](int v) { return v % 2 ? 999.0 : 1 + static_cast<double>(random() % 3000) / 1000; });
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

template <typename Work>
double seconds(const Work &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
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
BENCHMARK(smoothTable)->Arg(100)->Arg(1000)->UseManualTime()->Unit(benchmark::kMillisecond);

void tableFullOfSlips(benchmark::State &state)
{
    review(state, full(static_cast<int>(state.range(0))));
}
BENCHMARK(tableFullOfSlips)->Arg(100)->Arg(1000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
