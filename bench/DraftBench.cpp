// A draft of 1,000 x 1,000 values on the page itself: what keeping it costs the thread of the keys.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <QApplication>
#include <QKeyEvent>

#include "draft/DraftKeeper.h"
#include "pages/candela/CandelaGrid.h"
#include "pages/candela/CandelaPage.h"
#include "platform/qt/Closing.h"
#include "platform/sqlite/SqliteDraftStore.h"
#include "support/FakeDialogs.h"
#include "support/TempFolder.h"
#include "wizard/WarningDialog.h"

namespace {

using namespace penwright;
using Clock = std::chrono::steady_clock;

constexpr int kSide = 1000;

struct Nowhere : Navigator {
    void ShowPage(int) override {}
    void ConfirmCancel() override {}
    void ShowHelp(int) override {}
    void showHelpAt(const std::string &) override {}
    void goToPlace(const RecordPlace &) override {}
    bool ReDo() override { return false; }
    bool isBusy() const override { return false; }
};

std::string measuredValues()
{
    std::string lines;
    for (int v = 0; v < kSide; ++v)
        for (int h = 0; h < kSide; ++h)
            lines += std::to_string((v * 7919 + h * 104729) % 50000) + ".7" + (h + 1 < kSide ? "\t" : "\n");
    return lines;
}

/// Page 5 with all its values, in a window of its own, and a keeper over a folder of its own.
class KeptPage {
public:
    KeptPage()
    {
        m_state.PhotFiles.reset(1);
        PhotometricRecord &record = m_state.PhotFiles(1);
        record.PhotometricType = kTypeC;
        record.NumHorzAngles = record.NumVertAngles = kSide;
        for (int i = 0; i < kSide; ++i) {
            record.HorAngles.append(360.0F * static_cast<float>(i) / (kSide - 1));
            record.VertAngles.append(180.0F * static_cast<float>(i) / (kSide - 1));
        }
        page.resize(1000, 700);
        page.show();
        page.lsbStart();
        CandelaGrid *grid = page.findChild<CandelaGrid *>("cdaGridCd");
        grid->apply(grid->source().paste({}, measuredValues(), ""));
        QCoreApplication::processEvents();
    }

    /// Types a value over the next cell; the milliseconds of its slowest key, painting included.
    double slowestKey()
    {
        CandelaGrid *grid = page.findChild<CandelaGrid *>("cdaGridCd");
        double slowest = 0;
        for (const int key : {int{Qt::Key_4}, int{Qt::Key_2}, int{Qt::Key_Return}}) {
            const auto start = Clock::now();
            QWidget *focus = QApplication::focusWidget() ? QApplication::focusWidget() : grid;
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Return ? "\r" : QString(QChar(key)));
            QCoreApplication::sendEvent(focus, &press);
            QCoreApplication::processEvents();
            slowest = std::max(slowest, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        }
        return slowest;
    }

    void keep() { keeper.keep({kCandelaPage, "", {{kCandelaPage, page.value()}}}); }

private:
    ToolState m_state;
    Closing m_closing;
    test::FakeDialogs m_dialogs;
    Nowhere m_navigator;
    WarningDialog m_dlgWarn{m_closing, nullptr};
    test::TempFolder m_folder;

public:
    CandelaPage page{PageContext{m_state, m_dialogs, m_navigator, m_dlgWarn}};
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

int main(int count, char **arguments)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
