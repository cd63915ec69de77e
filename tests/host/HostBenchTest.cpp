#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <QImage>
#include <set>

#include "host/HostRun.h"
#include "hostbench/HeldFiles.h"
#include "hostbench/SampleLuminaire.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/ReadBackFolder.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;
using test::environment;
using test::Process;
using test::Screen;

/// The state letter in /proc of a process of ours, 'Z' for one that has ended and nobody has asked about, 0 for none.
char stateOf(pid_t pid)
{
    std::ifstream in("/proc/" + std::to_string(pid) + "/stat");
    const std::string text((std::istreambuf_iterator<char>(in)), {});
    const auto end = text.rfind(')');
    return end == std::string::npos || end + 2 >= text.size() ? '\0' : text[end + 2];
}

bool isRunning(pid_t pid)
{
    const char state = stateOf(pid);
    return state != 0 && state != 'Z' && state != 'X';
}

std::set<pid_t> childrenOf(pid_t pid)
{
    const std::string folder = "/proc/" + std::to_string(pid);
    std::ifstream in(folder + "/task/" + std::to_string(pid) + "/children");
    return {std::istream_iterator<pid_t>(in), {}};
}

std::string storePath(const fs::path &home)
{
    return (home / "config" / "Lumentor" / "settings.sqlite3").string();
}

/// The sections of a host in the store.
std::vector<std::string> sectionsOf(const fs::path &home, pid_t host)
{
    std::vector<std::string> sections = SqliteSettingsStore(storePath(home)).sections("Lumentor_PE");
    std::erase_if(sections, [number = "_" + std::to_string(host) + "_"](const std::string &section) {
        return section.rfind("hostbench_", 0) != 0 || section.find(number) == std::string::npos;
    });
    return sections;
}

/// Whether the one tool of a host has taken the commands sent to it so far.
bool hasTakenCommands(const fs::path &home, pid_t host, int tag)
{
    const std::vector<std::string> sections = sectionsOf(home, host);
    if (sections.size() != 1)
        return false;
    SqliteSettingsStore store(storePath(home));
    const auto values = store.readAll("Lumentor_PE", sections[0]);
    const std::string inbox = "PenwrightPE|" + std::to_string(tag);
    return std::any_of(values.begin(), values.end(),
                       [&](const Setting &value) { return value.name == inbox && value.data.empty(); });
}

struct WalkCase {
    bool isManaged;
    int scale;
};

void PrintTo(const WalkCase &row, std::ostream *out)
{
    *out << (row.isManaged ? "openbox" : "no manager") << " at scale " << row.scale;
}

class WalkTest : public testing::TestWithParam<WalkCase> {};

void checkPictures(const fs::path &folder, int scale)
{
    std::vector<QImage> seen;
    for (int page = 1; page <= 6; ++page) {
        const QImage image(QString::fromStdString((folder / ("page-" + std::to_string(page) + ".png")).string()));
        EXPECT_EQ(image.size(), QSize(1240, 860) * scale) << "page " << page;
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); y += 5)
            for (int x = 0; x < image.width(); x += 5)
                colours.insert(image.pixel(x, y));
        EXPECT_GT(colours.size(), 20U) << "page " << page;
        for (const QImage &other : seen)
            EXPECT_NE(image, other) << "page " << page;
        seen.push_back(image);
    }
}

TEST_P(WalkTest, leavesTheFileAndAPictureOfEachPage)
{
    const Screen screen(GetParam().isManaged);
    const test::ReadBackFolder home;
    const fs::path folder = home.path() / "left here";
    Process host({HOSTBENCH, "--walk", folder.string()}, environment(screen.name(), home.path(), GetParam().scale),
                 Process::Errors::Joined);
    const std::string output = host.readAll(std::chrono::seconds(90));
    EXPECT_EQ(host.waitForEnd(), 0) << output;
    EXPECT_NE(output.find((folder / "luminaire.ies").string()), std::string::npos) << output;
    EXPECT_NE(output.find((folder / "page-6.png").string()), std::string::npos) << output;
    EXPECT_EQ(test::contentOf(folder / "luminaire.ies"), test::contentOf(EXPECTED_FILE));
    checkPictures(folder, GetParam().scale);
    EXPECT_FALSE(fs::exists(home.path() / "config")) << "the user's own settings were touched";
}

