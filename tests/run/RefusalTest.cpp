#include <sys/stat.h>
#include <unistd.h>
#include <filesystem>
#include <fstream>

#include "run/Desktop.h"
#include "run/RunTest.h"
#include "x11/HostProcess.h"

namespace penwright::test {
namespace {

const std::string kNotDirectly = "This 'tool' can not be used directly. Must be called from Lumentor32 or Quellux32.";
const std::string kFull =
    "There is already the maximum number of photometric files open. Please close some before creating a new one.";

struct Refused {
    std::vector<std::string> arguments;
    std::string shown;  ///< the command line text, as it stands behind the refusal
};

void PrintTo(const Refused &refused, std::ostream *out)
{
    *out << '"' << refused.shown << '"';
}

class WithoutHost : public RunTest, public testing::WithParamInterface<Refused> {};

INSTANTIATE_TEST_SUITE_P(CommandLines, WithoutHost,
                         testing::Values(Refused{{}, ""}, Refused{{"123,1,HostBox,7,24"}, "123,1,HostBox,7,24"},
                                         Refused{{"123,1,HostBox,7,24,Sec,x"}, "123,1,HostBox,7,24,Sec,x"},
                                         Refused{{"abc,1,HostBox,7,24,Sec"}, "abc,1,HostBox,7,24,Sec"},
                                         Refused{{"123,1,HostBox,7,24,Sec\r\n1,2"}, "123,1,HostBox,7,24,Sec\r\n1,2"},
                                         Refused{{"-platform", "x11", "--help"}, "-platform x11 --help"}));

TEST_P(WithoutHost, isRefusedInABoxAndOnStderr)
{
    start(GetParam().arguments, "xcb");
    ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
    EXPECT_EQ(tool().waitForEnd(), 1);
    EXPECT_EQ(tool().readAll(), kNotDirectly + GetParam().shown + "\n");
}

using Unheard = RunTest;

// A host may have closed its end of the pipe, or be gone.
TEST_F(Unheard, refusalIsShownAllTheSame)
{
    std::filesystem::create_directories(config());
    const std::string pipe = config() + "/stderr";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    start({}, "xcb", {"sh", "-c", "exec 3<>\"$0\" 2>\"$0\" 3<&-; exec \"$@\"", pipe});
    ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
    EXPECT_EQ(tool().waitForEnd(), 1);
}

class TooMany : public RunTest {};

TEST_F(TooMany, filesAreRefusedAndTheHostIsTold)
{
    start({"123,1,HostBox,7,25,Sec"}, "xcb");
    ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
    EXPECT_EQ(pop(), "ReturnClose,PenwrightPE,7");
    EXPECT_EQ(tool().waitForEnd(), 1);
    EXPECT_EQ(tool().readAll(), kFull + "\n");
}

TEST_F(TooMany, fieldsOfTwoLinesAreThoseOfTheFirst)
{
    start({"123,1,HostBox,7,25,Sec\r\n123,1,OtherBox,8,3,Other"}, "xcb");
    ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
    EXPECT_EQ(pop(), "ReturnClose,PenwrightPE,7");
    EXPECT_EQ(tool().waitForEnd(), 1);
}

TEST_F(TooMany, hostThatTakesNothingIsWaitedForThreeSeconds)
{
    start({"0,1,HostBox,7,25,Sec"}, "xcb");
    const auto pressed = std::chrono::steady_clock::now();
    ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
    EXPECT_EQ(tool().waitForEnd(), 1);
    EXPECT_GE(std::chrono::steady_clock::now() - pressed, 3s);
    EXPECT_EQ(hostInbox(), "ReturnClose,PenwrightPE,7");
}

TEST_F(TooMany, signalDismissesTheMessageAndNothingIsPosted)
{
    start({"123,1,HostBox,7,25,Sec"}, "xcb");
    ASSERT_NE(windowTitled("PenwrightPE"), "");
    tool().signal(SIGTERM);
    EXPECT_EQ(tool().waitForEnd(), 1);
    EXPECT_EQ(hostInbox(), "");
}

/// The fatal error exit: one message, status 1.
class Fatal : public RunTest {
protected:
    void expectDied(const std::string &message)
    {
        ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
        EXPECT_EQ(tool().waitForEnd(), 1);
        const std::string output = tool().readAll();
        EXPECT_NE(output.find(message), std::string::npos) << output;
    }
    void makeFolder() { std::filesystem::create_directories(config() + "/Lumentor"); }

    /// Opens the folders on the way to the store to all users.
    void letOthersIn()
    {
        std::filesystem::path folder = storePath();
        for (int level = 0; level < 3; ++level) {
            folder = folder.parent_path();
            std::filesystem::permissions(folder, std::filesystem::perms(0755));
        }
    }

