#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/sqlite/SqliteDraftStore.h"
#include "store/StoreTest.h"

namespace penwright::test {

inline DraftTextSource sourceOf(const std::vector<DraftText> &texts)
{
    return [texts, next = std::size_t{0}]() mutable {
        return next < texts.size() ? std::optional(texts[next++]) : std::nullopt;
    };
}

/// Drafts in a folder of their own. A run is a store: it ends, or is killed, when the object goes.
class DraftTest : public testing::Test {
protected:
    /// What a draft says of itself that `write` has written.
    static DraftHead headOf(const std::string &about) { return {kTime, 2, about}; }

    static void write(SqliteDraftStore &run, const std::string &about, const std::vector<DraftText> &texts = kTexts)
    {
        run.write(headOf(about), sourceOf(texts));
    }

    /// A run that wrote a draft and is gone; the draft's name.
    std::string leave(const std::string &about, const std::vector<DraftText> &texts = kTexts)
    {
        const std::vector<std::string> before = files();
        SqliteDraftStore run(drafts);
        run.look();
        write(run, about, texts);
        for (const std::string &name : files())
            if (name.ends_with(".sqlite3") && std::find(before.begin(), before.end(), name) == before.end())
                return name;
        throw std::runtime_error("no draft was written");
    }

    /// What each free draft is about, the first offered first.
    static std::string offered(const DraftsFound &found)
    {
        std::string list;
        for (const DraftEntry &entry : found.free)
            list += entry.head.about + "\n";
        return list;
    }
    std::string offered() const { return offered(SqliteDraftStore(drafts).look()); }

    /// The names in the folder, sorted; without what SQLite has beside a database that is open.
    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        std::error_code ignored;
        for (const auto &entry : std::filesystem::directory_iterator(drafts, ignored))
            if (const std::string name = entry.path().filename().string();
                !name.ends_with("-wal") && !name.ends_with("-shm"))
                names.push_back(name);
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string pathOf(const std::string &name) const { return drafts + "/" + name; }

    static constexpr std::int64_t kTime = 1'700'000'000;
    inline static const std::vector<DraftText> kTexts{
        {0, "txtNumLamps", "1"}, {0, "txtWatt", ""}, {2, "keyGrid", "row\nrow"}};

    TempFolder folder;
    const std::string drafts = folder.file("state/Lumentor/drafts");
};

}  // namespace penwright::test
