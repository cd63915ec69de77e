#include "platform/sqlite/SqliteSettingsStore.h"

#include <chrono>
#include <filesystem>
#include <thread>

#include "platform/Raised.h"
#include "platform/RunTimeError.h"
#include "platform/sqlite/SqliteFolder.h"
#include "platform/sqlite/SqliteStatement.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 5s;
constexpr auto kPause = 5ms;
constexpr std::size_t kLargestSeen = 4096;

std::string key(std::string_view application, std::string_view section, std::string_view name)
{
    std::string text;
    for (const std::string_view part : {application, section, name})
        text.append(std::to_string(part.size())).append(":").append(part);
    return text;
}

}  // namespace

/// The statements that run at every tick and for every value of a record.
struct SqliteSettingsStore::Statements {
    explicit Statements(sqlite3 *database)
        : dataVersion(database, "PRAGMA data_version"),
          select(database, "SELECT data FROM setting WHERE application = ? AND section = ? AND name = ?"),
          upsert(database,
                 "INSERT INTO setting (application, section, name, data) VALUES (?, ?, ?, ?) "
                 "ON CONFLICT (application, section, name) DO UPDATE SET data = excluded.data")
    {
    }

    SqliteStatement dataVersion;
    SqliteStatement select;
    SqliteStatement upsert;
};

SqliteSettingsStore::SqliteSettingsStore(const std::string &path) : m_path(path)
{
    const PrivateModes modes;
    makeFolderOf(m_path);
    withRetry([this] {
        m_database = openSqlite(m_path);
        makeSettingsStore(m_database.get());
        m_statements = std::make_unique<Statements>(m_database.get());
    });
}

SqliteSettingsStore::~SqliteSettingsStore() = default;

std::string SqliteSettingsStore::userPath()
{
    return (std::filesystem::path(userConfigFolder()) / "Lumentor" / "settings.sqlite3").string();
}

void SqliteSettingsStore::setBusyWait(const std::function<bool()> &wait)
{
    m_busyWait = wait;
}

/// Runs `work`, again while another process holds the lock; what fails otherwise is raised with file and reason.
void SqliteSettingsStore::withRetry(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    for (;;) {
        try {
            return work();
        } catch (const SqliteFailure &failure) {
            const bool mayWait = failure.isBusy() && !m_inTransaction;
            if (!mayWait || std::chrono::steady_clock::now() - start >= kPatience || (m_busyWait && !m_busyWait()))
                throw RunTimeError(failure.errorNumber(), m_path + ": " + failure.reason);
        }
        if (!m_busyWait)
            std::this_thread::sleep_for(kPause);
    }
}

void SqliteSettingsStore::writeNow(const std::function<void()> &work)
{
    withRetry([&] {
        m_seen.clear();
        if (m_inTransaction)
            return work();
        SqliteTransaction transaction(m_database.get());
        work();
        transaction.commit();
    });
}

std::optional<std::string> SqliteSettingsStore::select(std::string_view application, std::string_view section,
                                                       std::string_view name)
{
    SqliteRun run(m_statements->select);
    run->bind(1, application).bind(2, section).bind(3, name);
    return run->step() ? std::optional(run->text(0)) : std::nullopt;
}

void SqliteSettingsStore::upsert(std::string_view application, std::string_view section, std::string_view name,
                                 std::string_view data)
{
    SqliteRun run(m_statements->upsert);
    run->bind(1, application).bind(2, section).bind(3, name).bind(4, data).step();
}

std::string SqliteSettingsStore::read(std::string_view application, std::string_view section, std::string_view name,
                                      std::string_view fallback)
{
    std::optional<std::string> data;
    withRetry([&] { data = select(application, section, name); });
    return data ? *std::move(data) : std::string(fallback);
}

std::vector<Setting> SqliteSettingsStore::readAll(std::string_view application, std::string_view section)
{
    std::vector<Setting> settings;
    withRetry([&] {
        settings.clear();
        SqliteStatement statement(
            m_database.get(), "SELECT name, data FROM setting WHERE application = ? AND section = ? ORDER BY position");
        statement.bind(1, application).bind(2, section);
        while (statement.step())
            settings.push_back({statement.text(0), statement.text(1)});
    });
    return settings;
}

std::vector<std::string> SqliteSettingsStore::sections(std::string_view application)
{
    std::vector<std::string> names;
    withRetry([&] {
        names.clear();
        SqliteStatement statement(
            m_database.get(),
            "SELECT section FROM setting WHERE application = ? GROUP BY section ORDER BY min(position)");
        statement.bind(1, application);
        while (statement.step())
            names.push_back(statement.text(0));
    });
    return names;
}

void SqliteSettingsStore::write(std::string_view application, std::string_view section, std::string_view name,
                                std::string_view data)
{
    writeNow([&] { upsert(application, section, name, data); });
}

void SqliteSettingsStore::remove(std::string_view application, std::string_view section, std::string_view name)
{
    writeNow([&] {
        SqliteStatement statement(m_database.get(),
                                  "DELETE FROM setting WHERE application = ? AND section = ? AND name = ?");
        statement.bind(1, application).bind(2, section).bind(3, name).step();
    });
}

void SqliteSettingsStore::removeSection(std::string_view application, std::string_view section)
{
    writeNow([&] {
        SqliteStatement statement(m_database.get(), "DELETE FROM setting WHERE application = ? AND section = ?");
        statement.bind(1, application).bind(2, section).step();
    });
}

void SqliteSettingsStore::transact(const std::function<void()> &writes)
{
    writeNow([&] {
        const Raised raised(m_inTransaction);
        writes();
    });
}

/// Drops what was seen when another process has written since.
void SqliteSettingsStore::forgetIfChanged()
{
    SqliteRun run(m_statements->dataVersion);
    const long long version = run->step() ? run->integer(0) : -1;
    if (version != m_seenVersion)
        m_seen.clear();
    m_seenVersion = version;
}

std::optional<std::string> SqliteSettingsStore::peek(std::string_view application, std::string_view section,
                                                     std::string_view name)
{
    try {
        forgetIfChanged();
        const std::string place = key(application, section, name);
        if (const auto seen = m_seen.find(place); seen != m_seen.end())
            return seen->second;
        const std::string data = select(application, section, name).value_or("");
        // What a transaction has written may yet be undone.
        if (data.size() <= kLargestSeen && !m_inTransaction)
            m_seen[place] = data;
        return data;
    } catch (const SqliteFailure &) {
        return std::nullopt;
    }
}

std::string SqliteSettingsStore::pop(std::string_view application, std::string_view section, std::string_view name)
{
    if (peek(application, section, name).value_or("").empty() || m_inTransaction)
        return {};
    try {
        m_seen.clear();
        SqliteTransaction transaction(m_database.get());
        std::string data = select(application, section, name).value_or("");
        upsert(application, section, name, "");
        transaction.commit();
        return data;
    } catch (const SqliteFailure &) {
        return {};
    }
}

}  // namespace penwright