INSTANTIATE_TEST_SUITE_P(Displays, WalkTest,
                         testing::Values(WalkCase{false, 1}, WalkCase{false, 2}, WalkCase{true, 1}, WalkCase{true, 2}),
                         [](const auto &row) {
                             return std::string(row.param.isManaged ? "Openbox" : "NoManager") + "Scale" +
                                    std::to_string(row.param.scale);
                         });

TEST(Walk, namesTheStepThatFailsAndEnds)
{
    const Screen screen(false);
    const test::ReadBackFolder home;
    fs::copy_file(HOSTBENCH, home.path() / "hostbench");
    Process host({home.file("hostbench"), "--walk", home.file("left")}, environment(screen.name(), home.path()),
                 Process::Errors::Joined);
    EXPECT_EQ(host.readAll(), "hostbench: the walk failed at \"start the tool\": the tool has ended\n");
    EXPECT_EQ(host.waitForEnd(), 1);
}

TEST(Walk, aToolThatShowsNothingIsGivenUp)
{
    const Screen screen(false);
    const test::ReadBackFolder home;
    fs::copy_file(HOSTBENCH, home.path() / "hostbench");
    fs::copy_file(FAKE_TOOL, home.path() / "PenwrightPE");
    Process::Environment silent = environment(screen.name(), home.path());
    silent.insert(silent.end(), {{"FAKE_TOOL", "silence"}, {"FAKE_TOOL_LOG", home.file("log")}});
    Process host({home.file("hostbench"), "--walk", home.file("left")}, silent, Process::Errors::Joined);
    const std::string output = host.readAll(std::chrono::seconds(70));
    EXPECT_EQ(output.rfind("hostbench: the walk failed at \"start the tool\": the keyboard focus is in ", 0), 0U)
        << output;
    EXPECT_EQ(host.waitForEnd(), 1);
}

TEST(Walk, aFolderThatCannotBeMadeIsNamed)
{
    const Screen screen(false);
    const test::ReadBackFolder home;
    std::ofstream(home.file("a file")) << "in the way";
    Process host({HOSTBENCH, "--walk", home.file("a file") + "/left"}, environment(screen.name(), home.path()),
                 Process::Errors::Joined);
    EXPECT_EQ(host.readAll(), "hostbench: the walk failed at \"prepare the folder\": cannot make the folder " +
                                  home.file("a file") + "/left\n");
    EXPECT_EQ(host.waitForEnd(), 1);
}

TEST(HostBench, withoutADisplayItSaysSo)
{
    const test::ReadBackFolder home;
    for (const auto &arguments :
         {std::vector<std::string>{HOSTBENCH}, {HOSTBENCH, "--new"}, {HOSTBENCH, "--walk", home.file("left")}}) {
        Process host(arguments, environment(":no-display", home.path()), Process::Errors::Joined);
        EXPECT_EQ(host.readAll(), "hostbench: cannot open the X display \":no-display\".\n");
        EXPECT_EQ(host.waitForEnd(), 1);
    }
    EXPECT_FALSE(fs::exists(home.path() / "left"));
}

/// The environment with another platform asked for.
Process::Environment onPlatform(const std::string &platform, Process::Environment rest)
{
    for (auto &[name, value] : rest)
        if (name == "QT_QPA_PLATFORM")
            value = platform;
    return rest;
}

TEST(HostBench, runsOnX11WhereWaylandIsExported)
{
    const test::ReadBackFolder home;
    Process host({HOSTBENCH}, onPlatform("wayland", environment(":no-display", home.path())), Process::Errors::Joined);
    EXPECT_EQ(host.readAll(), "hostbench: cannot open the X display \":no-display\".\n");
    EXPECT_EQ(host.waitForEnd(), 1);
}

TEST(HostBench, aPlatformThatCannotBeLoadedIsSaidInOneLineWithoutAnAbort)
{
    const test::ReadBackFolder home;
    struct {
        const char *platform;
        const char *display;
        const char *said;
    } const kCases[]{{"nonesuch", ":no-display", " (QT_QPA_PLATFORM is \"nonesuch\")\n"},
                     {"wayland-nonesuch", "", " (QT_QPA_PLATFORM is \"wayland-nonesuch\"; DISPLAY is not set)\n"}};
    for (const auto &[platform, display, end] : kCases) {
        Process host({HOSTBENCH}, onPlatform(platform, environment(display, home.path())), Process::Errors::Joined);
        const std::string said = host.readAll();
        EXPECT_TRUE(said.starts_with("hostbench: This application failed to start")) << said;
        EXPECT_TRUE(said.ends_with(end)) << said;
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
        EXPECT_EQ(host.waitForEnd(), 1);
    }
}

