#include <filesystem>
#include <fstream>

#include "fuzz/Fuzz.h"
#include "hostlink/RecordSection.h"
#include "platform/RunTimeError.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/TempFolder.h"

using namespace penwright;

namespace {

void use(SqliteSettingsStore &store)
{
    for (const std::string &section : store.sections("Lumentor_PE")) {
        static_cast<void>(RecordSection(store, "Lumentor_PE", section).read(25));
        static_cast<void>(store.pop("Lumentor_PE", section, "PenwrightPE|7"));
    }
    static_cast<void>(store.readAll("Lumentor32", "Tool_DefaultKeywords"));
    static_cast<void>(store.read("Lumentor32", "Lumentor32", "InputUnits", "0"));
    store.write("Lumentor_PE", "Sec", "HostInbox", "RefreshData");
}

}  // namespace

/// The bytes of a settings store.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const test::TempFolder folder;
    const std::string path = folder.file("settings.sqlite3");
    for (const char *suffix : {"", "-journal", "-wal", "-shm"})
        std::filesystem::remove(path + suffix);
    const std::string_view bytes = test::textOf(data, size);
    std::ofstream(path, std::ios::binary) << bytes;

    std::unique_ptr<SqliteSettingsStore> store;
    try {
        store = std::make_unique<SqliteSettingsStore>(path);
    } catch (const RunTimeError &) {
        test::require(test::contentOf(path) == bytes, "a store that is refused stays as it is");
        return 0;
    }
    try {
        use(*store);
    } catch (const RunTimeError &) {  // a damaged page may be found late
    }
    return 0;
}
