// Runs benchmarks of windows, without a display.
#include <benchmark/benchmark.h>

#include <QApplication>

int main(int count, char **arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
