#include <sys/resource.h>

#include <algorithm>
#include <cerrno>

#include "store/InjectedCall.h"
#include "store/StoreTest.h"

namespace penwright::test {
namespace {

int g_writeError = 0;

ssize_t failingWrite(int, const void *, size_t, off_t)
{
    errno = g_writeError;
    return -1;
}

struct FaultCase {
    int errnoValue;
    std::string error;
};

class WriteFault : public StoreTest, public testing::WithParamInterface<FaultCase> {
protected:
    /// Runs `action` while every write to disk fails.
    template <typename Action>
    std::string errorWhileFailing(Action action)
    {
        g_writeError = GetParam().errnoValue;
        const InjectedCall first("pwrite", &failingWrite), second("pwrite64", &failingWrite);
        return errorOf(action);
    }
};

TEST_P(WriteFault, raisesItsNumberWithFileAndReasonAndChangesNothing)
{
    write("a", "before");
    const std::string error = GetParam().error.substr(0, 2) + "\n" + path + ": " + GetParam().error.substr(3);
    EXPECT_EQ(errorWhileFailing([this] { write("a", "after"); }), error);
    EXPECT_EQ(errorWhileFailing([this] {
                  store().transact([this] {
                      for (int i = 0; i < 300; ++i)
                          write(std::to_string(i), std::string(20000, 'x'));
                  });
              }),
              error);
    EXPECT_EQ(read("a"), "before");
    EXPECT_EQ(read("0"), "(none)");
    write("a", "after");
    EXPECT_EQ(read("a"), "after");
}

TEST_P(WriteFault, takeSwallowsItAndLeavesTheCommand)
{
    write("a", "command");
    std::string taken = "(nothing asked)";
    EXPECT_EQ(errorWhileFailing([&] { taken = pop("a"); }), "no error");
    EXPECT_EQ(taken, "");
    EXPECT_EQ(pop("a"), "command");
}

INSTANTIATE_TEST_SUITE_P(Faults, WriteFault,
                         testing::Values(FaultCase{ENOSPC, "61 database or disk is full"},
                                         FaultCase{EIO, "57 disk I/O error"}, FaultCase{EDQUOT, "57 disk I/O error"}));

using FaultTest = StoreTest;

// A real limit instead of an injected one: no file of the process may grow beyond 300 KB.
TEST_F(FaultTest, fileThatMayNotGrowIsAnErrorAndTheStoreStaysWhole)
{
    write("a", "before");
    closeStore();
    EXPECT_EQ(inChild([this] {
                  signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{300'000, 300'000};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  SqliteSettingsStore small(path);
                  return errorOf([&] { small.write("Lumentor_PE", "Sec", "a", std::string(1'000'000, 'x')); }) + "\n" +
                         small.read("Lumentor_PE", "Sec", "a");
              }),
              "57\n" + path + ": disk I/O error\nbefore");
    EXPECT_EQ(read("a"), "before");
}

TEST_F(FaultTest, brokenPagesAreAnErrorOnlyWhereTheyAreRead)
{
    write("a", std::string(50'000, 'x'));
    closeStore();
    {
        std::string bytes = contentOf(path);
        std::fill(bytes.begin() + 4096, bytes.end(), '\xff');
        std::ofstream(path, std::ios::binary) << bytes;
    }
    const std::string malformed = "13\n" + path + ": database disk image is malformed";
    EXPECT_EQ(errorOf([this] { read("a"); }), malformed);
    EXPECT_EQ(errorOf([this] { store().readAll("Lumentor_PE", "Sec"); }), malformed);
    EXPECT_EQ(errorOf([this] { write("a", "after"); }), malformed);
    EXPECT_EQ(peek("a"), std::nullopt);
    EXPECT_EQ(pop("a"), "");
}

}  // namespace
}  // namespace penwright::test
