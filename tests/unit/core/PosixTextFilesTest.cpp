#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>

#include <cerrno>

#include "unit/core/FilesTest.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using Files = test::FilesTest;

TEST_F(Files, newFileGetsTheModesThatTheUmaskLeaves)
{
    const mode_t before = umask(027);
    EXPECT_EQ(files.replace(folder.file("a.ies"), "text\r\n"), 0);
    umask(before);
    EXPECT_EQ(contentOf(folder.file("a.ies")), "text\r\n");
    EXPECT_EQ(modesOf(folder.file("a.ies")), 0640u);
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, existingFileIsReplacedAndKeepsItsModes)
{
    const std::string path = make("a.ies", "a much longer text than the new one");
    chmod(path.c_str(), 0604);
    EXPECT_EQ(files.replace(path, "new"), 0);
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(modesOf(path), 0604u);
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, linksAreFollowed)
{
    const std::string path = make("a.ies", "old");
    fs::create_symlink("a.ies", folder.path() / "link");
    fs::create_symlink(folder.path() / "new.ies", folder.path() / "dangling");
    EXPECT_EQ(files.replace(folder.file("link"), "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(files.replace(folder.file("dangling"), "made"), 0);
    EXPECT_TRUE(fs::is_symlink(folder.path() / "dangling"));
    EXPECT_EQ(contentOf(folder.file("new.ies")), "made");
}

TEST_F(Files, linksToLinksAreFollowedToAFileYetToBeMade)
{
    fs::create_directory(folder.path() / "sub");
    fs::create_symlink("sub/second", folder.path() / "first");
    fs::create_symlink("made.ies", folder.path() / "sub/second");
    EXPECT_EQ(files.replace(folder.file("first"), "text"), 0);
    EXPECT_TRUE(fs::is_symlink(folder.path() / "first"));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "sub/second"));
    EXPECT_EQ(contentOf(folder.path() / "sub/made.ies"), "text");
}

TEST_F(Files, linkInACircleIsTold)
{
    fs::create_symlink("b", folder.path() / "a");
    fs::create_symlink("a", folder.path() / "b");
    EXPECT_EQ(files.replace(folder.file("a"), "x"), ELOOP);
    EXPECT_EQ(entries(), 2);
}

TEST_F(Files, ownerAndGroupAreKeptWhereTheSystemLetsUs)
{
    if (getuid() != 0)
        GTEST_SKIP() << "only root gives files away";
    const std::string path = make("a.ies", "old");
    ASSERT_EQ(chown(path.c_str(), 12345, 12346), 0);
    ASSERT_EQ(chmod(path.c_str(), 04766), 0);
    EXPECT_EQ(files.replace(path, "new"), 0);
    EXPECT_EQ(ownersOf(path), "12345:12346");
    EXPECT_EQ(modesOf(path), 04766u);
    chmod(folder.path().c_str(), 0777);
    EXPECT_EQ(asNobody([&] { return files.replace(path, "theirs"); }), 0);
    EXPECT_EQ(ownersOf(path), "65534:65534");
    EXPECT_EQ(modesOf(path), 0766u) << "the right to run as the former owner goes with the owner";
    EXPECT_EQ(contentOf(path), "theirs");
}

TEST_F(Files, relativeNamesGoByTheWorkingFolder)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_EQ(files.replace("a.ies", "text"), 0);
    EXPECT_EQ(files.replace("a.ies", "again"), 0);
    fs::current_path(before);
    EXPECT_EQ(contentOf(folder.file("a.ies")), "again");
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, missingFolderIsToldAndNotMade)
{
    EXPECT_EQ(files.replace(folder.file("gone/a.ies"), "x"), ENOENT);
    const std::string file = make("file", "");
    EXPECT_EQ(files.replace(file + "/a.ies", "x"), ENOTDIR);
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, badNamesAreRefused)
{
    EXPECT_EQ(files.replace("", "x"), ENAMETOOLONG);
    EXPECT_EQ(files.replace(folder.path().string() + std::string("/a\0b", 4), "x"), EINVAL);
    EXPECT_EQ(files.replace(folder.path().string(), "x"), EISDIR);
    EXPECT_EQ(files.replace(folder.file(std::string(300, 'n')), "x"), ENAMETOOLONG);
    EXPECT_EQ(entries(), 0);
}

