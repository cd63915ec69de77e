#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/TempFolder.h"

extern char **environ;

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Both programs show that they are ready by the first tick of a timer of this interval.
constexpr std::chrono::duration<double> kTick = 100ms;

pid_t launch(const std::string &program, const std::string &argument)
{
    std::vector<char *> arguments{const_cast<char *>(program.c_str()), const_cast<char *>(argument.c_str()), nullptr};
    pid_t process = 0;
    if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments.data(), environ) != 0)
        std::abort();
    return process;
}

double since(Clock::time_point start)
{
    return (std::chrono::duration<double>(Clock::now() - start) - kTick).count();
}

double emptyWindowStart()
{
    const auto start = Clock::now();
    waitpid(launch(EMPTY_WINDOW, ""), nullptr, 0);
    return since(start);
}

/// From the start to the moment in which the hidden tool takes the command that waits in its inbox.
double toolStart(penwright::SqliteSettingsStore &store)
{
    store.write("Lumentor_PE", "Bench", "PenwrightPE|1", "PING");
    const auto start = Clock::now();
    const pid_t process = launch(TOOL, "1,0,BenchBox,1,0,Bench");
    while (store.peek("Lumentor_PE", "Bench", "PenwrightPE|1") != "")
        std::this_thread::sleep_for(500us);
    const double time = since(start);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    return time;
}

/// In turns; the counter `ratio` is the tool's time over that of an empty window.
void BM_startAgainstEmptyWindow(benchmark::State &state)
{
    const penwright::test::TempFolder home;
    setenv("XDG_CONFIG_HOME", home.path().c_str(), 1);
    setenv("XDG_STATE_HOME", home.path().c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    penwright::SqliteSettingsStore store(penwright::SqliteSettingsStore::userPath());
    double tool = 0;
    double empty = 0;
    for ([[maybe_unused]] auto _ : state) {
        empty += emptyWindowStart();
        const double turn = toolStart(store);
        tool += turn;
        state.SetIterationTime(turn);
    }
    state.counters["ratio"] = tool / empty;
}
BENCHMARK(BM_startAgainstEmptyWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
