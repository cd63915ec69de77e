// A tool's process under hosts that do with their children and signals as they please.
#include "hostlib/ToolProcess.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <csignal>
#include <sstream>
#include <string>
#include <vector>

#include "support/Process.h"

namespace {

std::vector<pid_t> g_killed;

}  // namespace

/// In the place of the system's own: a kill of everything, which a number below 1 is, is noted and not done.
extern "C" int kill(pid_t id, int number) noexcept
{
    static const auto real = reinterpret_cast<int (*)(pid_t, int)>(dlsym(RTLD_NEXT, "kill"));
    g_killed.push_back(id);
    return id > 0 ? real(id, number) : 0;
}

namespace penwright {
namespace {

class ToolProcessTest : public testing::Test {
protected:
    ToolProcessTest() { g_killed.clear(); }

    /// Waits until the child is gone and its parent has yet to collect it.
    void waitForTheEnd() const
    {
        siginfo_t end;
        ASSERT_EQ(waitid(P_PID, static_cast<id_t>(process.id()), &end, WEXITED | WNOWAIT), 0);
    }

    ToolProcess process;
};

TEST_F(ToolProcessTest, thatNeverStartedKillsNothing)
{
    process.kill();
    process.killAndWait();
    {
        ToolProcess another;
    }
    EXPECT_EQ(g_killed, std::vector<pid_t>());
    EXPECT_FALSE(process.isRunning());
    EXPECT_FALSE(process.hasEnded());
    EXPECT_EQ(process.exitStatus(), -1);
}

TEST_F(ToolProcessTest, thatCouldNotBeStartedKillsNothing)
{
    EXPECT_THROW(process.start("/nowhere/tool", ""), std::runtime_error);
    process.killAndWait();
    EXPECT_EQ(g_killed, std::vector<pid_t>());
    EXPECT_FALSE(process.isRunning());
    EXPECT_FALSE(process.hasEnded());
}

TEST_F(ToolProcessTest, thatHasEndedIsNotKilledAgain)
{
    process.start("true", "");
    waitForTheEnd();
    EXPECT_TRUE(process.hasEnded());
    EXPECT_EQ(process.exitStatus(), 0);
    process.kill();
    process.killAndWait();
    EXPECT_EQ(g_killed, std::vector<pid_t>()) << "the number may be another process's by now";
    EXPECT_TRUE(process.hasEnded());
}

TEST_F(ToolProcessTest, thatTheHostHasCollectedItselfHasEndedNobodyKnowsHow)
{
    process.start("true", "");
    ASSERT_EQ(waitpid(-1, nullptr, 0), process.id());
    EXPECT_TRUE(process.isRunning()) << "nobody has looked yet";
    EXPECT_TRUE(process.hasEnded());
    EXPECT_FALSE(process.isRunning());
    EXPECT_EQ(process.exitStatus(), -1);
}

TEST_F(ToolProcessTest, thatTheHostCollectsWhileItIsKilledIsWaitedForNoLonger)
{
    process.start("sleep", "1000");
    // The child goes without a trace, as under any host that ignores the news of it.
    const auto before = signal(SIGCHLD, SIG_IGN);
    process.killAndWait();
    signal(SIGCHLD, before);
    EXPECT_EQ(g_killed, std::vector<pid_t>{process.id()});
    EXPECT_FALSE(process.isRunning());
}

TEST_F(ToolProcessTest, killedOneHasNoExitStatus)
{
    process.start("sleep", "1000");
    EXPECT_FALSE(process.hasEnded());
    process.kill();
    waitForTheEnd();
    EXPECT_TRUE(process.hasEnded());
    EXPECT_EQ(process.exitStatus(), -1);
}

TEST_F(ToolProcessTest, exitStatusIsTheProcesssOwn)
{
    process.start("false", "");
    waitForTheEnd();
    EXPECT_TRUE(process.hasEnded());
    EXPECT_EQ(process.exitStatus(), 1);
}

/// The signals of a line of a process's own account of itself, as a set of bits.
unsigned long long signalsIn(const std::string &status, const std::string &word)
{
    std::istringstream lines(status);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(word + ":", 0) == 0)
            return std::stoull(line.substr(word.size() + 1), nullptr, 16);
    ADD_FAILURE() << "no line " << word << " in " << status;
    return 0;
}

unsigned long long bitOf(int number)
{
    return 1ULL << (number - 1);
}

TEST_F(ToolProcessTest, hearsTheSignalsThatTheHostIgnoresOrBlocks)
{
    constexpr int kIgnored[]{SIGTERM, SIGPIPE, SIGCHLD};
    std::vector<sighandler_t> before;
    for (const int number : kIgnored)
        before.push_back(signal(number, SIG_IGN));
    sigset_t blocked;
    sigfillset(&blocked);
    sigset_t mask;
    sigprocmask(SIG_SETMASK, &blocked, &mask);
    testing::internal::CaptureStdout();
    process.start("cat", "/proc/self/status");
    for (std::size_t i = 0; i < before.size(); ++i)
        signal(kIgnored[i], before[i]);
    // One that was quick went without a trace, while the news of it was ignored.
    EXPECT_TRUE(test::waitUntil([this] { return process.hasEnded(); }));
    sigprocmask(SIG_SETMASK, &mask, nullptr);
    const std::string status = testing::internal::GetCapturedStdout();
    EXPECT_EQ(signalsIn(status, "SigBlk"), 0U);
    for (const int number : kIgnored)
        EXPECT_EQ(signalsIn(status, "SigIgn") & bitOf(number), 0U) << number;
}

TEST_F(ToolProcessTest, hasNothingToRead)
{
    testing::internal::CaptureStdout();
    process.start("cat", "-");
    waitForTheEnd();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_TRUE(process.hasEnded());
    EXPECT_EQ(process.exitStatus(), 0);
}

}  // namespace
}  // namespace penwright
