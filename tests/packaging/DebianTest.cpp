// The Debian packages, made of what stands built.
#include <gtest/gtest.h>

#include "packaging/InstalledTree.h"
#include "run/Desktop.h"

namespace penwright::test {
namespace {

namespace fs = std::filesystem;

class ReleasePackages : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<TempFolder>();
        outputOf({BUILD_DEB, s_folder->file("Pakete für alle"), BUILD_FOLDER});
    }
    static void TearDownTestSuite() { s_folder.reset(); }

    /// The one package file whose name begins so.
    static std::string package(const std::string &name)
    {
        std::vector<std::string> found;
        for (const auto &entry : fs::directory_iterator(s_folder->path() / "Pakete für alle"))
            if (entry.path().filename().string().rfind(name + "_" VERSION "_", 0) == 0)
                found.push_back(entry.path().string());
        if (found.size() != 1)
            throw std::runtime_error(std::to_string(found.size()) + " packages " + name);
        return found[0];
    }

    static inline std::unique_ptr<TempFolder> s_folder;
};

TEST_F(ReleasePackages, haveNoFaultThatThePackageCheckerKnows)
{
    const Ended ended = runToEnd({"lintian", "--allow-root", "--fail-on", "error,warning", package("penwright"),
                                  package("libpenwright-host-dev")},
                                 {}, 200s);
    EXPECT_EQ(ended.status, 0) << ended.output;
}

TEST_F(ReleasePackages, nameTheLibrariesThatTheyNeed)
{
    const std::string program = outputOf({"dpkg-deb", "-f", package("penwright"), "Depends"});
    for (const std::string library : {"libc6 (>= ", "libqt6widgets6 (>= ", "libsqlite3-0 (>= ", "libxcb-xtest0"})
        EXPECT_NE(program.find(library), std::string::npos) << program;
    EXPECT_EQ(outputOf({"dpkg-deb", "-f", package("libpenwright-host-dev"), "Depends"}), "libsqlite3-dev\n");
}

TEST_F(ReleasePackages, unpackToAProgramThatRuns)
{
    const TempFolder root;
    outputOf({"dpkg-deb", "-R", package("penwright"), root.path().string()});
    outputOf({"sh", "-c", "cd \"$0\" && md5sum --quiet -c DEBIAN/md5sums", root.path().string()});
    Process tool({root.file("usr/bin/PenwrightPE")},
                 {{"XDG_CONFIG_HOME", root.file("config")}, {"XDG_STATE_HOME", root.file("state")}},
                 Process::Errors::Joined);
    ASSERT_TRUE(pressIn("PenwrightPE", {"Return"}));
    EXPECT_EQ(tool.waitForEnd(), 1);
}

}  // namespace
}  // namespace penwright::test