// A rename would succeed, and root may write anything: the modes have the word.
TEST_F(Files, readOnlyTargetIsRefused)
{
    const std::string path = make("a.ies", "old");
    chmod(path.c_str(), 0444);
    EXPECT_EQ(files.replace(path, "new"), EROFS);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, someoneElsesFileIsRefused)
{
    const std::string path = make("a.ies", "old");
    chmod(path.c_str(), 0644);
    chmod(folder.path().c_str(), 0777);
    if (getuid() != 0)
        chmod(path.c_str(), 0044);
    const auto body = [&] { return files.replace(path, "new"); };
    EXPECT_EQ(asNobody(body), getuid() == 0 ? EACCES : EROFS);
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, fileInAFolderThatTakesNoNewOneIsWrittenInPlace)
{
    const std::string path = make("a.ies", "old and long");
    chmod(path.c_str(), 0666);
    chmod(folder.path().c_str(), 0555);
    EXPECT_EQ(asNobody([&] { return files.replace(path, "new"); }), 0);
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(asNobody([&] { return files.replace(folder.file("b.ies"), "new"); }), EACCES);
    chmod(folder.path().c_str(), 0755);
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, devicesAndPipesAreWrittenInPlace)
{
    EXPECT_EQ(files.replace("/dev/full", "x"), ENOSPC);
    EXPECT_EQ(files.replace("/dev/null", "x"), 0);
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(files.replace(pipe, "x"), ENXIO);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(files.replace(pipe, "through"), 0);
    char text[16] = {};
    EXPECT_EQ(read(reader, text, sizeof text), 7);
    EXPECT_STREQ(text, "through");
    close(reader);
}

/// Calls under which the reader of a pipe goes away as soon as the pipe is full.
class LeavingReader : public FileCalls {
public:
    explicit LeavingReader(int reader) : m_reader(reader) {}
    bool waitUntilWritable(int file) override
    {
        ::close(m_reader);
        return FileCalls::waitUntilWritable(file);
    }

private:
    int m_reader;
};

// The signal that comes with the error would end the process.
TEST_F(Files, pipeWhoseReaderGoesIsAnError)
{
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    LeavingReader calls(open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    EXPECT_EQ(PosixTextFiles(calls).replace(pipe, std::string(10000000, 'x')), EPIPE);
}

TEST_F(Files, programThatRunsIsNotOverwritten)
{
    const std::string path = folder.file("sleeper");
    fs::copy_file("/bin/sleep", path);
    chmod(path.c_str(), 0777);
    int ran[2];  // closed as the program begins to run
    ASSERT_EQ(pipe2(ran, O_CLOEXEC), 0);
    const pid_t child = fork();
    if (child == 0) {
        execl(path.c_str(), path.c_str(), "60", nullptr);
        _exit(127);
    }
    char none = 0;
    close(ran[1]);
    EXPECT_EQ(read(ran[0], &none, 1), 0);
    close(ran[0]);
    EXPECT_EQ(open(path.c_str(), O_WRONLY | O_CLOEXEC), -1);
    EXPECT_EQ(errno, ETXTBSY);
    EXPECT_EQ(files.replace(path, "x"), ETXTBSY);
    EXPECT_EQ(entries(), 1);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

TEST_F(Files, noFreeFileNumberIsTold)
{
    const std::string path = folder.file("a.ies");
    EXPECT_EQ(files.replace(path, "x"), 0);  // the sanitizer looks at each type once, and needs file numbers to do so
    const int error = inAChild([&] {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_NOFILE, &none);
        return files.replace(path, "y");
    });
    EXPECT_EQ(error, EMFILE);
    EXPECT_EQ(contentOf(path), "x");
}

// The signal that comes with the error would end the process.
TEST_F(Files, fileBeyondTheSizeLimitIsAnErrorAndLeavesTheOldOne)
{
    const std::string path = make("a.ies", "old");
    chmod(path.c_str(), 0666);
    chmod(folder.path().c_str(), 0777);
    const int error = asNobody([&] {
        signal(SIGXFSZ, SIG_DFL);
        const rlimit small{100, 100};
        setrlimit(RLIMIT_FSIZE, &small);
        return files.replace(path, std::string(1000, 'x'));
    });
    EXPECT_EQ(error, EFBIG);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(entries(), 1);
}

}  // namespace
}  // namespace penwright
