#include <benchmark/benchmark.h>

#include <QPlainTextEdit>
#include <QTimer>

#include "platform/qt/Closing.h"
#include "wizard/WarningDialog.h"
#include "wizard/WarningList.h"

namespace {

using penwright::Closing;
using penwright::WarningDialog;
using penwright::WarningList;

constexpr int kLines = 1'000'000;
constexpr std::string_view kLine = "Candela value at Vert: 180, Horz: 360 is not a valid numeric value.";

void addLines(benchmark::State &state)
{
    for (auto _ : state) {
        WarningList list;
        for (int i = 0; i < kLines; ++i)
            list.Add(kLine);
        benchmark::DoNotOptimize(list.text().data());
    }
}
BENCHMARK(addLines)->Unit(benchmark::kMillisecond);

/// The toolkit's own text box with the same text: what no list in that box can be quicker than.
void bareTextBox(benchmark::State &state)
{
    QString text;
    for (int i = 0; i < kLines; ++i)
        text += QLatin1String(kLine.data(), static_cast<qsizetype>(kLine.size())) + '\n';
    for (auto _ : state) {
        QPlainTextEdit box;
        box.setUndoRedoEnabled(false);
        box.setPlainText(text);
        benchmark::DoNotOptimize(box.blockCount());
    }
}
BENCHMARK(bareTextBox)->Unit(benchmark::kMillisecond);

/// From the first line added to the dialog painted, and closed again.
void listShown(benchmark::State &state)
{
    for (auto _ : state) {
        Closing closing;
        WarningDialog dialog(closing, nullptr);
        for (int i = 0; i < kLines; ++i)
            dialog.Add(kLine);
        QTimer::singleShot(0, &dialog, [&] {
            benchmark::DoNotOptimize(dialog.grab().width());
            dialog.accept();
        });
        dialog.showModal();
    }
}
BENCHMARK(listShown)->Unit(benchmark::kMillisecond);

}  // namespace