    /// For root every file is open, so that another user has to try.
    static std::vector<std::string> asSomebody()
    {
        if (geteuid() != 0)
            return {};
        return {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
    }
};

TEST_F(Fatal, numberBeyondItsFieldOverflows)
{
    start({"99999999999,1,HostBox,7,3,Sec"}, "xcb");
    expectDied("died in sub Main. reason: #6 Msg:Overflow\n");
}

TEST_F(Fatal, sleepIntervalBeyondASingleOverflows)
{
    store().write("Lumentor_PE", "Lumentor_PE", "SleepIntervalDE", "1E39");
    start({"123,1,HostBox,7,3,Sec"}, "xcb");
    expectDied("died in sub Main. reason: #6 Msg:Overflow\n");
}

TEST_F(Fatal, signalDismissesTheMessageAndTheStatusIsTheSame)
{
    start({"99999999999,1,HostBox,7,3,Sec"}, "xcb");
    ASSERT_NE(windowTitled("PenwrightPE"), "");
    tool().signal(SIGTERM);
    EXPECT_EQ(tool().waitForEnd(), 1);
    EXPECT_EQ(tool().readAll(), "died in sub Main. reason: #6 Msg:Overflow\n");
}

TEST_F(Fatal, storeThatIsLockedIsNamed)
{
    store().write("a", "b", "c", "d");
    closeStore();
    Process host({"sqlite3", storePath()});
    const std::string isLocked = config() + "/is locked";
    for (const std::string line : {"PRAGMA locking_mode = EXCLUSIVE;", "BEGIN EXCLUSIVE;", "DELETE FROM setting;"})
        host.writeLine(line);
    host.writeLine(".system touch '" + isLocked + "'");
    ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(isLocked); }));
    start({"123,1,HostBox,7,3,Sec"}, "xcb");
    expectDied("died in sub Main. reason: #55 Msg:" + storePath() + ": database is locked\n");
}

TEST_F(Fatal, storeThatIsReadOnlyIsNamedAndLeftAsItIs)
{
    store().write("a", "b", "c", "d");
    closeStore();
    letOthersIn();
    std::filesystem::permissions(storePath(), std::filesystem::perms(0444));
    const std::string before = contentOf(storePath());
    start({"123,1,HostBox,7,3,Sec"}, "xcb", asSomebody());
    expectDied("died in sub Main. reason: #75 Msg:" + storePath() + ": the file is read-only\n");
    EXPECT_EQ(contentOf(storePath()), before);
}

TEST_F(Fatal, storeThatIsNoDatabaseIsNamedAndLeftAsItIs)
{
    makeFolder();
    const std::string text(5000, 'x');
    std::ofstream(storePath()) << text;
    start({"123,1,HostBox,7,3,Sec"}, "xcb");
    expectDied("died in sub Main. reason: #13 Msg:" + storePath());
    EXPECT_EQ(contentOf(storePath()), text);
}

TEST_F(Fatal, storeOfANewerVersionIsNamedAndLeftAsItIs)
{
    makeFolder();
    {
        SqliteSettingsStore made(storePath());
        made.write("a", "b", "c", "d");
    }
    {
        std::fstream file(storePath(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(60);  // the four bytes of `user_version`
        file.write("\0\0\0\2", 4);
    }
    const std::string before = contentOf(storePath());
    start({"123,1,HostBox,7,3,Sec"}, "xcb");
    expectDied("died in sub Main. reason: #13 Msg:" + storePath());
    EXPECT_EQ(contentOf(storePath()), before);
}

TEST_F(Fatal, storeThatIsAFolderIsNamed)
{
    std::filesystem::create_directories(storePath());
    start({"123,1,HostBox,7,3,Sec"}, "xcb");
    expectDied("died in sub Main. reason: #");
    EXPECT_TRUE(std::filesystem::is_directory(storePath()));
}

TEST_F(Fatal, storeInAFolderThatIsAFileIsNamed)
{
    std::ofstream(config()) << "not a folder";
    start({"123,1,HostBox,7,3,Sec"}, "xcb");
    expectDied("died in sub Main. reason: #76 Msg:" + storePath());
    EXPECT_EQ(contentOf(config()), "not a folder");
}

TEST_F(Fatal, storeInAFolderThatMayNotBeReadIsNamed)
{
    makeFolder();
    letOthersIn();
    const std::filesystem::path folder = std::filesystem::path(storePath()).parent_path();
    std::filesystem::permissions(folder, std::filesystem::perms::none);
    start({"123,1,HostBox,7,3,Sec"}, "xcb", asSomebody());
    expectDied("died in sub Main. reason: #70 Msg:" + storePath());
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
}

struct OrphanCase {
    std::string name;
    std::string fields;  ///< behind the window number
};

void PrintTo(const OrphanCase &orphan, std::ostream *out)
{
    *out << orphan.name;
}

/// A box at the start, in a host that is there and goes.
class Orphan : public RunTest, public testing::WithParamInterface<OrphanCase> {
protected:
    HostProcess host;
};

INSTANTIATE_TEST_SUITE_P(Boxes, Orphan,
                         testing::Values(OrphanCase{"TooManyFiles", ",1,HostBox,7,25,Sec"},
                                         OrphanCase{"NotSixFields", ",1,HostBox,7,3"},
                                         OrphanCase{"Fatal", ",1,HostBox,7,99999,Sec"}),
                         [](const auto &row) { return row.param.name; });

TEST_P(Orphan, goesWithItsHost)
{
    start({std::to_string(host.window()) + GetParam().fields}, "xcb");
    ASSERT_NE(windowTitled("PenwrightPE"), "");
    EXPECT_FALSE(tool().hasEnded());
    host.obey("destroy");
    EXPECT_EQ(tool().waitForEnd(), 1);
    EXPECT_EQ(hostInbox(), "");
}

TEST_P(Orphan, goesWithAHostThatIsKilled)
{
    start({std::to_string(host.window()) + GetParam().fields}, "xcb");
    ASSERT_NE(windowTitled("PenwrightPE"), "");
    host.kill();
    EXPECT_EQ(tool().waitForEnd(), 1);
}

class NoDisplay : public RunTest {};

TEST_F(NoDisplay, isOneLineAndStatusOne)
{
    start({"123,1,HostBox,7,3,Sec"}, "xcb", {"env", "-u", "DISPLAY"});
    EXPECT_EQ(tool().waitForEnd(), 1);
    EXPECT_EQ(tool().readAll(), "PenwrightPE: there is no X display: DISPLAY is not set.\n");
}

}  // namespace
}  // namespace penwright::test
