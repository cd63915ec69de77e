// A square table on the page itself, of 1,000 x 1,000 values where no size is said: opened, pasted, edited, checked.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include <sys/resource.h>
#include <charconv>
#include <cstdlib>

#include "core/NumberText.h"
#include "pages/candela/CandelaChecks.h"
#include "pages/candela/CandelaTable.h"
#include "ShownPage.h"
#include "Sides.h"
#include "wizard/PageSteps.h"

namespace {

using namespace penwright;

/// A table of measured values as a spreadsheet hands it over: 1 to 5 digits and a decimal.
std::string pastedText(int side = kSide)
{
    std::string lines;
    for (int v = 0; v < side; ++v)
        for (int h = 0; h < side; ++h)
            lines += generalText(static_cast<float>((v * 7919 + h * 104729) % 500000) / 10.0F) +
                     (h + 1 < side ? "\t" : "\n");
    return lines;
}

/// The page with what the keys of a user do on it.
struct UsedPage : ShownPage {
    using ShownPage::ShownPage;

    void paste()
    {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
        QCoreApplication::sendEvent(grid(), &key);
        QCoreApplication::processEvents();
    }

    void undo()
    {
        page.steps().undo();
        QCoreApplication::processEvents();
    }

    void redo()
    {
        page.steps().redo();
        QCoreApplication::processEvents();
    }

    void startAgain() { page.start(); }
};

void opensBlank(benchmark::State &state)
{
    UsedPage shown;
    for (auto _ : state) {
        shown.startAgain();
        shown.open();
    }
}
BENCHMARK(opensBlank)->Unit(benchmark::kMillisecond);

void opensWithValues(benchmark::State &state)
{
    UsedPage shown;
    shown.open();
    QApplication::clipboard()->setText(QString::fromStdString(pastedText()));
    shown.paste();
    for (auto _ : state)
        shown.open();
}
BENCHMARK(opensWithValues)->Unit(benchmark::kMillisecond);

/// The bar for a paste: std::from_chars alone over the same text.
void fromChars(benchmark::State &state)
{
    const std::string text = pastedText();
    for (auto _ : state) {
        const char *at = text.data();
        const char *end = at + text.size();
        float sum = 0;
        for (float value = 0; at < end; ++at) {
            at = std::from_chars(at, end, value).ptr;
            sum += value;
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(fromChars)->Unit(benchmark::kMillisecond);

/// A table that has just been built, without a window.
struct BareTable {
    explicit BareTable(int side = kSide)
    {
        tool.PhotFiles.reset(1);
        setSquareAngles(tool.PhotFiles(1), side);
        table.newTable().content->swap();
    }

    ToolState tool;
    CandelaTable table{tool, ""};
};

void pastedIntoTheTable(benchmark::State &state)
{
    const auto side = static_cast<int>(state.range(0));
    BareTable bare(side);
    const std::string text = pastedText(side);
    for (auto _ : state)
        bare.table.PasteCandelaTable(text).content->swap();
}
BENCHMARK(pastedIntoTheTable)->Apply(forEachSide)->Unit(benchmark::kMillisecond);

/// From the key to the repainted grid and plot, the clipboard's owner being this process.
void pastedToRedrawnPlot(benchmark::State &state)
{
    const auto side = static_cast<int>(state.range(0));
    UsedPage shown(side);
    shown.open();
    QApplication::clipboard()->setText(QString::fromStdString(pastedText(side)));
    for (auto _ : state) {
        shown.paste();
        shown.page.steps().forgetAll();  // their memory is measured below
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peak_MB"] = static_cast<double>(usage.ru_maxrss) / 1024;
}
BENCHMARK(pastedToRedrawnPlot)->Apply(forEachSide)->Unit(benchmark::kMillisecond);

/// A paste over other values, which can be undone and redone.
void pasteTwice(UsedPage &shown)
{
    shown.open();
    QApplication::clipboard()->setText(QString::fromStdString(pastedText()));
    shown.paste();
    shown.paste();
}

void pasteUndoneToRedrawnPlot(benchmark::State &state)
{
    UsedPage shown;
    pasteTwice(shown);
    for (auto _ : state) {
        shown.undo();
        state.PauseTiming();
        shown.redo();
        state.ResumeTiming();
    }
}
BENCHMARK(pasteUndoneToRedrawnPlot)->Unit(benchmark::kMillisecond);

void pasteRedoneToRedrawnPlot(benchmark::State &state)
{
    UsedPage shown;
    pasteTwice(shown);
    for (auto _ : state) {
        state.PauseTiming();
        shown.undo();
        state.ResumeTiming();
        shown.redo();
    }
}
BENCHMARK(pasteRedoneToRedrawnPlot)->Unit(benchmark::kMillisecond);

/// Pastes one over the other, each of which is a step until they take too much memory.
void pastedWithItsSteps(benchmark::State &state)
{
    UsedPage shown;
    pasteTwice(shown);
    for (auto _ : state)
        shown.paste();
    state.counters["steps_MB"] = static_cast<double>(shown.page.steps().bytes()) / 1e6;
}
BENCHMARK(pastedWithItsSteps)->Unit(benchmark::kMillisecond);

void cellAcceptedToRedrawnPlot(benchmark::State &state)
{
    UsedPage shown;
    shown.open();
    QAbstractItemModel *model = shown.grid()->model();
    for (int value = 1; auto _ : state) {
        model->setData(model->index(3, 4), QString::number(value++ % 1000), Qt::EditRole);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(cellAcceptedToRedrawnPlot)->Unit(benchmark::kMicrosecond);

void scrolledByAPage(benchmark::State &state)
{
    UsedPage shown;
    shown.open();
    for (auto _ : state) {
        const bool isLast = shown.grid()->currentRow() == kSide;
        QKeyEvent key(QEvent::KeyPress, isLast ? Qt::Key_Home : Qt::Key_PageDown,
                      isLast ? Qt::ControlModifier : Qt::NoModifier);
        QCoreApplication::sendEvent(shown.grid(), &key);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(scrolledByAPage)->Unit(benchmark::kMicrosecond);

void copied(benchmark::State &state)
{
    BareTable bare;
    bare.table.PasteCandelaTable(pastedText()).content->swap();
    for (auto _ : state)
        benchmark::DoNotOptimize(bare.table.CopyCandelaTable().size());
}
BENCHMARK(copied)->Unit(benchmark::kMillisecond);

void checkedBlank(benchmark::State &state)
{
    PhotometricRecord record;
    setSquareAngles(record, kSide);
    const OneBasedTable<CandelaCell> cells(kSide, kSide);
    for (auto _ : state) {
        WarningList list;
        checkCandela(record, cells, list);
        benchmark::DoNotOptimize(list.text().size());
    }
}
BENCHMARK(checkedBlank)->Unit(benchmark::kMillisecond);

}  // namespace
