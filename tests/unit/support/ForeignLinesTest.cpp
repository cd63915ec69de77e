#include "support/ForeignLines.h"

#include <gtest/gtest.h>

#include "support/Process.h"

namespace penwright::test {
namespace {

const std::string kForeign =
    "==4711==WARNING: invalid path to external symbolizer!\n"
    "==4711==WARNING: Failed to use and restart external symbolizer!\n"
    "QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to '/tmp/runtime-root'\n"
    "QStandardPaths: wrong permissions on runtime directory /tmp/runtime-root, 0755 instead of 0700\n";

TEST(ForeignLines, areLeftOutAndTheProgramsOwnStay)
{
    EXPECT_EQ(withoutForeignLines(kForeign), "");
    EXPECT_EQ(withoutForeignLines("first\n" + kForeign + "\nsecond\n" + kForeign + "third"), "first\n\nsecond\nthird");
    EXPECT_EQ(withoutForeignLines(""), "");
}

class OwnLine : public testing::TestWithParam<std::string> {};

TEST_P(OwnLine, stays)
{
    EXPECT_EQ(withoutForeignLines(kForeign + GetParam() + "\n" + kForeign), GetParam() + "\n");
}

INSTANTIATE_TEST_SUITE_P(Likely, OwnLine,
                         testing::Values("", "==", "==4711==", "==4711==ERROR: AddressSanitizer: heap-use-after-free",
                                         "==4711==WARNING: another warning", "====WARNING: invalid path",
                                         "==4711==WARNING: invalid path to external symbolizer! And more",
                                         "==x==WARNING: invalid path to external symbolizer!",
                                         " ==4711==WARNING: invalid path to external symbolizer!",
                                         "PenwrightPE: XDG_RUNTIME_DIR not set, defaulting to '/tmp'",
                                         "QStandardPaths: another remark", "qt.qpa.xcb: could not connect to display",
                                         "PenwrightPE: there is no X display: DISPLAY is not set."));

TEST(ForeignLines, areNotReadFromAProcessWithJoinedErrors)
{
    const std::vector<std::string> talk{
        "sh", "-c", "printf %s \"$0\" >&2; echo own >&2; printf %s \"$0\" >&2; echo last", kForeign};
    EXPECT_EQ(Process(talk, {}, Process::Errors::Joined).readAll(), "own\nlast\n");
    Process process(talk, {}, Process::Errors::Joined);
    EXPECT_EQ(process.readLine(), "own");
    EXPECT_EQ(process.readLine(), "last");
    EXPECT_EQ(process.readLine(), std::nullopt);
}

}  // namespace
}  // namespace penwright::test
