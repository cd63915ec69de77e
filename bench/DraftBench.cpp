// A draft of 1,000 x 1,000 values on the page itself: what keeping it costs the thread of the keys.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <QApplication>
#include <QKeyEvent>

#include "draft/DraftKeeper.h"
#include "platform/sqlite/SqliteDraftStore.h"
#include "ShownPage.h"
#include "support/TempFolder.h"

namespace {

using namespace penwright;
using Clock = std::chrono::steady_clock;

std::string measuredValues()
{
    std::string lines;
    for (int v = 0; v < kSide; ++v)
        for (int h = 0; h < kSide; ++h)
            lines += std::to_string((v * 7919 + h * 104729) % 50000) + ".7" + (h + 1 < kSide ? "\t" : "\n");
    return lines;
}

/// Milliseconds by the clock, and those that the thread has worked in them: the others went to other work of the
/// machine.
struct KeyTime {
    double clock = 0;
    double own = 0;

    void atLeast(const KeyTime &other)
    {
        clock = std::max(clock, other.clock);
        own = std::max(own, other.own);
    }
};

KeyTime now()
{
    timespec own{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &own);
    const std::chrono::duration<double, std::milli> clock = Clock::now().time_since_epoch();
    return {clock.count(), static_cast<double>(own.tv_sec) * 1e3 + static_cast<double>(own.tv_nsec) / 1e6};
}

/// The page with all its values, and a keeper over a folder of its own.
class KeptPage : public ShownPage {
public:
    KeptPage()
    {
        open();
        grid()->apply(grid()->source().paste({}, measuredValues(), ""));
        QCoreApplication::processEvents();
    }

    /// Types a value over the next cell, with three keys; the slowest of them, painting included.
    KeyTime slowestKey()
    {
        KeyTime slowest;
        for (const int key : {int{Qt::Key_4}, int{Qt::Key_2}, int{Qt::Key_Return}}) {
            const KeyTime start = now();
            QWidget *focus = QApplication::focusWidget() ? QApplication::focusWidget() : grid();
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Return ? "\r" : QString(QChar(key)));
            QCoreApplication::sendEvent(focus, &press);
            QCoreApplication::processEvents();
            const KeyTime end = now();
            slowest.atLeast({end.clock - start.clock, end.own - start.own});
        }
        return slowest;
    }

    void keep() { keeper.keep({kCandelaPage, "", {{kCandelaPage, page.value()}}}); }

private:
    test::TempFolder m_folder;

public:
    DraftKeeper keeper{std::make_unique<SqliteDraftStore>(m_folder.file("drafts")),
                       [](const std::function<void()> &) {}, [] { return std::int64_t{1}; },
                       [](const std::string &) {}};
};

/// The part of the thread of the keys: the values taken and handed over.
void handedOver(benchmark::State &state)
{
    KeptPage kept;
    for (auto _ : state)
        kept.keep();
}
BENCHMARK(handedOver)->Unit(benchmark::kMillisecond);

/// From the values to the disk, each time with one value changed.
void written(benchmark::State &state)
{
    KeptPage kept;
    for (auto _ : state) {
        state.PauseTiming();
        kept.slowestKey();
        state.ResumeTiming();
        kept.keep();
        kept.keeper.flush(std::chrono::minutes(1));
    }
}
BENCHMARK(written)->Unit(benchmark::kMillisecond);

void tell(benchmark::State &state, const KeyTime &first, const KeyTime &slowest)
{
    state.counters["first_ms"] = first.clock;
    state.counters["slowest_ms"] = slowest.clock;
    state.counters["slowest_own_ms"] = slowest.own;
}

/// The bar for the keys: as many with nothing being written. Times are of a value, three keys; `first_ms` is the
/// slowest key of the first one, for which the toolkit makes an editor, `slowest_ms` that of all that follow.
void typedAlone(benchmark::State &state)
{
    KeptPage kept;
    const KeyTime first = kept.slowestKey();
    KeyTime slowest;
    for (auto _ : state)
        slowest.atLeast(kept.slowestKey());
    tell(state, first, slowest);
}
BENCHMARK(typedAlone)->Unit(benchmark::kMillisecond);

/// Keys while a draft is being written all the time. An iteration is a draft, with as many values as are typed
/// meanwhile.
void typedMeanwhile(benchmark::State &state)
{
    KeptPage kept;
    const KeyTime first = kept.slowestKey();
    KeyTime slowest;
    for (auto _ : state) {
        kept.keep();
        while (!kept.keeper.flush(std::chrono::milliseconds(0)))
            slowest.atLeast(kept.slowestKey());
    }
    tell(state, first, slowest);
}
BENCHMARK(typedMeanwhile)->Unit(benchmark::kMillisecond);

}  // namespace
