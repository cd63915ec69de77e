// The compiler as a program: what it writes, and what it leaves alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

namespace fs = std::filesystem;

class Mkchm : public testing::Test {
protected:
    Mkchm() { writeProject(folder.path()); }

    static void write(const fs::path &path, const std::string &text) { std::ofstream(path, std::ios::binary) << text; }

    static void writeProject(const fs::path &place)
    {
        fs::create_directories(place / "pictures");
        write(place / "help.hhp",
              "[OPTIONS]\nTitle=T\nDefault topic=a.html\nContents file=toc.hhc\n[FILES]\na.html\npictures/p.png\n"
              "[ALIAS]\nX=a.html\n[MAP]\n#define X 1\n");
        write(place / "a.html", "<p>a</p>");
        write(place / "toc.hhc", "<ul></ul>");
        write(place / "pictures/p.png", "picture");
    }

    /// Runs it to its end; `said` has what it printed.
    int run(const std::string &project, const std::string &output, const Process::Environment &environment = {})
    {
        return runCommand({MKCHM, project, output}, environment);
    }
    int runCommand(const std::vector<std::string> &command, const Process::Environment &environment = {})
    {
        Process process(command, environment, Process::Errors::Joined);
        said = process.readAll();
        return process.waitForEnd().value_or(-1000);
    }

    std::string listing() const
    {
        std::vector<std::string> names;
        for (const auto &entry : fs::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string &name : names)
            text += name + " ";
        return text;
    }

    TempFolder folder;
    std::string said;
};

TEST_F(Mkchm, sameSourcesGiveTheSameBytesAnywhere)
{
    TempFolder other;
    writeProject(other.path() / "a much longer name of a folder");
    // Another age and another order of the files in the folder.
    fs::last_write_time(folder.file("a.html"), fs::file_time_type::clock::now() - std::chrono::hours(10000));
    ASSERT_EQ(run(folder.file("help.hhp"), folder.file("one.chm"), {{"TZ", "Asia/Tokyo"}, {"LC_ALL", "tr_TR.UTF-8"}}),
              0)
        << said;
    const std::string relative = "cd \"$1\" && exec \"$2\" help.hhp two.chm";
    ASSERT_EQ(runCommand({"sh", "-c", relative, "sh", other.file("a much longer name of a folder"), MKCHM},
                         {{"TZ", "UTC"}, {"LC_ALL", "C"}}),
              0)
        << said;
    EXPECT_EQ(said, "");
    const std::string bytes = contentOf(folder.file("one.chm"));
    EXPECT_EQ(bytes, contentOf(other.file("a much longer name of a folder/two.chm")));
    EXPECT_EQ(bytes.find(folder.path().filename().string()), std::string::npos);
    EXPECT_EQ(listing(), "a.html help.hhp one.chm pictures toc.hhc ");
}

TEST_F(Mkchm, aFaultIsOneLineAndLeavesTheOutputAsItWas)
{
    write(folder.file("old.chm"), "old");
    write(folder.file("wrong.hhp"), "[OPTIONS]\nTitle=T\nTitle=U\n");
    EXPECT_EQ(run(folder.file("wrong.hhp"), folder.file("old.chm")), 1);
    EXPECT_EQ(said, "mkchm: " + folder.file("wrong.hhp") + ":3: the option \"Title\" stands twice\n");
    EXPECT_EQ(contentOf(folder.file("old.chm")), "old");
}

TEST_F(Mkchm, aMissingFileIsNamed)
{
    for (const char *name : {"a.html", "pictures/p.png", "toc.hhc", "help.hhp"}) {
        fs::remove(folder.file(name));
        EXPECT_EQ(run(folder.file("help.hhp"), folder.file("new.chm")), 1) << name;
        EXPECT_EQ(said, "mkchm: cannot read " + folder.file(name) + "\n");
        EXPECT_FALSE(fs::exists(folder.file("new.chm")));
        writeProject(folder.path());
    }
}

TEST_F(Mkchm, aFolderIsNoFile)
{
    fs::remove(folder.file("a.html"));
    fs::create_directory(folder.file("a.html"));
    EXPECT_EQ(run(folder.file("help.hhp"), folder.file("new.chm")), 1);
    EXPECT_EQ(said, "mkchm: cannot read " + folder.file("a.html") + "\n");
}

TEST_F(Mkchm, whatCannotBeWrittenLeavesNothingBehind)
{
    fs::create_directory(folder.file("folder.chm"));
    write(folder.file("folder.chm/there"), "there");
    EXPECT_EQ(run(folder.file("help.hhp"), folder.file("folder.chm")), 1);
    EXPECT_EQ(said, "mkchm: cannot write " + folder.file("folder.chm") + "\n");
    EXPECT_EQ(run(folder.file("help.hhp"), folder.file("nowhere/new.chm")), 1);
    EXPECT_EQ(said, "mkchm: cannot write " + folder.file("nowhere/new.chm") + "\n");
    EXPECT_EQ(listing(), "a.html folder.chm help.hhp pictures toc.hhc ");
}

TEST_F(Mkchm, aDiskThatFillsUpLeavesTheOldFile)
{
    write(folder.file("old.chm"), "old");
    const std::string limited = "ulimit -f 1 && exec \"$1\" \"$2\" \"$3\"";
    EXPECT_EQ(runCommand({"sh", "-c", limited, "sh", MKCHM, folder.file("help.hhp"), folder.file("old.chm")}), 1);
    EXPECT_EQ(said, "mkchm: cannot write " + folder.file("old.chm") + "\n");
    EXPECT_EQ(contentOf(folder.file("old.chm")), "old");
    EXPECT_EQ(listing(), "a.html help.hhp old.chm pictures toc.hhc ");
}

TEST_F(Mkchm, tellsItsUsage)
{
    EXPECT_EQ(runCommand({MKCHM, folder.file("help.hhp")}), 1);
    EXPECT_EQ(said, "usage: mkchm PROJECT OUTPUT\n");
}

}  // namespace
}  // namespace penwright::test
