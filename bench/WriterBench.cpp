#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <random>

#include "core/IesText.h"
#include "Seconds.h"
#include "Sides.h"
#include "SquareRecord.h"

namespace {

using namespace penwright;

/// A square table of candela values as the pages leave them: singles widened to doubles.
PhotometricRecord measuredRecord(int side)
{
    std::mt19937 random(1);
    return squareRecord(side, [&](int, int) { return static_cast<float>(random() % 10000000) / 1000.0F; });
}

/// The bar: std::to_chars alone over the same values, its text thrown away.
template <typename... Form>
void toChars(const PhotometricRecord &record, Form... form)
{
    std::array<char, 64> buffer;
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v) {
            const char *end =
                std::to_chars(buffer.data(), buffer.data() + buffer.size(), record.Candela(h, v), form...).ptr;
            benchmark::DoNotOptimize(end);
            benchmark::ClobberMemory();
        }
}

/// Writer and bars in turns. The counters are the writer's best time over the best of the shortest form, which is the
/// goal's measure (at most 1.6), and over the best of the fifteen-digit form, which is the text that files hold.
void BM_writerAgainstToChars(benchmark::State &state)
{
    const PhotometricRecord record = measuredRecord(static_cast<int>(state.range(0)));
    std::string text;
    double writing = 1e9;
    double shortest = 1e9;
    double general = 1e9;
    for ([[maybe_unused]] auto _ : state) {
        text.clear();
        const double turn = seconds([&] { appendIesText(text, record); });
        benchmark::DoNotOptimize(text.data());
        writing = std::min(writing, turn);
        shortest = std::min(shortest, seconds([&] { toChars(record); }));
        general = std::min(general, seconds([&] { toChars(record, std::chars_format::general, 15); }));
        state.SetIterationTime(turn);
    }
    state.counters["to_shortest"] = writing / shortest;
    state.counters["to_general15"] = writing / general;
}
BENCHMARK(BM_writerAgainstToChars)->Apply(forEachSide)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
