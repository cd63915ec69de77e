// What is installed where, and that it holds together wherever it stands.
#include <gtest/gtest.h>

#include "packaging/InstalledTree.h"

namespace penwright::test {
namespace {

namespace fs = std::filesystem;

TEST(Tree, ofTheProgramIsStagedBelowDestdir)
{
    const TempFolder folder;
    const std::string stage = folder.file("die Bühne");
    outputOf({CMAKE, "--install", BUILD_FOLDER, "--component", "program", "--prefix", "/usr"}, {{"DESTDIR", stage}});
    EXPECT_EQ(listBelow(stage),
              "usr/bin/PenwrightPE -> ../lib/penwright/PenwrightPE\n"
              "usr/bin/hostbench -> ../lib/penwright/hostbench\n"
              "usr/lib/penwright/Lumentor_PE-HTML.chm\n"
              "usr/lib/penwright/PenwrightPE\n"
              "usr/lib/penwright/hostbench\n"
              "usr/share/applications/org.penwright.hostbench.desktop\n"
              "usr/share/doc/penwright/host-integration.md\n"
              "usr/share/doc/penwright/plot.md\n"
              "usr/share/icons/hicolor/scalable/apps/org.penwright.hostbench.svg\n"
              "usr/share/man/man1/PenwrightPE.1\n"
              "usr/share/man/man1/hostbench.1\n"
              "usr/share/metainfo/org.penwright.hostbench.metainfo.xml\n");
}

TEST(Tree, ofEverythingHoldsTheProgramAndTheLibraryForHosts)
{
    const std::string list = listBelow(InstalledTree::prefix());
    for (const std::string name : {"bin/PenwrightPE -> ", "lib/penwright/hostbench\n", "libpenwright_host.a\n",
                                   "include/penwright_host/HostedTool.h\n", "PenwrightHostConfig.cmake\n"})
        EXPECT_NE(list.find(name), std::string::npos) << name << " is not in\n" << list;
}

// A path to look for libraries would be one of the machine that built the programs.
TEST(Tree, programsLookForLibrariesWhereTheSystemDoes)
{
    for (const std::string program : {"PenwrightPE", "hostbench"}) {
        const std::string section = outputOf({"readelf", "-d", InstalledTree::file("lib/penwright/" + program)});
        EXPECT_NE(section.find("(NEEDED)"), std::string::npos) << section;
        for (const std::string path : {"(RPATH)", "(RUNPATH)"})
            EXPECT_EQ(section.find(path), std::string::npos) << section;
    }
}

// Debug information names the sources on purpose, so this holds for the release build.
TEST(ReleaseTree, namesNoPathOfTheMachineThatBuiltIt)
{
    int files = 0;
    for (const auto &entry : fs::recursive_directory_iterator(InstalledTree::prefix())) {
        if (!entry.is_regular_file())
            continue;
        ++files;
        const std::string content = contentOf(entry.path());
        for (const std::string path : {SOURCE_FOLDER "/", BUILD_FOLDER "/", "zuerst für kurze Zeit"})
            EXPECT_EQ(content.find(path), std::string::npos) << entry.path() << " names " << path;
    }
    EXPECT_GT(files, 10);
}

}  // namespace
}  // namespace penwright::test
