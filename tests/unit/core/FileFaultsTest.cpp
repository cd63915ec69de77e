#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <deque>
#include <vector>

#include "unit/core/FilesTest.h"

namespace penwright {
namespace {

using test::contentOf;

/// System calls of which one kind fails by a script: a number for each call, 0 for one that goes well, and the last
/// number for all further ones. Writes are cut to three characters.
class ScriptedCalls : public FileCalls {
public:
    ScriptedCalls(std::string call, std::deque<int> errors) : m_call(std::move(call)), m_errors(std::move(errors)) {}
    int open(const char *path, int flags, mode_t mode) override
    {
        if (flags & O_CREAT)
            newFileModes = mode;
        return fails((flags & O_CREAT) ? "create" : "open") ? -1 : FileCalls::open(path, flags, mode);
    }
    ssize_t write(int file, const void *data, std::size_t size) override
    {
        return fails("write") ? -1 : FileCalls::write(file, data, std::min<std::size_t>(size, 3));
    }
    int truncate(int file, off_t size) override { return fails("truncate") ? -1 : FileCalls::truncate(file, size); }
    int fsync(int file) override
    {
        ++flushed;
        return fails("fsync") ? -1 : FileCalls::fsync(file);
    }
    int close(int file) override
    {
        const int result = FileCalls::close(file);
        return fails("close") ? -1 : result;
    }
    int rename(const char *from, const char *to) override { return fails("rename") ? -1 : FileCalls::rename(from, to); }
    bool waitUntilWritable(int) override { return false; }

    mode_t newFileModes = 0;
    int flushed = 0;

private:
    bool fails(const std::string &call)
    {
        if (call != m_call || m_errors.empty())
            return false;
        errno = m_errors.front();
        if (m_errors.size() > 1)
            m_errors.pop_front();
        return errno != 0;
    }
    std::string m_call;
    std::deque<int> m_errors;
};

struct FaultCase {
    std::string call;
    int error;
};

class Faults : public test::FilesTest, public testing::WithParamInterface<FaultCase> {};

INSTANTIATE_TEST_SUITE_P(SystemCalls, Faults,
                         testing::ValuesIn(std::vector<FaultCase>{
                             {"open", EMFILE},
                             {"open", ETXTBSY},
                             {"create", EMFILE},
                             {"create", ENOSPC},
                             {"create", ENOMEM},
                             {"create", ENODEV},
                             {"create", EEXIST},
                             {"write", ENOSPC},
                             {"write", EDQUOT},
                             {"write", EIO},
                             {"fsync", EIO},
                             {"fsync", ENOSPC},
                             {"close", EIO},
                             {"close", EDQUOT},
                             {"rename", EIO},
                             {"rename", ENOENT},
                         }));

TEST_P(Faults, leaveTheOldFileAndNothingElse)
{
    const std::string path = make("a.ies", "old");
    ScriptedCalls calls(GetParam().call, {GetParam().error});
    EXPECT_EQ(PosixTextFiles(calls).replace(path, "new text"), GetParam().error);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_P(Faults, leaveNoNewFile)
{
    ScriptedCalls calls(GetParam().call, {GetParam().error});
    const int error = PosixTextFiles(calls).replace(folder.file("a.ies"), "new text");
    // A new file asks for no permission, and its folder is flushed as far as it goes.
    EXPECT_EQ(error, GetParam().call == "open" ? 0 : GetParam().error);
    EXPECT_EQ(entries(), GetParam().call == "open" ? 1 : 0);
}

class FileCallsUsed : public test::FilesTest {};

TEST_F(FileCallsUsed, shortAndInterruptedWritesAreContinued)
{
    ScriptedCalls calls("write", {0, EINTR, 0, EINTR, EINTR, 0});
    EXPECT_EQ(PosixTextFiles(calls).replace(folder.file("a.ies"), "a text of many pieces"), 0);
    EXPECT_EQ(contentOf(folder.file("a.ies")), "a text of many pieces");
}

TEST_F(FileCallsUsed, fileAndFolderAreFlushed)
{
    ScriptedCalls calls("none", {});
    EXPECT_EQ(PosixTextFiles(calls).replace(folder.file("a.ies"), "text"), 0);
    EXPECT_EQ(calls.flushed, 2);
}

TEST_F(FileCallsUsed, folderThatCannotBeFlushedIsNoFailure)
{
    ScriptedCalls calls("fsync", {0, EINVAL});
    EXPECT_EQ(PosixTextFiles(calls).replace(folder.file("a.ies"), "text"), 0);
    EXPECT_EQ(contentOf(folder.file("a.ies")), "text");
}

TEST_F(FileCallsUsed, replacementOfAnExistingFileIsPrivateUntilItIsWhole)
{
    ScriptedCalls calls("none", {});
    EXPECT_EQ(PosixTextFiles(calls).replace(make("a.ies", "old"), "text"), 0);
    EXPECT_EQ(calls.newFileModes, 0600u);
}

TEST_F(FileCallsUsed, stuckPipeIsGivenUp)
{
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ScriptedCalls calls("none", {});
    EXPECT_EQ(PosixTextFiles(calls).replace(pipe, std::string(200000, 'x')), EIO);
    close(reader);
}

/// What keeps the rename from the file, though the file itself can be written.
class InPlace : public test::FilesTest, public testing::WithParamInterface<FaultCase> {};

INSTANTIATE_TEST_SUITE_P(Hindrances, InPlace,
                         testing::ValuesIn(std::vector<FaultCase>{{"create", EACCES},
                                                                  {"create", EPERM},
                                                                  {"create", EROFS},
                                                                  {"rename", EPERM},
                                                                  {"rename", EBUSY},
                                                                  {"rename", EXDEV}}));

TEST_P(InPlace, existingFileIsWritten)
{
    const std::string path = make("a.ies", "old and longer than the new");
    ScriptedCalls calls(GetParam().call, {GetParam().error});
    EXPECT_EQ(PosixTextFiles(calls).replace(path, "new text"), 0);
    EXPECT_EQ(contentOf(path), "new text");
    EXPECT_EQ(entries(), 1);
}

TEST_P(InPlace, newFileIsRefused)
{
    ScriptedCalls calls(GetParam().call, {GetParam().error});
    EXPECT_EQ(PosixTextFiles(calls).replace(folder.file("a.ies"), "new text"), GetParam().error);
    EXPECT_EQ(entries(), 0);
}

/// Calls that refuse new files and fail one write.
class ClosedFolderCalls : public ScriptedCalls {
public:
    explicit ClosedFolderCalls(std::deque<int> errors) : ScriptedCalls("write", std::move(errors)) {}
    int open(const char *path, int flags, mode_t mode) override
    {
        errno = EACCES;
        return (flags & O_CREAT) ? -1 : ScriptedCalls::open(path, flags, mode);
    }
};

TEST_F(FileCallsUsed, oldTextIsPutBackWhenWritingInPlaceFails)
{
    for (const std::string old : {"old", "old and longer than the new one"}) {
        const std::string path = make("a.ies", old);
        ClosedFolderCalls calls({0, 0, ENOSPC, 0});
        EXPECT_EQ(PosixTextFiles(calls).replace(path, "a new text of some length"), ENOSPC);
        EXPECT_EQ(contentOf(path), old);
    }
}

}  // namespace
}  // namespace penwright
