#include <fcntl.h>

#include <cerrno>
#include <deque>
#include <vector>

#include "unit/core/FilesTest.h"
#include "unit/core/ScriptedCalls.h"

namespace penwright {
namespace {

using test::contentOf;
using test::ScriptedCalls;

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
