// A draft of 1,000 x 1,000 values on the page itself: what keeping it costs the thread of the keys.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
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

/// The page with all its values, and a keeper over a folder of its own.
class KeptPage : public ShownPage {
public:
    KeptPage()
    {
        open();
        grid()->apply(grid()->source().paste({}, measuredValues(), ""));
        QCoreApplication::processEvents();
    }

    /// Types a value over the next cell; the milliseconds of its slowest key, painting included.
    double slowestKey()
    {
        double slowest = 0;
        for (const int key : {int{Qt::Key_4}, int{Qt::Key_2}, int{Qt::Key_Return}}) {
            const auto start = Clock::now();
            QWidget *focus = QApplication::focusWidget() ? QApplication::focusWidget() : grid();
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Return ? "\r" : QString(QChar(key)));
            QCoreApplication::sendEvent(focus, &press);
            QCoreApplication::processEvents();
            slowest = std::max(slowest, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
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

/// The bar for the keys: as many with nothing being written.
void typedAlone(benchmark::State &state)
{
    KeptPage kept;
    double slowest = 0;
    for (auto _ : state)
        slowest = std::max(slowest, kept.slowestKey());
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(typedAlone)->Unit(benchmark::kMillisecond);

/// Keys while a draft is being written all the time; `slowest_ms` is the longest from a key to what it painted.
void typedMeanwhile(benchmark::State &state)
{
    KeptPage kept;
    double slowest = 0;
    for (auto _ : state) {
        kept.keep();
        while (!kept.keeper.flush(std::chrono::milliseconds(0)))
            slowest = std::max(slowest, kept.slowestKey());
    }
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(typedMeanwhile)->Unit(benchmark::kMillisecond);

}  // namespace
