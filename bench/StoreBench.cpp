#include <benchmark/benchmark.h>

#include "hostlink/CommandLink.h"
#include "hostlink/ExchangeStore.h"
#include "support/ToolBench.h"

namespace {

using penwright::CommandLink;
using penwright::ExchangeStore;
using penwright::PhotometricRecord;
using penwright::test::ToolBench;

/// A table of every degree around and of half degrees from nadir to 131, as full goniometer files have it.
PhotometricRecord largeRecord()
{
    constexpr std::int16_t kHorizontal = 361, kVertical = 263;
    PhotometricRecord record;
    record.Filename = "new_file_1";
    record.Keywords = {"IESNA:LM-63-2002", "[TEST] 1", "[MANUFAC] none"};
    record.NumHorzAngles = kHorizontal;
    record.NumVertAngles = kVertical;
    record.HorAngles.reset(kHorizontal);
    record.VertAngles.reset(kVertical);
    record.Candela.reset(kHorizontal, kVertical);
    for (int h = 1; h <= kHorizontal; ++h)
        for (int v = 1; v <= kVertical; ++v)
            record.Candela(h, v) = double{static_cast<float>(h * v) * 0.37F};
    return record;
}

void recordOut(benchmark::State &state)
{
    ToolBench bench;
    bench.state.PhotFiles(1) = largeRecord();
    ExchangeStore exchange(bench.state, bench.store, bench.dialogs);
    for (auto _ : state)
        benchmark::DoNotOptimize(exchange.SaveRecordsToStore(1, 1, 1));
}
BENCHMARK(recordOut)->Unit(benchmark::kMillisecond);

void recordIn(benchmark::State &state)
{
    ToolBench bench;
    bench.state.PhotFiles(1) = largeRecord();
    ExchangeStore exchange(bench.state, bench.store, bench.dialogs);
    exchange.SaveRecordsToStore(1, 1, 1);
    for (auto _ : state)
        if (exchange.loadRecords())
            state.SkipWithError("the record does not load");
}
BENCHMARK(recordIn)->Unit(benchmark::kMillisecond);

struct NoWindow : penwright::LinkedWindow {
    void stopDeathTimer() override {}
    void StartWizard() override {}
    void beginUnload() override {}
    bool isUnloading() const override { return false; }
    void showLog() override {}
    void followRecord() override {}
};

/// One poll of an inbox in which nothing waits, with a record of full size beside it.
void idleTick(benchmark::State &state)
{
    ToolBench bench;
    bench.state.PhotFiles(1) = largeRecord();
    ExchangeStore(bench.state, bench.store, bench.dialogs).SaveRecordsToStore(1, 1, 1);
    NoWindow window;
    CommandLink link(bench.state, bench.store, bench.dialogs, bench.embedding, window);
    for (auto _ : state)
        benchmark::DoNotOptimize(link.poll());
}
BENCHMARK(idleTick)->Unit(benchmark::kMicrosecond);

/// The same while another process writes between two polls, so that each has to look.
void tickAfterAnothersWrite(benchmark::State &state)
{
    ToolBench bench;
    NoWindow window;
    CommandLink link(bench.state, bench.store, bench.dialogs, bench.embedding, window);
    penwright::SqliteSettingsStore other(bench.folder.file("Lumentor/settings.sqlite3"));
    for (auto _ : state) {
        state.PauseTiming();
        other.write("Lumentor_PE", "Other", "value", "x");
        state.ResumeTiming();
        benchmark::DoNotOptimize(link.poll());
    }
}
BENCHMARK(tickAfterAnothersWrite)->Unit(benchmark::kMicrosecond);

void commandPopped(benchmark::State &state)
{
    ToolBench bench;
    NoWindow window;
    CommandLink link(bench.state, bench.store, bench.dialogs, bench.embedding, window);
    for (auto _ : state) {
        state.PauseTiming();
        bench.setValue("PenwrightPE|7", "MOVEWIN,0,0,720,560");
        state.ResumeTiming();
        benchmark::DoNotOptimize(link.poll());
    }
}
BENCHMARK(commandPopped)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
