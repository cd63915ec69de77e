#pragma once

#include <penwright_host/HostedTool.h>

#include <deque>
#include <string>

#include "platform/sqlite/SqliteSettingsStore.h"

struct sqlite3;

namespace penwright::test {

/// A host without a window: it hands over commands one at a time, and takes what the tool posts when it is told to.
class PlayedHost {
public:
    static constexpr const char *kApplication = "Lumentor_PE";
    static constexpr const char *kSection = "Sec";
    static constexpr const char *kInbox = "HostBox";
    static constexpr const char *kToolInbox = "PenwrightPE|7";

    /// Over the store at a path.
    explicit PlayedHost(const std::string &store);
    ~PlayedHost();
    PlayedHost(const PlayedHost &) = delete;
    PlayedHost &operator=(const PlayedHost &) = delete;

    enum class Taking { AtOnce, Late, Never };
    void take(Taking how) { m_taking = how; }

    void send(std::string command) { m_queue.push_back(std::move(command)); }

    /// Puts a record of any kind into the store as file 1: a whole one, or one that cannot be read.
    void storeRecord(unsigned seed);
    void storeBroken(unsigned seed);

    /// Keeps the store locked for so many ticks.
    void lock(int ticks);

    /// Delivers the next command if the last one was taken, and takes what is due. What is wrong with what was taken,
    /// "" for nothing.
    std::string tick();

    /// Whether a command waits that the tool has not taken.
    bool isWaitingForTool();

    /// What is wrong with the records in the store, unless the host itself has written nonsense there.
    std::string faultOfStore();

    /// What was posted last, taken or not.
    std::string lastPost();

    /// A new tool has nothing of the last one, but for the records.
    void forgetTool();

private:
    void unlock();
    void noteOwnWriting();
    std::string faultOfTaken(const std::string &text);
    std::string faultOfRecord(const ToolCommand &command);

    SqliteSettingsStore m_settings;
    HostStore m_store;
    HostedTool m_tool;
    sqlite3 *m_lock = nullptr;
    int m_lockedTicks = 0;
    std::deque<std::string> m_queue;
    std::string m_last;
    Taking m_taking = Taking::AtOnce;
    int m_lateTicks = 0;
    bool m_isBroken = false;     ///< by the host, since the tool has stored last
    bool m_isRewritten = false;  ///< by the host, or held up, since it has taken something
};

}  // namespace penwright::test
