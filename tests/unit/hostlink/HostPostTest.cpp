#include "hostlink/HostPost.h"

#include <gtest/gtest.h>

#include "support/ToolBench.h"

namespace penwright::test {
namespace {

class HostPostTest : public testing::Test {
protected:
    ToolBench bench;
    HostPost post{bench.state.start, bench.store, bench.wait};
};

TEST_F(HostPostTest, commandGoesToTheHostsInboxWithToolAndTag)
{
    std::string seen;
    bench.wait.onTurn = [&] {
        seen = bench.value("HostBox");
        bench.setValue("HostBox", "");
    };
    EXPECT_EQ(post.postCommand("SendNewDataClose*,"), WaitEnd::Done);
    EXPECT_EQ(seen, "SendNewDataClose*,PenwrightPE,7");
}

TEST_F(HostPostTest, suffixIsPartOfTheNameWhenThereIsOne)
{
    EXPECT_EQ(post.PostToHost("Base", "9", "text"), 0);
    EXPECT_EQ(bench.value("Base|9"), "text");
    EXPECT_EQ(bench.value("Base"), "(none)");
    post.PostToHost("Base", "", "other");
    EXPECT_EQ(bench.value("Base"), "other");
}

TEST_F(HostPostTest, silentHostIsWaitedForALittleOver3SecondsAndTheValueStays)
{
    EXPECT_EQ(post.post("HostBox", "text"), WaitEnd::TimedOut);
    EXPECT_GT(bench.wait.elapsed, std::chrono::milliseconds(3000));
    EXPECT_LE(bench.wait.elapsed, std::chrono::milliseconds(3020));
    EXPECT_EQ(bench.value("HostBox"), "text");
}

TEST_F(HostPostTest, hostThatRemovesTheValueHasTakenItToo)
{
    bench.wait.onTurn = [&] { bench.store.remove("Lumentor_PE", "Sec", "HostBox"); };
    EXPECT_EQ(post.post("HostBox", "text"), WaitEnd::Done);
}

TEST_F(HostPostTest, unloadingCutsTheWaitShort)
{
    bench.wait.onTurn = [&] { bench.wait.cancelled = true; };
    EXPECT_EQ(post.post("HostBox", "text"), WaitEnd::Cancelled);
    EXPECT_EQ(bench.value("HostBox"), "text");
}

TEST_F(HostPostTest, storeThatCannotBeReadForAMomentIsNotTaken)
{
    // A store whose value cannot be looked at while the post waits.
    struct Blind : SettingsStore {
        std::string read(std::string_view, std::string_view, std::string_view, std::string_view) override { return {}; }
        std::vector<Setting> readAll(std::string_view, std::string_view) override { return {}; }
        std::vector<std::string> sections(std::string_view) override { return {}; }
        void write(std::string_view, std::string_view, std::string_view, std::string_view) override {}
        void remove(std::string_view, std::string_view, std::string_view) override {}
        void removeSection(std::string_view, std::string_view) override {}
        void transact(const std::function<void()> &) override {}
        std::optional<std::string> peek(std::string_view, std::string_view, std::string_view) override { return {}; }
        std::string pop(std::string_view, std::string_view, std::string_view) override { return {}; }
    } blind;
    HostPost blindPost(bench.state.start, blind, bench.wait);
    EXPECT_EQ(blindPost.post("HostBox", "text"), WaitEnd::TimedOut);
}

TEST_F(HostPostTest, storeThatCannotBeWrittenIsAnError)
{
    HostPost broken(bench.state.start, bench.fullStore, bench.wait);
    EXPECT_THROW(broken.postCommand("ReturnClose,"), RunTimeError);
}

}  // namespace
}  // namespace penwright::test
