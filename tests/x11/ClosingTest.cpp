#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <tuple>

#include "support/Process.h"
#include "support/Xvfb.h"
#include "x11/HostProcess.h"

namespace penwright::test {
namespace {

/// What a program in that situation says when it is made to close, before it is unwound.
struct Situation {
    std::string name;
    std::string dismissed;
    friend void PrintTo(const Situation &situation, std::ostream *out) { *out << situation.name; }
};

// No line ever says "committed": a half-typed cell is dropped.
const Situation kSituations[] = {
    {"hidden", ""},
    {"shown", ""},
    {"window of its own", ""},
    {"box", "box dismissed\n"},
    {"box over box", "upper box dismissed\nlower box dismissed\n"},
    {"box without an escape button", "box over\n"},
    {"save dialog", "no name\n"},
    {"list of a combo box", ""},
    {"menu", "no entry\n"},
    {"cell editor", ""},
    {"wait", "wait cancelled\n"},
    {"wait in a box in a wait", "inner wait cancelled\nbox dismissed\nouter wait cancelled\n"},
    {"drag", "drag over\n"},
};

/// What makes it close: its host's window goes, its host dies, or it is asked to by a signal.
enum class Cause { WindowDestroyed, HostKilled, Terminated, HungUp };

class ClosingIn : public testing::TestWithParam<std::tuple<Situation, Cause>> {};

TEST_P(ClosingIn, dismissesWhatIsOpenAndEnds)
{
    const auto &[situation, cause] = GetParam();
    HostProcess host;
    Process probe({CLOSING_PROBE, situation.name, std::to_string(host.window())}, {}, Process::Errors::Joined);
    ASSERT_EQ(probe.readLine(), "ready");
    if (cause == Cause::WindowDestroyed)
        host.obey("destroy");
    else if (cause == Cause::HostKilled)
        host.kill();
    else
        probe.signal(cause == Cause::Terminated ? SIGTERM : SIGHUP);
    const bool hostIsGone = cause == Cause::WindowDestroyed || cause == Cause::HostKilled;
    EXPECT_EQ(probe.readAll(), situation.dismissed + "unwound at level 1\nlater box dismissed\n" +
                                   (hostIsGone ? "last wait refused\n" : "last wait ran\n"));
    EXPECT_EQ(probe.waitForEnd(), 0);
}

INSTANTIATE_TEST_SUITE_P(EverySituation, ClosingIn,
                         testing::Combine(testing::ValuesIn(kSituations),
                                          testing::Values(Cause::WindowDestroyed, Cause::HostKilled,
                                                          Cause::Terminated)));
INSTANTIATE_TEST_SUITE_P(OtherSignal, ClosingIn,
                         testing::Combine(testing::Values(kSituations[3]), testing::Values(Cause::HungUp)));

/// How the program starts, with what stands in the environment, when it cannot show a window.
struct Environment {
    std::string name;
    Process::Environment variables;
    std::string said;
};

class WithoutDisplay : public testing::TestWithParam<Environment> {};

TEST_P(WithoutDisplay, oneLineAndStatusOne)
{
    Process probe({CLOSING_PROBE}, GetParam().variables, Process::Errors::Joined);
    EXPECT_EQ(probe.readAll(), GetParam().said);
    EXPECT_EQ(probe.waitForEnd(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, WithoutDisplay,
    testing::Values(
        Environment{"Unset", {{"DISPLAY", ""}}, "PenwrightPE: there is no X display: DISPLAY is not set.\n"},
        Environment{"NotThere", {{"DISPLAY", ":98765"}}, "PenwrightPE: cannot open the X display \":98765\".\n"},
        Environment{"UnknownPlatform",
                    {{"QT_QPA_PLATFORM", "nonesuch"}},
                    "PenwrightPE: This application failed to start because no Qt platform plugin could be "
                    "initialized. Reinstalling the application may fix this problem. (QT_QPA_PLATFORM is "
                    "\"nonesuch\")\n"}),
    [](const auto &row) { return row.param.name; });

TEST(ChosenPlatform, isKept)
{
    Process probe({CLOSING_PROBE}, {{"QT_QPA_PLATFORM", "offscreen"}, {"DISPLAY", ""}}, Process::Errors::Joined);
    EXPECT_EQ(probe.readAll(), "");
    EXPECT_EQ(probe.waitForEnd(), 2);
}

// A host's window takes in a window of X11 alone, whatever is exported for all programs of a desktop.
TEST(ChosenPlatform, isX11WhereWaylandIsExportedAndThereIsADisplay)
{
    Process probe({CLOSING_PROBE}, {{"QT_QPA_PLATFORM", "wayland"}, {"DISPLAY", ":98765"}}, Process::Errors::Joined);
    EXPECT_EQ(probe.readAll(), "PenwrightPE: cannot open the X display \":98765\".\n");
    EXPECT_EQ(probe.waitForEnd(), 1);
}

}  // namespace
}  // namespace penwright::test

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    const penwright::test::Xvfb display(penwright::test::managerAskedFor());
    unsetenv("QT_QPA_PLATFORM");
    return RUN_ALL_TESTS();
}
