// The dialog over a text of 10 MB with 1,000 x 1,000 values: its first look, and the whole.
#include <benchmark/benchmark.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPushButton>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "app/TableFit.h"
#include "grid/PasteTableDialog.h"
#include "platform/qt/Closing.h"
#include "Seconds.h"
#include "support/FakeDialogs.h"
#include "support/FakeTextFiles.h"

namespace {

using namespace penwright;

constexpr int kSide = 1000;

QString squareTable()
{
    std::string text = "Gamma";
    for (int h = 0; h < kSide; ++h)
        text += "\tC" + std::to_string(360.0 * h / (kSide - 1));
    for (int v = 0; v < kSide; ++v) {
        text += "\n" + std::to_string(180.0 * v / (kSide - 1));
        for (int h = 0; h < kSide; ++h)
            text += "\t12345.678";
    }
    return QString::fromStdString(text);
}

TableVerdict judged(const TableContent &table, double factor)
{
    return {fitTable(table, factor, {}).index() == 0};
}

void BM_pasteTable(benchmark::State &state)
{
    QGuiApplication::clipboard()->setText(squareTable());
    const Closing closing;
    test::FakeDialogs dialogs;
    test::FakeTextFiles files;
    double firstLook = 1e9;
    for ([[maybe_unused]] auto _ : state) {
        PasteTableDialog dialog({.judge = judged}, dialogs, files, closing, nullptr);
        const auto *ok = dialog.findChild<QPushButton *>("okButton");
        const auto look = [&dialog] {
            dialog.findChild<QPushButton *>("takeClipboard")->click();
            dialog.show();
            QCoreApplication::processEvents();
        };
        const double toLook = seconds(look);
        const double toRest = seconds([ok] {
            while (!ok->isEnabled())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
        firstLook = std::min(firstLook, toLook);
        state.SetIterationTime(toLook + toRest);
    }
    state.counters["first_look_ms"] = 1000 * firstLook;
}
BENCHMARK(BM_pasteTable)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
