#include "platform/posix/PosixTextFiles.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <functional>

#include "support/TempFolder.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;
using test::contentOf;

class Files : public testing::Test {
protected:
    std::string make(const std::string &name, const std::string &content)
    {
        std::ofstream(folder.path() / name, std::ios::binary) << content;
        return folder.file(name);
    }

    int entries() const
    {
        return static_cast<int>(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }

    static mode_t modesOf(const std::string &path)
    {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    /// What `body` answers in a process of its own that has no rights over other users' files.
    static int asNobody(const std::function<int()> &body)
    {
        const pid_t child = fork();
        if (child == 0) {
            if (getuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
                _exit(255);
            _exit(body());
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    test::TempFolder folder;
    PosixTextFiles files;
};

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

TEST_F(Files, programThatRunsIsNotOverwritten)
{
    const std::string path = folder.file("sleeper");
    fs::copy_file("/bin/sleep", path);
    chmod(path.c_str(), 0777);
    const pid_t child = fork();
    if (child == 0) {
        execl(path.c_str(), path.c_str(), "60", nullptr);
        _exit(127);
    }
    // Started once its own image is busy.
    for (int file = 0; (file = open(path.c_str(), O_WRONLY | O_CLOEXEC)) >= 0; usleep(1000))
        close(file);
    EXPECT_EQ(errno, ETXTBSY);
    chmod(folder.path().c_str(), 0555);
    EXPECT_EQ(asNobody([&] { return files.replace(path, "x"); }), ETXTBSY);
    chmod(folder.path().c_str(), 0755);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

TEST_F(Files, noFreeFileNumberIsTold)
{
    const int error = asNobody([&] {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_NOFILE, &none);
        return files.replace("/tmp/penwright-cannot-be-made", "x");
    });
    EXPECT_EQ(error, EMFILE);
}

TEST_F(Files, fullDiskLeavesTheOldFileAsItWas)
{
    const std::string path = make("a.ies", "old");
    chmod(path.c_str(), 0666);
    chmod(folder.path().c_str(), 0777);
    const int error = asNobody([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit small{100, 100};
        setrlimit(RLIMIT_FSIZE, &small);
        return files.replace(path, std::string(1000, 'x'));
    });
    EXPECT_EQ(error, EFBIG);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(entries(), 1);
}

/// System calls of which one fails.
class FailingCalls : public FileCalls {
public:
    explicit FailingCalls(std::string call, int error) : m_call(std::move(call)), m_error(error) {}
    int open(const char *path, int flags, mode_t mode) override
    {
        return fails("open") ? -1 : FileCalls::open(path, flags, mode);
    }
    ssize_t write(int file, const void *data, std::size_t size) override
    {
        return fails("write") ? -1 : FileCalls::write(file, data, std::min<std::size_t>(size, 3));
    }
    int fsync(int file) override { return fails("fsync") ? -1 : FileCalls::fsync(file); }
    int close(int file) override
    {
        const int result = FileCalls::close(file);
        return fails("close") ? -1 : result;
    }
    int rename(const char *from, const char *to) override { return fails("rename") ? -1 : FileCalls::rename(from, to); }

private:
    bool fails(const std::string &call)
    {
        if (call != m_call)
            return false;
        errno = m_error;
        return true;
    }
    std::string m_call;
    int m_error;
};

struct FaultCase {
    std::string call;
    int error;
};

class Faults : public Files, public testing::WithParamInterface<FaultCase> {};

INSTANTIATE_TEST_SUITE_P(SystemCalls, Faults,
                         testing::ValuesIn(std::vector<FaultCase>{
                             {"open", EMFILE},
                             {"open", ENOSPC},
                             {"open", ENOMEM},
                             {"open", ENODEV},
                             {"write", ENOSPC},
                             {"write", EDQUOT},
                             {"write", EIO},
                             {"fsync", EIO},
                             {"fsync", ENOSPC},
                             {"close", EIO},
                             {"close", EDQUOT},
                             {"rename", EIO},
                             {"rename", EISDIR},
                         }));

TEST_P(Faults, leaveTheOldFileAndNothingElse)
{
    const std::string path = make("a.ies", "old");
    FailingCalls calls(GetParam().call, GetParam().error);
    EXPECT_EQ(PosixTextFiles(calls).replace(path, "new text"), GetParam().error);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, shortWritesAreContinued)
{
    FailingCalls calls("none", 0);
    EXPECT_EQ(PosixTextFiles(calls).replace(folder.file("a.ies"), "a text of many pieces"), 0);
    EXPECT_EQ(contentOf(folder.file("a.ies")), "a text of many pieces");
}

}  // namespace
}  // namespace penwright
