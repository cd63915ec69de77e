#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/Process.h"
#include "support/ReadBackFolder.h"

namespace penwright::test {

inline bool areKillsMeasured()
{
    return std::getenv("PENWRIGHT_KILLS") != nullptr;
}

/// How often a test kills what it has started: PENWRIGHT_KILLS, or `unasked`.
inline int killRounds(int unasked)
{
    const char *wanted = std::getenv("PENWRIGHT_KILLS");
    return wanted ? std::atoi(wanted) : unasked;
}

/// The typing that a kill may cost: two seconds' where kills are measured; more among other tests, which hold the tool
/// up as well.
inline Milliseconds killCost()
{
    return areKillsMeasured() ? 2s : 5s;
}

/// The executable as a process, with this test as its host over a settings store of their own.
class RunTest : public testing::Test {
protected:
    /// Starts the tool with its arguments; `platform` is "offscreen" or "xcb", `before` a command that starts it.
    Process &start(const std::vector<std::string> &arguments, const std::string &platform = "offscreen",
                   std::vector<std::string> before = {})
    {
        before.push_back(PENWRIGHT_PE);
        before.insert(before.end(), arguments.begin(), arguments.end());
        Process::Environment environment{{"XDG_CONFIG_HOME", config()},
                                         {"XDG_STATE_HOME", stateFolder()},
                                         {"QT_QPA_PLATFORM", platform},
                                         {"LSAN_OPTIONS", "print_suppressions=0:suppressions=" LIBRARIES_SUPP}};
        m_tool = std::make_unique<Process>(before, environment, Process::Errors::Joined);
        return *m_tool;
    }
    Process &tool() { return *m_tool; }

    std::string config() const { return m_folder.file("config"); }
    /// A file that a user names.
    std::string fileOfTheUser(const std::string &name) const { return m_folder.file(name); }

    std::string stateFolder() const { return m_folder.file("state"); }
    std::string storePath() const { return config() + "/Lumentor/settings.sqlite3"; }

    /// The store, opened by the first who asks: tool or host.
    SqliteSettingsStore &store()
    {
        if (!m_store)
            m_store = std::make_unique<SqliteSettingsStore>(storePath());
        return *m_store;
    }

    void closeStore() { m_store.reset(); }

    std::string inbox() { return store().read("Lumentor_PE", "Sec", "PenwrightPE|7"); }
    std::string hostInbox() { return store().read("Lumentor_PE", "Sec", "HostBox"); }
    void write(const std::string &name, const std::string &data) { store().write("Lumentor_PE", "Sec", name, data); }

    /// Sends a command and waits until the tool has taken it.
    void send(const std::string &command)
    {
        write("PenwrightPE|7", command);
        // Megabytes take a tool that is looked after by sanitizers seconds of a core of its own.
        ASSERT_TRUE(waitUntil([&] { return inbox().empty(); }, 240s)) << command.substr(0, 100) << " is not taken";
    }

    /// The next command from the tool, taken from the host's inbox; "" when none comes.
    std::string pop()
    {
        std::string text;
        waitUntil([&] { return !(text = store().pop("Lumentor_PE", "Sec", "HostBox")).empty(); }, 60s);
        return text;
    }

    /// The tool's last word, and its end.
    void expectUnloaded()
    {
        EXPECT_EQ(pop(), "CloseRemove,PenwrightPE,7");
        EXPECT_EQ(tool().waitForEnd(), 0) << tool().readAll();
    }

private:
    ReadBackFolder m_folder;
    std::unique_ptr<SqliteSettingsStore> m_store;
    std::unique_ptr<Process> m_tool;
};

}  // namespace penwright::test
