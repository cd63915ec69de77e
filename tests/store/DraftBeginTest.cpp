#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <functional>

#include "platform/sqlite/DraftLock.h"
#include "store/DraftTest.h"

namespace penwright::test {
namespace {

/// Called before the system is asked for a lock; an error number that it answers stands for the system's answer.
std::function<int()> g_beforeLock;

}  // namespace
}  // namespace penwright::test

extern "C" int flock(int file, int operation) noexcept
{
    errno = penwright::test::g_beforeLock ? penwright::test::g_beforeLock() : 0;
    return errno == 0 ? static_cast<int>(syscall(SYS_flock, file, operation)) : -1;
}

namespace penwright::test {
namespace {

/// What may happen between the moment at which a run makes its lock file and the one at which it locks it.
class DraftBegin : public DraftTest {
protected:
    ~DraftBegin() override { g_beforeLock = nullptr; }

    /// The names in the folder once a run has written a draft, for which `first` answers the first lock.
    std::vector<std::string> filesAfter(const std::function<int()> &first)
    {
        g_beforeLock = [this, first] {
            if (!before.empty())
                return 0;
            before = files();
            return first();
        };
        write(run, "one");
        return files();
    }

    SqliteDraftStore run{drafts};
    std::vector<std::string> before;  ///< the names in the folder at the first lock
};

TEST_F(DraftBegin, takesAnotherNameWhenAnotherRunHasRemovedItsLockFile)
{
    const std::vector<std::string> names = filesAfter([this] {
        std::filesystem::remove(pathOf(before.at(0)));
        return 0;
    });
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[1], names[0] + ".lock");
    EXPECT_NE(names[1], before.at(0));
}

TEST_F(DraftBegin, takesAnotherNameWhenAnotherRunHasLockedItsLockFile)
{
    const std::vector<std::string> names = filesAfter([] { return EWOULDBLOCK; });
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[1], names[0] + ".lock");
    EXPECT_NE(names[1], before.at(0));
}

TEST(DraftLock, isNotTakenOnAFileThatAnotherRunHasJustRemoved)
{
    const TempFolder folder;
    const std::string path = folder.file("draft.lock");
    g_beforeLock = [&path] {
        std::filesystem::remove(path);
        return 0;
    };
    EXPECT_FALSE(DraftLock::take(path, DraftLock::Kind::Alone));
    EXPECT_FALSE(DraftLock::make(path));
    g_beforeLock = nullptr;
    EXPECT_TRUE(DraftLock::take(path, DraftLock::Kind::Alone));
}

TEST(DraftLock, isSharedByAllWhoLookAndHadAloneByNoneMeanwhile)
{
    const TempFolder folder;
    const std::string path = folder.file("draft.lock");
    const auto one = DraftLock::take(path, DraftLock::Kind::Shared);
    const auto another = DraftLock::take(path, DraftLock::Kind::Shared);
    EXPECT_TRUE(one);
    EXPECT_TRUE(another);
    EXPECT_FALSE(DraftLock::take(path, DraftLock::Kind::Alone));
}

TEST_F(DraftBegin, keepsADraftWhereTheFileSystemHasNoLocks)
{
    const std::vector<std::string> names = filesAfter([] { return ENOLCK; });
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[1], names[0] + ".lock");
    EXPECT_EQ(names[1], before.at(0));
}

}  // namespace
}  // namespace penwright::test
