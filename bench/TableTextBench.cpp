#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <random>
#include <string>

#include "grid/TableText.h"
#include "grid/TableWords.h"
#include "Seconds.h"
#include "Sides.h"

namespace {

using namespace penwright;

/// A table with angles, as a spreadsheet copies it, of some ten bytes for each value.
std::string squareTable(int side, char decimalSign)
{
    std::mt19937 random(1);
    const auto decimal = [decimalSign](unsigned tenths) {
        return std::to_string(tenths / 10) + decimalSign + std::to_string(tenths % 10);
    };
    std::string text = "Gamma";
    for (int column = 0; column < side; ++column)
        text += "\tC" + decimal(static_cast<unsigned>(column));
    for (int row = 0; row < side; ++row) {
        text += "\r\n" + decimal(static_cast<unsigned>(row));
        for (int column = 0; column < side; ++column)
            text += "\t" + decimal(static_cast<unsigned>(100'000'000 + random() % 100'000'000));
    }
    return text;
}

/// The bar: std::from_chars alone over the same text, signs and all, the values thrown away.
void fromChars(const std::string &text)
{
    const char *end = text.data() + text.size();
    double value = 0;
    for (const char *at = text.data(); at != end;) {
        const auto read = std::from_chars(at, end, value);
        benchmark::DoNotOptimize(value);
        for (at = read.ptr; at != end && (*at < '0' || *at > '9');)
            ++at;
    }
}

/// What stands between a text of 10 MB and the first look at its table: a guess, and its first part read.
void BM_firstLook(benchmark::State &state)
{
    const std::string text = squareTable(1000, '.');
    for ([[maybe_unused]] auto _ : state) {
        const bool isRead = readTable(firstPart(text), guessTable(text)).index() == 0;
        if (!isRead)
            state.SkipWithError("the first part is refused");
    }
}
BENCHMARK(BM_firstLook)->Unit(benchmark::kMillisecond);

/// A guess and the whole table, for a text of ten bytes a value: 10 MB with the longest side. The counter is the time
/// of the whole over the bar's.
void tableText(benchmark::State &state, char decimalSign)
{
    const std::string text = squareTable(static_cast<int>(state.range(0)), decimalSign);
    double guessing = 1e9;
    double reading = 1e9;
    double bare = 1e9;
    for ([[maybe_unused]] auto _ : state) {
        TableReading choices;
        guessing = std::min(guessing, seconds([&] { choices = guessTable(text); }));
        bool isRead = false;
        const double turn = seconds([&] { isRead = readTable(text, choices).index() == 0; });
        if (!isRead)
            state.SkipWithError("the table is refused");
        reading = std::min(reading, turn);
        bare = std::min(bare, seconds([&] { fromChars(text); }));
        state.SetIterationTime(turn);
    }
    state.counters["bytes"] = static_cast<double>(text.size());
    state.counters["guess_ms"] = 1000 * guessing;
    state.counters["to_from_chars"] = reading / bare;
}

void tableWithPoints(benchmark::State &state)
{
    tableText(state, '.');
}
BENCHMARK(tableWithPoints)->Apply(forEachSide)->UseManualTime()->Unit(benchmark::kMillisecond);

void tableWithCommas(benchmark::State &state)
{
    tableText(state, ',');
}
BENCHMARK(tableWithCommas)->Apply(forEachSide)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
