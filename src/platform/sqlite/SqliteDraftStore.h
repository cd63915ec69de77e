#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/DraftStore.h"
#include "platform/RunTimeError.h"
#include "platform/sqlite/DraftFolder.h"
#include "platform/sqlite/DraftLock.h"
#include "platform/sqlite/SqliteOpening.h"
#include "platform/sqlite/SqliteStatement.h"

namespace penwright {

/// Drafts as SQLite files in a folder of their own, one for each run, with a lock file beside each: folder 0700, files
/// 0600, `application_id` 1282753650, `user_version` 1. To be used by one thread at a time. The first write makes what
/// is missing, so that a run in which nothing is typed leaves nothing.
class SqliteDraftStore : public DraftStore {
public:
    /// Keeps drafts in the folder at an absolute path, which may be missing.
    explicit SqliteDraftStore(std::string folder) : m_folder(std::move(folder)) {}
    SqliteDraftStore(const SqliteDraftStore &) = delete;
    SqliteDraftStore &operator=(const SqliteDraftStore &) = delete;

    /// Where the user's drafts live: "Lumentor/drafts" under $XDG_STATE_HOME, or under ~/.local/state.
    static std::string userFolder();

    DraftsFound look() override;
    void write(const DraftHead &head, const DraftTextSource &texts) override;
    TakeEnd takeOver(const std::string &name, Draft &draft) override;
    void discard(const DraftEntry &draft) override;
    void leave() override { m_own.reset(); }
    void drop() override;
    void finish() override;
    std::optional<Draft> readLast() override;

private:
    /// The draft that this run has: its name, its lock, and its database once it has been opened.
    struct Own {
        std::string name;
        DraftLock lock;
        SqliteHandle database;
    };

    /// What a look at one draft tells.
    struct Sight;

    Sight sightOf(const std::string &name) const;
    std::vector<Sight> sightsOf(const std::vector<std::string> &names) const;
    bool putAside(const std::string &name) const;
    bool isAsFound(const DraftEntry &draft) const;
    void removeOldest(std::vector<Sight> &sights) const;
    void keepLatest();
    std::optional<Draft> readUnlocked(const std::string &name, bool withTexts, int &putAside) const;
    void begin();
    void forgetOwnIfGone();
    RunTimeError errorOf(const std::string &name, const SqliteFailure &failure) const;

    DraftFolder m_folder;
    std::optional<Own> m_own;
    std::int64_t m_latestOrder = 0;  ///< of all drafts that this run has seen or written
};

}  // namespace penwright
