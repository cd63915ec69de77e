#include "unit/hostlink/LinkBench.h"

namespace penwright::test {
namespace {

struct MoveCase {
    std::string command;
    std::string done;
};

/// Design size 10800 x 8400 twips, which is 720 x 560 pixels at 100 %; at the moment the window is 700 x 500.
class MoveWindow : public LinkTest, public testing::WithParamInterface<MoveCase> {
protected:
    MoveWindow()
    {
        bench.state.start.DesignWidth = 10800;
        bench.state.start.DesignHeight = 8400;
    }
};

TEST_P(MoveWindow, movesAndSizes)
{
    link.msbCmd(GetParam().command);
    EXPECT_EQ(bench.embedding.transcript, GetParam().done);
    EXPECT_EQ(bench.dialogs.transcript, "");
}

INSTANTIATE_TEST_SUITE_P(Arguments, MoveWindow,
                         testing::ValuesIn(std::vector<MoveCase>{
                             {"MOVEWIN,10,20,300,400", "move 10 20 300 400\n"},
                             {"movewin,10,20,0,0", "move 10 20 720 560\n"},
                             {"MOVEWIN,10,20,300", ""},
                             {"MOVEWIN", ""},
                             {"MOVEWIN,10,20,300,400,500", "move 10 20 300 400\n"},
                             {"MOVEWIN,1,2,0,400", "move 1 2 720 560\n"},
                             {"MOVEWIN,1,2,300,0", "move 1 2 720 560\n"},
                             {"MOVEWIN,1,2,-1,400", "move 1 2 700 500\n"},
                             {"MOVEWIN,1,2,300,-1", "move 1 2 700 500\n"},
                             {"MOVEWIN,1,2,-1,-1", "move 1 2 700 500\n"},
                             // 0 is looked at before -1.
                             {"MOVEWIN,1,2,-1,0", "move 1 2 720 560\n"},
                             {"MOVEWIN,1,2,0,-1", "move 1 2 720 560\n"},
                             {"MOVEWIN,1,2,-2,-300", "move 1 2 1 1\n"},
                             {"MOVEWIN,-5,-6,1,2", "move -5 -6 1 2\n"},
                             {"MOVEWIN,1,2,40000,32767", "move 1 2 32767 32767\n"},
                             {"MOVEWIN,1,2,300,40000", "move 1 2 300 32767\n"},
                             {"MOVEWIN,40000,-40000,3,4", "move 32767 -32768 3 4\n"},
                             {"MOVEWIN,-40000,40000,3,4", "move -32768 32767 3 4\n"},
                             {"MOVEWIN,1.5,2.5,3.4,4.6", "move 2 2 3 5\n"},
                             {"MOVEWIN,x, 2 px,3e1,", "move 0 2 720 560\n"},
                             {"MOVEWIN,,,5,6", "move 0 0 5 6\n"},
                         }));

TEST_F(MoveWindow, keepsThePlaceAskedFor)
{
    link.msbCmd("MOVEWIN,40000,-40000,3,4");
    EXPECT_EQ(bench.state.start.MoveX, 40000);
    EXPECT_EQ(bench.state.start.MoveY, -40000);
}

TEST_F(MoveWindow, raisesOnlyAWindowThatIsShown)
{
    bench.embedding.shown = true;
    link.msbCmd("MOVEWIN,1,2,3,4");
    EXPECT_EQ(bench.embedding.transcript, "move 1 2 3 4\nraise\n");
}

TEST_F(MoveWindow, designSizeCountsInPixelsOfTheDisplay)
{
    bench.embedding.twips = 7.5;
    link.msbCmd("MOVEWIN,0,0,0,0");
    EXPECT_EQ(bench.embedding.transcript, "move 0 0 1440 1120\n");
}

TEST_F(MoveWindow, numberBeyond32BitsIsAnErrorAndMovesNothing)
{
    link.msbCmd("MOVEWIN,99999999999,2,3,4");
    EXPECT_EQ(bench.embedding.transcript, "");
    EXPECT_EQ(bench.state.start.MoveX, 0);
    EXPECT_EQ(bench.dialogs.transcript, "[PenwrightPE|0] err in linkExectue.\n");
}

}  // namespace
}  // namespace penwright::test
