#include "hostbench/SilenceWatch.h"

#include <gtest/gtest.h>

namespace penwright {
namespace {

using namespace std::chrono_literals;
using Finding = SilenceWatch::Finding;

class Silence : public testing::Test {
protected:
    Finding after(std::chrono::milliseconds time, bool hasTaken, bool isAllTaken)
    {
        now += time;
        return watch.look(hasTaken, isAllTaken);
    }

    std::chrono::steady_clock::time_point now;
    SilenceWatch watch{[this] { return now; }};
};

TEST_F(Silence, isFallenIntoWhenACommandWaitsForFiveSeconds)
{
    EXPECT_EQ(after(100ms, true, false), Finding::Nothing);
    EXPECT_EQ(after(4900ms, false, false), Finding::Nothing);
    EXPECT_EQ(after(100ms, false, false), Finding::FellSilent);
    EXPECT_TRUE(watch.isSilent());
    EXPECT_EQ(after(60s, false, false), Finding::Nothing);
}

TEST_F(Silence, endsWhenACommandIsTaken)
{
    after(5s, false, false);
    ASSERT_TRUE(watch.isSilent());
    EXPECT_EQ(after(1s, true, false), Finding::SpokeAgain);
    EXPECT_FALSE(watch.isSilent());
    EXPECT_EQ(after(4s, false, false), Finding::Nothing);
    EXPECT_EQ(after(1s, false, false), Finding::FellSilent);
    EXPECT_EQ(after(1s, false, true), Finding::SpokeAgain);
}

TEST_F(Silence, isNoneWhileCommandsAreTakenThoughSomeAlwaysWait)
{
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(after(2s, true, false), Finding::Nothing);
}

TEST_F(Silence, isAskedAboutWhileNothingWaits)
{
    EXPECT_EQ(after(100ms, true, true), Finding::Nothing);
    EXPECT_EQ(after(2900ms, false, true), Finding::Nothing);
    EXPECT_EQ(after(100ms, false, true), Finding::AskSomething);
    EXPECT_EQ(after(2s, false, true), Finding::Nothing);
    EXPECT_EQ(after(1s, false, true), Finding::AskSomething);
}

TEST_F(Silence, countsFromTheCommandThatBeganToWait)
{
    after(100ms, true, true);
    after(2900ms, false, true);
    EXPECT_EQ(after(0ms, true, false), Finding::Nothing);
    EXPECT_EQ(after(4900ms, false, false), Finding::Nothing);
    EXPECT_EQ(after(100ms, false, false), Finding::FellSilent);
}

}  // namespace
}  // namespace penwright
