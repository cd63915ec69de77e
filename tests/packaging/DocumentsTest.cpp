// What the desktop and the reader of manual pages get, held against the tools that know their formats.
#include <gtest/gtest.h>

#include <iterator>
#include <regex>
#include <set>

#include "packaging/InstalledTree.h"

namespace penwright::test {
namespace {

namespace fs = std::filesystem;

const std::string kDesktopFile = "share/applications/org.penwright.hostbench.desktop";
const std::string kMetainfo = "share/metainfo/org.penwright.hostbench.metainfo.xml";

/// What stands in the brackets of a pattern, at each place of a text where it fits.
std::vector<std::string> allMatches(const std::string &text, const std::string &pattern)
{
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), expression); at != std::sregex_iterator(); ++at)
        found.push_back((*at)[1]);
    return found;
}

TEST(Documents, desktopFileIsValid)
{
    const Ended ended = runToEnd({"desktop-file-validate", InstalledTree::file(kDesktopFile)});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, "");
}

TEST(Documents, desktopFileNamesAProgramAndAnIconThatAreThere)
{
    const std::string text = contentOf(InstalledTree::file(kDesktopFile));
    const auto programs = allMatches(text, "Exec=(\\w+)");
    const auto icons = allMatches(text, "Icon=(.+)");
    EXPECT_GE(programs.size(), 2U);
    ASSERT_EQ(icons.size(), 1U);
    for (const std::string &program : programs)
        EXPECT_TRUE(fs::exists(InstalledTree::file("bin/" + program))) << program;
    const std::string icon = InstalledTree::file("share/icons/hicolor/scalable/apps/" + icons[0] + ".svg");
    EXPECT_EQ(runToEnd({"python3", "-c", "import sys, xml.dom.minidom as x; x.parse(sys.argv[1])", icon}).output, "");
}

TEST(Documents, metainfoIsValidAndOfThisVersion)
{
    const Ended ended = runToEnd({"appstreamcli", "validate", "--no-net", "--strict", InstalledTree::file(kMetainfo)});
    EXPECT_EQ(ended.status, 0) << ended.output;
    const auto versions = allMatches(contentOf(InstalledTree::file(kMetainfo)), "<release version=\"([^\"]*)\"");
    ASSERT_FALSE(versions.empty());
    EXPECT_EQ(versions[0], VERSION);
}

class ManualPage : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Programs, ManualPage, testing::Values("PenwrightPE", "hostbench"),
                         [](const auto &row) { return row.param; });

TEST_P(ManualPage, readsWithoutAComplaint)
{
    const std::string page = InstalledTree::file("share/man/man1/" + GetParam() + ".1");
    const Ended lint = runToEnd({"mandoc", "-T", "lint", "-W", "warning", page});
    EXPECT_EQ(lint.status, 0);
    EXPECT_EQ(lint.output, "");
    const Ended shown = runToEnd({"sh", "-c", "man --warnings=w -l - <\"$0\" 2>&1 >/dev/null", page},
                                 {{"LC_ALL", "C.UTF-8"}, {"MANWIDTH", "80"}});
    EXPECT_EQ(shown.status, 0);
    EXPECT_EQ(shown.output, "");
}

TEST(Documents, manualPageOfTheHostHasItsOptionsAndNoOthers)
{
    const Ended usage = runToEnd({InstalledTree::file("bin/hostbench"), "--no-such-option"});
    const auto told = allMatches(usage.output, "\n *--(\\w+)");
    const auto written = allMatches(contentOf(InstalledTree::file("share/man/man1/hostbench.1")), "\n.It Fl Fl (\\w+)");
    EXPECT_FALSE(told.empty()) << usage.output;
    EXPECT_EQ(written, told);
}

TEST(Documents, manualPageOfTheWizardHasTheFieldsOfTheContract)
{
    std::string fields;
    for (const std::string &field :
         allMatches(contentOf(InstalledTree::file("share/man/man1/PenwrightPE.1")), "\n.It Ar (\\w+)"))
        fields += (fields.empty() ? "" : ",") + field;
    EXPECT_NE(contentOf(InstalledTree::file("share/doc/penwright/host-integration.md"))
                  .find("    PenwrightPE \"" + fields + "\"\n"),
              std::string::npos)
        << fields;
}

}  // namespace
}  // namespace penwright::test
