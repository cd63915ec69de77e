// The programs as a user starts them: by the links in the installed tree's folder for programs.
#include <gtest/gtest.h>

#include "help/chm/ChmHelpFile.h"
#include "packaging/InstalledTree.h"
#include "run/Desktop.h"
#include "support/ReadBackFolder.h"
#include "wizard/PageTable.h"

namespace penwright::test {
namespace {

namespace fs = std::filesystem;

class Installed : public testing::Test {
protected:
    Process::Environment environment(const std::string &platform) const
    {
        return {{"XDG_CONFIG_HOME", m_folder.file("config")},
                {"XDG_STATE_HOME", m_folder.file("state")},
                {"QT_QPA_PLATFORM", platform},
                {"LSAN_OPTIONS", "print_suppressions=0:suppressions=" LEAK_SUPPRESSIONS}};
    }

    ReadBackFolder m_folder;
};

TEST_F(Installed, wizardRefusesToRunByItself)
{
    Process tool({InstalledTree::file("bin/PenwrightPE")}, environment("xcb"), Process::Errors::Joined);
    ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
    EXPECT_EQ(tool.waitForEnd(), 1);
    EXPECT_EQ(tool.readAll(), "This 'tool' can not be used directly. Must be called from Lumentor32 or Quellux32.\n");
}

// The wizard looks for its help in the folder of its executable, as the system names that.
TEST_F(Installed, wizardHasItsHelpWhereItLooksForIt)
{
    Process tool({InstalledTree::file("bin/PenwrightPE"), "1,1,HostBox,7,0,Sec"}, environment("offscreen"),
                 Process::Errors::Dropped);
    ASSERT_TRUE(waitUntil([this] { return fs::exists(m_folder.file("config/Lumentor/settings.sqlite3")); }, 60s));
    const fs::path program = fs::read_symlink("/proc/" + std::to_string(tool.pid()) + "/exe");
    const auto help = openChm((program.parent_path() / "Lumentor_PE-HTML.chm").string());
    for (const PageRow &page : kPages) {
        const auto place = help->topicFor(page.helpId);
        ASSERT_TRUE(place.has_value()) << page.caption;
        EXPECT_NE(help->page(place->topic), "") << page.caption;
    }
    tool.signal(SIGTERM);
    EXPECT_EQ(tool.waitForEnd(), 0);
}

using ReleaseWalk = Installed;

TEST_F(ReleaseWalk, fromTheHostsLinkMakesAFile)
{
    const auto [status, output] =
        runToEnd({InstalledTree::file("bin/hostbench"), "--walk", m_folder.file("left")}, environment("xcb"), 90s);
    EXPECT_EQ(status, 0) << output;
    EXPECT_EQ(contentOf(m_folder.file("left/luminaire.ies")), contentOf(EXPECTED_FILE));
    EXPECT_TRUE(fs::exists(m_folder.file("left/page-6.png")));
}

}  // namespace
}  // namespace penwright::test
