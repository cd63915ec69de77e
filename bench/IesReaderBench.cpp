#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <random>
#include <string>

#include "core/IesReader.h"
#include "core/IesText.h"
#include "Seconds.h"
#include "Sides.h"
#include "SquareRecord.h"

namespace {

using namespace penwright;

/// The text of a file with a square table, its values with up to three decimals as laboratories give them.
std::string squareFile(int side)
{
    std::mt19937 random(1);
    return iesFileText(squareRecord(side, [&](int, int) { return static_cast<double>(random() % 10'000'000) / 1000; }));
}

/// The bar: std::from_chars alone over the same text from its first number on, the values thrown away. One character
/// or two stand between numbers.
void fromChars(const std::string &text)
{
    const char *at = text.data() + text.find("TILT=NONE\r\n") + 11;
    const char *end = text.data() + text.size();
    double value = 0;
    while (at != end) {
        const auto read = std::from_chars(at, end, value);
        benchmark::DoNotOptimize(value);
        for (at = read.ptr; at != end && *at <= ' ';)
            ++at;
    }
}

/// Reader and bar in turns. The counter is the reader's best time over the bar's best, which is to be at most 5.
void BM_readerAgainstFromChars(benchmark::State &state)
{
    const std::string text = squareFile(static_cast<int>(state.range(0)));
    double reading = 1e9;
    double bare = 1e9;
    for ([[maybe_unused]] auto _ : state) {
        bool isRead = false;
        const double turn = seconds([&] { isRead = std::holds_alternative<IesContent>(readIesFile(text)); });
        if (!isRead)
            state.SkipWithError("the file is refused");
        reading = std::min(reading, turn);
        bare = std::min(bare, seconds([&] { fromChars(text); }));
        state.SetIterationTime(turn);
    }
    state.counters["to_from_chars"] = reading / bare;
}
BENCHMARK(BM_readerAgainstFromChars)->Apply(forEachSide)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
