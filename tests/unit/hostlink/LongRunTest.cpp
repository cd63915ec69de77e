#include "support/AllocatedBytes.h"
#include "unit/hostlink/LinkBench.h"

namespace penwright::test {
namespace {

constexpr std::size_t kAPage = 4096;

/// What hours of running leave behind on the heap.
class LongRun : public LinkTest {
protected:
    void tick()
    {
        if (link.poll())
            link.obeyNext();
    }

    SqliteSettingsStore host{bench.folder.file("Lumentor/settings.sqlite3")};
};

TEST_F(LongRun, hundredThousandIdleTicksTakeNoMemory)
{
    tick();
    const std::size_t before = allocatedBytes();
    for (int i = 0; i < 100'000; ++i)
        tick();
    EXPECT_LE(allocatedBytes(), before + kAPage);
}

TEST_F(LongRun, ticksBesideAHostThatWritesForOthersTakeNoMemory)
{
    const auto writes = [this](int count) {
        for (int i = 0; i < count; ++i) {
            host.write("Lumentor_PE", "Other", "value", std::to_string(i % 10));
            tick();
        }
    };
    writes(1'500);
    const std::size_t before = allocatedBytes();
    writes(3'000);
    EXPECT_LE(allocatedBytes(), before + 4 * kAPage);
}

TEST_F(LongRun, commandsTakeNoMoreMemoryOnceTheLogIsFull)
{
    const auto commands = [this](int count) {
        for (int i = 0; i < count; ++i) {
            host.write("Lumentor_PE", "Sec", "PenwrightPE|7", "a command that nobody knows, " + std::to_string(i % 10));
            tick();
        }
    };
    commands(1'500);
    const std::size_t before = allocatedBytes();
    commands(3'000);
    EXPECT_LE(allocatedBytes(), before + 4 * kAPage);
    EXPECT_EQ(link.log().appended(), 4'500U);
}

}  // namespace
}  // namespace penwright::test
