#include <penwright_host/HostStore.h>
#include <penwright_host/ToolAddress.h>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/TempFolder.h"

namespace penwright {
namespace {

/// A process that runs until it is told to end; its sections are named in it.
class Other {
public:
    Other()
    {
        int names[2];
        if (pipe(names) != 0)
            throw std::runtime_error("no pipe");
        m_id = fork();
        if (m_id == 0) {
            const std::string name = HostStore::ownSection("bench", "7");
            const ssize_t written = write(names[1], name.data(), name.size());
            _exit(written > 0 ? pause() : 1);
        }
        char bytes[200];
        const ssize_t length = read(names[0], bytes, sizeof bytes);
        section.assign(bytes, length > 0 ? static_cast<std::size_t>(length) : 0);
        for (const int end : names)
            close(end);
    }
    Other(const Other &) = delete;
    Other &operator=(const Other &) = delete;
    ~Other() { endAndCollect(); }

    /// Leaves it as a process that nobody has asked about.
    void end()
    {
        kill(m_id, SIGKILL);
        siginfo_t ended;
        waitid(P_PID, static_cast<id_t>(m_id), &ended, WEXITED | WNOWAIT);
    }

    void endAndCollect()
    {
        if (m_id <= 0)
            return;
        end();
        waitpid(m_id, nullptr, 0);
        m_id = -1;
    }

    std::string section;

private:
    pid_t m_id = -1;
};

class LeftSections : public testing::Test {
protected:
    void fill(const std::string &section) { m_settings.write("Lumentor_PE", section, "Filename1", "a.ies"); }

    test::TempFolder m_folder;
    HostStore m_store{m_folder.file("settings.sqlite3")};
    SqliteSettingsStore m_settings{m_folder.file("settings.sqlite3")};
};

TEST_F(LeftSections, nameIsOneOfAToolAndOfThisProcessAlone)
{
    const Other other;
    const std::string mine = HostStore::ownSection("bench", "7");
    EXPECT_EQ(mine, HostStore::ownSection("bench", "7"));
    EXPECT_NE(mine, other.section);
    EXPECT_NE(mine, HostStore::ownSection("bench", "8"));
    EXPECT_EQ(mine.rfind("bench_", 0), 0U);
    EXPECT_EQ(addressProblem({.window = 1, .section = mine}), "");
}

TEST_F(LeftSections, thoseOfProcessesThatAreGoneAreRemoved)
{
    Other killed;
    Other uncollected;
    fill(killed.section);
    fill(uncollected.section);
    killed.endAndCollect();
    uncollected.end();
    EXPECT_EQ(m_store.removeLeftSections("bench"), 2);
    EXPECT_EQ(m_settings.sections("Lumentor_PE"), std::vector<std::string>{});
    EXPECT_EQ(m_store.removeLeftSections("bench"), 0);
}

TEST_F(LeftSections, thoseOfProcessesThatRunStay)
{
    const Other running;
    const std::vector<std::string> names{running.section, HostStore::ownSection("bench", "1")};
    for (const std::string &name : names)
        fill(name);
    EXPECT_EQ(m_store.removeLeftSections("bench"), 0);
    EXPECT_EQ(m_settings.sections("Lumentor_PE"), names);
}

TEST_F(LeftSections, numberThatAnotherProcessHasGotSinceDoesNotKeepThem)
{
    std::string earlier = HostStore::ownSection("bench", "");
    earlier.insert(earlier.size() - 1, "0");  // another start time
    fill(earlier + "7");
    EXPECT_EQ(m_store.removeLeftSections("bench"), 1);
}

TEST_F(LeftSections, otherHostsAndOtherNumberSpacesAreLeftAlone)
{
    Other killed;
    killed.endAndCollect();
    const std::string behind = killed.section.substr(std::string("bench_").size());
    const std::vector<std::string> names{
        "benches_" + behind, "other_" + behind, "bench_1" + behind, "bench",         "bench_",
        "bench_7",           "bench_1_2_3",     "Host_4711_7",      "bench_x_1_2_7", "bench__1_2_7"};
    for (const std::string &name : names)
        fill(name);
    m_settings.write("Another", killed.section, "Filename1", "a.ies");
    EXPECT_EQ(m_store.removeLeftSections("bench"), 0);
    EXPECT_EQ(m_settings.sections("Lumentor_PE"), names);
    EXPECT_EQ(m_settings.sections("Another"), std::vector<std::string>{killed.section});
}

}  // namespace
}  // namespace penwright
