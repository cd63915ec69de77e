#pragma once

#include <memory>
#include <unordered_map>

#include "platform/SettingsStore.h"
#include "platform/sqlite/SqliteOpening.h"

namespace penwright {

/// The settings store as an SQLite database, shared with the host: one table `setting`, journal WAL, `user_version` 1.
/// Whoever comes first creates it, folder 0700 and file 0600. A file that is no database, or of a newer version, is
/// refused and left as it is. Errors: 70 no permission, 75 read-only, 61 full, 57 device, 55 locked for more than 5
/// seconds, 76 no such folder, 13 not such a database; each description begins with the file's path. `peek` and `pop`
/// swallow every failure, not only a lock: the next look tells, and what writes next raises it.
class SqliteSettingsStore : public SettingsStore {
public:
    /// Opens or creates the database at `path`, with its folder.
    explicit SqliteSettingsStore(const std::string &path);
    SqliteSettingsStore(const SqliteSettingsStore &) = delete;
    SqliteSettingsStore &operator=(const SqliteSettingsStore &) = delete;
    ~SqliteSettingsStore() override;

    /// Where the user's store lives: "Lumentor/settings.sqlite3" under $XDG_CONFIG_HOME, or under ~/.config.
    static std::string userPath();

    std::string read(std::string_view application, std::string_view section, std::string_view name,
                     std::string_view fallback = {}) override;
    std::vector<Setting> readAll(std::string_view application, std::string_view section) override;
    std::vector<std::string> sections(std::string_view application) override;
    void write(std::string_view application, std::string_view section, std::string_view name,
               std::string_view data) override;
    void remove(std::string_view application, std::string_view section, std::string_view name) override;
    void removeSection(std::string_view application, std::string_view section) override;

    /// A transaction within another is part of it.
    void transact(const std::function<void()> &writes) override;

    std::optional<std::string> peek(std::string_view application, std::string_view section,
                                    std::string_view name) override;
    std::string pop(std::string_view application, std::string_view section, std::string_view name) override;

    /// No statement is open either while it runs; after 5 seconds the store gives up in any case.
    void setBusyWait(const std::function<bool()> &wait) override;

private:
    struct Statements;

    void withRetry(const std::function<void()> &work);
    void writeNow(const std::function<void()> &work);
    void forgetIfChanged();
    std::optional<std::string> select(std::string_view application, std::string_view section, std::string_view name);
    void upsert(std::string_view application, std::string_view section, std::string_view name, std::string_view data);

    std::string m_path;
    SqliteHandle m_database;
    std::unique_ptr<Statements> m_statements;
    std::function<bool()> m_busyWait;
    bool m_inTransaction = false;

    /// What `peek` has read since the last change by anyone.
    std::unordered_map<std::string, std::string> m_seen;
    long long m_seenVersion = -1;
};

}  // namespace penwright
