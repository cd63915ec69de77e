#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "unit/core/FilesTest.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;
using test::contentOf;

/// Ends or halts its process in the middle of a file.
class FatalCalls : public FileCalls {
public:
    explicit FatalCalls(int signal) : m_signal(signal) {}

    ssize_t write(int file, const void *data, std::size_t size) override
    {
        const ssize_t written = FileCalls::write(file, data, (size + 1) / 2);
        raise(m_signal);
        return written;
    }

private:
    int m_signal;
};

class LeftOverFiles : public test::FilesTest {
protected:
    /// A process that got a signal while it wrote "a.ies" in the folder, and the status that tells so.
    pid_t writerStruckBy(int signal)
    {
        const pid_t child = fork();
        if (child == 0) {
            FatalCalls calls(signal);
            _exit(PosixTextFiles(calls).replace(folder.file("a.ies"), "text of a file that is never whole"));
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, WUNTRACED), child);
        EXPECT_TRUE(WIFSIGNALED(status) || WIFSTOPPED(status)) << status;
        return child;
    }

    std::string temporaryOf(pid_t process, int number = 1) const
    {
        return ".penwright-" + std::to_string(process) + "-" + std::to_string(number) + ".tmp";
    }

    bool isThere(const std::string &name) const { return fs::exists(fs::symlink_status(folder.path() / name)); }
};

TEST_F(LeftOverFiles, nextSaveIntoTheFolderRemovesWhatAKilledOneLeft)
{
    const std::string leftOver = temporaryOf(writerStruckBy(SIGKILL));
    ASSERT_TRUE(isThere(leftOver));
    EXPECT_FALSE(isThere("a.ies"));
    EXPECT_EQ(files.replace(folder.file("b.ies"), "text"), 0);
    EXPECT_FALSE(isThere(leftOver));
    EXPECT_EQ(entries(), 1);
}

TEST_F(LeftOverFiles, fileThatIsBeingWrittenStays)
{
    const pid_t writer = writerStruckBy(SIGSTOP);
    EXPECT_EQ(files.replace(folder.file("b.ies"), "text"), 0);
    EXPECT_TRUE(isThere(temporaryOf(writer)));
    kill(writer, SIGCONT);
    int status = 0;
    EXPECT_EQ(waitpid(writer, &status, WUNTRACED), writer);  // halted once more, behind the second half
    while (WIFSTOPPED(status)) {
        kill(writer, SIGCONT);
        EXPECT_EQ(waitpid(writer, &status, WUNTRACED), writer);
    }
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    EXPECT_EQ(contentOf(folder.file("a.ies")), "text of a file that is never whole");
    EXPECT_EQ(entries(), 2);
}

TEST_F(LeftOverFiles, nameInUseIsPassedOver)
{
    const std::string inUse = make(temporaryOf(getpid()), "half");
    const int file = open(inUse.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(file, LOCK_EX | LOCK_NB), 0);
    EXPECT_EQ(files.replace(folder.file("a.ies"), "text"), 0);
    close(file);
    EXPECT_EQ(contentOf(folder.file("a.ies")), "text");
    EXPECT_EQ(contentOf(inUse), "half");
}

// Somebody who can write into the folder may have put it there to have his file written, or another one.
TEST_F(LeftOverFiles, linkInTheNameOfATemporaryFileIsNotFollowed)
{
    const std::string victim = make("victim", "kept");
    fs::create_symlink("victim", folder.path() / temporaryOf(getpid()));
    fs::create_symlink("nowhere", folder.path() / temporaryOf(getpid(), 2));
    EXPECT_EQ(files.replace(folder.file("a.ies"), "text"), 0);
    EXPECT_EQ(contentOf(folder.file("a.ies")), "text");
    EXPECT_FALSE(fs::is_symlink(folder.file("a.ies")));
    EXPECT_EQ(contentOf(victim), "kept");
    EXPECT_FALSE(isThere("nowhere"));
}

TEST_F(LeftOverFiles, whatIsNotOursByNameOrKindStays)
{
    for (const char *name :
         {".penwright-.tmp", ".penwright-7.tmp", ".penwright-7-.tmp", ".penwright--1.tmp", ".penwright-7-1.tmp.bak",
          "penwright-7-1.tmp", ".penwright-7a-1.tmp", ".penwright-7-1-1.tmp", ".penwright-tmp"})
        make(name, "kept");
    const std::string aim = make("aim", "kept");
    fs::create_symlink("aim", folder.path() / ".penwright-7-1.tmp");
    fs::create_directory(folder.path() / ".penwright-7-2.tmp");
    ASSERT_EQ(mkfifo(folder.file(".penwright-7-3.tmp").c_str(), 0600), 0);
    const int before = entries();
    EXPECT_EQ(files.replace(folder.file("a.ies"), "text"), 0);
    EXPECT_EQ(entries(), before + 1);
    EXPECT_EQ(contentOf(aim), "kept");
}

TEST_F(LeftOverFiles, folderThatCannotBeListedIsWrittenAllTheSame)
{
    chmod(folder.path().c_str(), 0777);
    make(temporaryOf(7), "half");
    fs::create_directory(folder.path() / "sub");
    chmod(folder.file("sub").c_str(), 0333);
    EXPECT_EQ(asNobody([&] { return files.replace(folder.file("sub/a.ies"), "text"); }), 0);
    chmod(folder.file("sub").c_str(), 0777);
    EXPECT_EQ(contentOf(folder.file("sub/a.ies")), "text");
    EXPECT_TRUE(isThere(temporaryOf(7))) << "another folder's";
}

}  // namespace
}  // namespace penwright