TEST(HostBench, unknownOptionsGetTheUsage)
{
    const test::ReadBackFolder home;
    for (const auto &arguments : {std::vector<std::string>{HOSTBENCH, "--walk"}, {HOSTBENCH, "a.ies", "--nonsense"}}) {
        Process host(arguments, environment(":no-display", home.path()), Process::Errors::Joined);
        EXPECT_EQ(host.readAll().substr(0, 6), "usage:");
        EXPECT_EQ(host.waitForEnd(), 1);
    }
}

TEST(HostBench, aFileOfTheCommandLineThatCannotBeOpenedIsTold)
{
    const Screen screen(false);
    const test::ReadBackFolder home;
    const Process::Environment here = environment(screen.name(), home.path());
    const auto isTold = [&] {
        return Process({"xdotool", "search", "--name", "^Open Photometric Files$"}, here).readAll() != "";
    };
    const auto isShown = [&] {
        return Process({"xdotool", "search", "--name", "stand-in host"}, here).readAll() != "";
    };
    {
        const Process host({HOSTBENCH, EXPECTED_FILE}, here);
        ASSERT_TRUE(test::waitUntil(isShown, std::chrono::seconds(20)));
        EXPECT_FALSE(isTold());
    }
    const Process host({HOSTBENCH, EXPECTED_FILE, home.file("nowhere.ies")}, here);
    EXPECT_TRUE(test::waitUntil(isTold, std::chrono::seconds(20)));
}

/// `hostbench --new` with its one tool, which has taken "START".
class HostWithTool : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(test::waitUntil([this] { return childrenOf(m_host.pid()).size() == 1; }, std::chrono::seconds(20)));
        m_tool = *childrenOf(m_host.pid()).begin();
        ASSERT_TRUE(test::waitUntil([this] { return hasTakenCommands(m_home.path(), m_host.pid(), 1); },
                                    std::chrono::seconds(20)));
    }

    Screen m_screen{false};
    test::ReadBackFolder m_home;
    Process m_host{{HOSTBENCH, "--new"}, environment(m_screen.name(), m_home.path())};
    pid_t m_tool = -1;
};

TEST_F(HostWithTool, killingTheToolLeavesTheHostAlive)
{
    kill(m_tool, SIGKILL);
    EXPECT_TRUE(test::waitUntil([this] { return childrenOf(m_host.pid()).empty(); }));
    EXPECT_TRUE(isRunning(m_host.pid()));
}

TEST_F(HostWithTool, killingTheHostEndsTheTool)
{
    m_host.signal(SIGKILL);
    EXPECT_TRUE(test::waitUntil([this] { return !isRunning(m_tool); }));
}

TEST_F(HostWithTool, nextHostRemovesTheSectionOfAKilledOneAndNoOther)
{
    SqliteSettingsStore(storePath(m_home.path())).write("Lumentor_PE", "Host_4711_7", "Filename1", "a.ies");
    m_host.signal(SIGKILL);
    m_host.waitForEnd();
    EXPECT_EQ(sectionsOf(m_home.path(), m_host.pid()).size(), 1U);
    const Process next({HOSTBENCH}, environment(m_screen.name(), m_home.path()));
    EXPECT_TRUE(
        test::waitUntil([this] { return sectionsOf(m_home.path(), m_host.pid()).empty(); }, std::chrono::seconds(20)));
    EXPECT_EQ(SqliteSettingsStore(storePath(m_home.path())).sections("Lumentor_PE"),
              std::vector<std::string>{"Host_4711_7"});
}

TEST_F(HostWithTool, anotherHostLeavesTheSectionOfARunningOne)
{
    Process second({HOSTBENCH, "--new"}, environment(m_screen.name(), m_home.path()));
    ASSERT_TRUE(
        test::waitUntil([&] { return hasTakenCommands(m_home.path(), second.pid(), 1); }, std::chrono::seconds(20)));
    EXPECT_EQ(sectionsOf(m_home.path(), m_host.pid()).size(), 1U);
}

}  // namespace
}  // namespace penwright
