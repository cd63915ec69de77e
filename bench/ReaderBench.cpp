#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>

#include "core/IesReader.h"
#include "core/IesText.h"
#include "core/NumberText.h"
#include "core/SplitCommandText.h"
#include "grid/GridBlock.h"
#include "grid/TableText.h"
#include "help/chm/ChmHelpFile.h"
#include "hostlink/RecordSection.h"
#include "hostlink/RecordText.h"
#include "mkchm/HelpObjects.h"
#include "pages/candela/PastedValues.h"
#include "platform/sqlite/SqliteDraftStore.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "SquareRecord.h"
#include "support/TempFolder.h"

// What each reader of what comes from outside costs for inputs that double. The numbers behind the names are bytes; the
// last lines give the nanoseconds for each byte and how far the times lie from that line.
namespace {

using namespace penwright;

std::string repeated(std::string_view part, std::int64_t bytes)
{
    std::string text;
    while (static_cast<std::int64_t>(text.size()) < bytes)
        text += part;
    return text;
}

template <typename Read>
void readText(benchmark::State &state, const std::string &text, const Read &read)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(read(text));
    state.SetComplexityN(state.range(0));
}

void BM_splitterLines(benchmark::State &state)
{
    readText(state, repeated("1,2\r\n", state.range(0)), [](const auto &text) { return SplitCommandText(text); });
}

void BM_splitterFields(benchmark::State &state)
{
    readText(state, repeated("1,", state.range(0)), [](const auto &text) { return SplitCommandText(text); });
}

void BM_number(benchmark::State &state)
{
    readText(state, "0." + repeated("7", state.range(0)), [](const auto &text) { return leadingNumber(text); });
}

void BM_pastedCells(benchmark::State &state)
{
    readText(state, repeated("1\t2\r\n", state.range(0)), [](const auto &text) { return splitGridBlock(text); });
}

void BM_pastedLineEnds(benchmark::State &state)
{
    readText(state, repeated("\n", state.range(0)), [](const auto &text) { return splitGridBlock(text); });
}

void BM_pastedValues(benchmark::State &state)
{
    readText(state, repeated("1\t2\r\n", state.range(0)), [](const auto &text) {
        PastedValues values(text);
        for (int i = values.count(); i > 0; --i)
            benchmark::DoNotOptimize(values.next());
        return values.count();
    });
}

void BM_pastedTable(benchmark::State &state)
{
    const std::string text = repeated(repeated("17.5\t1234.25\t", 200) + "0\r\n", state.range(0));
    if (readTable(text, guessTable(text)).index() != 0)
        state.SkipWithError("the table is refused");
    readText(state, text, [](const auto &table) { return readTable(table, guessTable(table)); });
}

/// The text of a file with as many angles one way as it takes to fill the bytes.
std::string fileOf(std::int64_t bytes)
{
    int side = 2;
    while (9 * side * side < bytes)
        ++side;
    return iesFileText(squareRecord(side, [](int h, int v) { return 1000.5 + h + v; }));
}

void BM_iesFile(benchmark::State &state)
{
    readText(state, fileOf(state.range(0)), [](const auto &text) { return readIesFile(text).index(); });
}

PhotometricRecord recordOf(std::int64_t bytes)
{
    PhotometricRecord record = std::get<IesContent>(readIesFile(fileOf(bytes))).record;
    record.Filename = "a.ies";
    return record;
}

void BM_record(benchmark::State &state)
{
    std::map<std::string, std::string, std::less<>> texts;
    writeRecordTexts(recordOf(state.range(0)),
                     [&](std::string_view word, std::string text) { texts.emplace(word, std::move(text)); });
    readText(state, {}, [&](const auto &) {
        return readRecordTexts([&](std::string_view word) { return texts.find(word)->second; }).problem.size();
    });
}

void BM_settingsStore(benchmark::State &state)
{
    const test::TempFolder folder;
    SqliteSettingsStore store(folder.file("settings.sqlite3"));
    RecordSection(store, "Lumentor_PE", "Sec").write(1, recordOf(state.range(0)));
    readText(state, {}, [&](const auto &) {
        SqliteSettingsStore opened(folder.file("settings.sqlite3"));
        const auto records = RecordSection(opened, "Lumentor_PE", "Sec").read(1);
        if (records.size() != 1 || !records[0].problem.empty())
            state.SkipWithError("the record is refused");
        return records.size();
    });
}

void BM_draft(benchmark::State &state)
{
    const test::TempFolder folder;
    {
        SqliteDraftStore store(folder.path());
        int left = 1;
        store.write({}, [&]() -> std::optional<DraftText> {
            if (left-- == 0)
                return std::nullopt;
            return DraftText{4, "cdaGridCd", repeated("1\t2\n", state.range(0))};
        });
    }
    readText(state, {}, [&](const auto &) {
        SqliteDraftStore store(folder.path());
        Draft draft;
        if (store.takeOver(store.look().free.at(0).name, draft) != TakeEnd::Taken)
            state.SkipWithError("the draft is refused");
        return draft.texts.size();
    });
}

void BM_helpFile(benchmark::State &state)
{
    const std::string page =
        "<html><title>t</title><body>" + repeated("<p>word</p>", state.range(0)) + "</body></html>";
    const mkchm::HelpProject project{"Help", "first.html", "toc.hhc", {"first.html", "toc.hhc"}, {{10, "first.html"}}};
    const std::string file = mkchm::compile(
        project, [&](const std::string &name) { return name == "first.html" ? page : std::string("<ul></ul>"); });
    readText(state, file, [](const auto &bytes) { return readChm("help.chm", bytes)->texts().size(); });
}

void doubled(benchmark::internal::Benchmark *benchmark)
{
    benchmark->RangeMultiplier(2)->Range(1 << 16, 1 << 21)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);
}

BENCHMARK(BM_splitterLines)->Apply(doubled);
BENCHMARK(BM_splitterFields)->Apply(doubled);
BENCHMARK(BM_number)->Apply(doubled);
BENCHMARK(BM_record)->Apply(doubled);
BENCHMARK(BM_pastedCells)->Apply(doubled);
BENCHMARK(BM_pastedLineEnds)->Apply(doubled);
BENCHMARK(BM_pastedValues)->Apply(doubled);
BENCHMARK(BM_pastedTable)->Apply(doubled);
BENCHMARK(BM_iesFile)->Apply(doubled);
BENCHMARK(BM_helpFile)->Apply(doubled);
BENCHMARK(BM_draft)->Apply(doubled);
BENCHMARK(BM_settingsStore)->Apply(doubled);

}  // namespace

BENCHMARK_MAIN();
