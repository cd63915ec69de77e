// The shell commands that install and build, with programs that stand in for apt and cmake.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

namespace fs = std::filesystem;

class Commands : public testing::Test {
protected:
    Commands()
    {
        fs::create_directory(m_folder.file("bin"));
        fs::create_directory(m_folder.file("temporary"));
        standIn("id", "echo 0");
    }

    void standIn(const std::string &program, const std::string &script)
    {
        const std::string path = m_folder.file("bin/" + program);
        std::ofstream(path) << "#!/bin/sh\n" << script << '\n';
        fs::permissions(path, fs::perms(0755));
    }

    /// Runs a shell script in the folder; `said` has what it printed.
    int run(const std::string &script)
    {
        const std::string path = m_folder.file("bin") + ":" + std::getenv("PATH");
        Process process({"sh", "-euc", "cd \"$0\" && " + script, m_folder.path().string()},
                        {{"PATH", path}, {"TMPDIR", m_folder.file("temporary")}}, Process::Errors::Joined);
        said = process.readAll();
        return process.waitForEnd().value_or(-1000);
    }
    int runPrepared(const std::string &script) { return run(". " TOOLS "/prepare.sh; " + script); }

    std::string content(const std::string &name) const { return contentOf(m_folder.file(name)); }
    void write(const std::string &name, const std::string &text) const { std::ofstream(m_folder.file(name)) << text; }
    bool leavesNothing() const { return fs::is_empty(m_folder.file("temporary")); }

    std::string said;

private:
    TempFolder m_folder;
};

// As ninja writes its status into a pipe.
const std::string kSteps =
    "for share in '  4' '  9' ' 10' ' 11' ' 35' '100'; do\n"
    "    echo \"$(echo \"$NINJA_STATUS\" | sed \"s/%p/$share%/\")Building CXX object a.o\"\n"
    "done\n";

TEST_F(Commands, buildingSaysEachTenthOnce)
{
    standIn("cmake", kSteps + "echo \"called with $*\"");
    EXPECT_EQ(runPrepared("build test --target one two"), 0);
    EXPECT_EQ(said,
              "== test: building\n   10 % built\n   30 % built\n   100 % built\n"
              "called with --build --preset test --target one two\n");
}

TEST_F(Commands, buildThatFailsShowsWhatTheCompilerSaysAndFails)
{
    standIn("cmake", kSteps + "echo 'FAILED: a.o'; printf '%s\\n' 'a.cpp:3:1: error: 5% \\n'; printf 'no end'; exit 3");
    EXPECT_EQ(runPrepared("build test; echo went on"), 3);
    EXPECT_NE(said.find("   100 % built\nFAILED: a.o\na.cpp:3:1: error: 5% \\n\nno end\n"), std::string::npos) << said;
    EXPECT_EQ(said.find("went on"), std::string::npos) << said;
}

class Installing : public Commands {
protected:
    Installing()
    {
        write("packages.txt", "# a remark\nhere\nfirst  # why\n\nsecond\n");
        standIn("dpkg-query", "[ \"$4\" = here ] && echo 'install ok installed'");
    }
};

TEST_F(Installing, namesWhatIsMissingAndKeepsTheChatterInALog)
{
    standIn("apt-get",
            "echo \"apt-get $*\"\n"
            "[ \"$1\" = update ] || printf '%s\\n' dlstatus:1:4.7619:Retrieving dlstatus:2:55.1:Retrieving "
            "pmstatus:first:50.2:Unpacking pmstatus:second:100.0:Installed >&3");
    EXPECT_EQ(runPrepared("install_packages"), 0);
    EXPECT_EQ(said, "== installing first second\n   50 % downloaded\n   50 % installed\n   100 % installed\n");
    EXPECT_EQ(content("build/install.log"),
              "apt-get update -q\n"
              "apt-get install -q -y --no-install-recommends -o APT::Status-Fd=3 first second\n");
}

TEST_F(Installing, saysWhyItFails)
{
    standIn("apt-get", "[ \"$1\" = update ] || { echo 'E: Unable to locate package second' >&2; exit 100; }");
    EXPECT_EQ(runPrepared("install_packages; echo went on"), 1);
    EXPECT_EQ(said,
              "== installing first second\nE: Unable to locate package second\n"
              "Installing the packages failed; all that apt said is in build/install.log.\n");
}

TEST_F(Installing, nothingMissingIsNotWorthAWord)
{
    write("packages.txt", "here\n");
    standIn("apt-get", "exit 100");
    EXPECT_EQ(runPrepared("install_packages"), 0);
    EXPECT_EQ(said, "");
}

class Fresh : public Commands {};

TEST_F(Fresh, systemThatCannotBeMadeIsAnError)
{
    standIn("id", "echo 1000");
    EXPECT_EQ(run(TOOLS "/fresh.sh echo done"), 1);
    EXPECT_EQ(said, "A fresh Debian 12 cannot be made here: only root can.\n");
    EXPECT_TRUE(leavesNothing());
}

TEST_F(Fresh, commandMayRunHereInstead)
{
    standIn("id", "echo 1000");
    EXPECT_EQ(run("touch 'a file'; " TOOLS "/fresh.sh --or-here sh -c 'ls \"$1\"; exit 7' sh 'a file'"), 7);
    EXPECT_EQ(said, "A fresh Debian 12 cannot be made here (only root can); going on without one.\na file\n");
    EXPECT_TRUE(leavesNothing());
}

TEST_F(Fresh, systemThatCannotBeMountedIsNotBegun)
{
    standIn("unshare", "echo 'unshare: Operation not permitted' >&2; exit 1");
    standIn("debootstrap", "touch debootstrap-was-called");
    EXPECT_EQ(run(TOOLS "/fresh.sh --or-here ls"), 0);
    EXPECT_EQ(said,
              "A fresh Debian 12 cannot be made here (no mounts are allowed); going on without one.\nbin\ntemporary\n");
    EXPECT_TRUE(leavesNothing());
}

}  // namespace
}  // namespace penwright::test
