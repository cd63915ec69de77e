#include <filesystem>
#include <fstream>

#include "fuzz/Fuzz.h"
#include "platform/sqlite/SqliteDraftStore.h"
#include "support/TempFolder.h"

using namespace penwright;

namespace {

namespace fs = std::filesystem;

std::size_t filesAside(const fs::path &folder)
{
    std::size_t count = 0;
    for (const auto &file : fs::directory_iterator(folder)) {
        const std::string name = file.path().filename().string();
        if (name.starts_with("aside-") && name.ends_with("sqlite3"))
            ++count;
    }
    return count;
}

}  // namespace

/// The bytes of a draft's file, once as a free draft and once as the last finished file.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const test::TempFolder folder;
    for (const auto &file : fs::directory_iterator(folder.path()))
        fs::remove(file.path());
    for (const std::string &name : {DraftFolder::newName(), std::string(kLastFile)})
        std::ofstream(folder.path() / name, std::ios::binary) << test::textOf(data, size);

    SqliteDraftStore store(folder.path().string());
    const DraftsFound found = store.look();
    test::require(found.free.size() <= 1 && found.putAside <= 2, "nothing is found that is not there");
    for (const DraftEntry &entry : found.free) {
        Draft draft;
        const TakeEnd end = store.takeOver(entry.name, draft);
        test::require(end == TakeEnd::Taken || end == TakeEnd::Damaged || end == TakeEnd::Failed,
                      "a free draft is read or put aside");
        store.drop();
    }
    static_cast<void>(store.readLast());
    test::require(filesAside(folder.path()) >= static_cast<std::size_t>(found.putAside), "what is put aside is kept");
    return 0;
}
