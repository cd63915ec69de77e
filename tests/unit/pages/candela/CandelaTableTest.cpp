#include "unit/pages/candela/CandelaTest.h"

namespace penwright::test {
namespace {

using CandelaBuild = CandelaTest;

TEST_F(CandelaBuild, suppliesNothingBeforeTheFirstOne)
{
    giveAngles({0}, {0, 90});
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.columnCount(), 0);
    EXPECT_EQ(table.read(1, 1), "");
}

TEST_F(CandelaBuild, isBlankTheFirstTimeUnderCaptionsInGeneralForm)
{
    build({0, 22.5F, 90}, {0, 0.1F});
    EXPECT_EQ(shown(),
              "  |0|22.5|90\n"
              "0| | | \n"
              "0.1| | | \n");
    EXPECT_TRUE(flags.GridStarted);
    EXPECT_TRUE(flags.GridReady);
}

TEST_F(CandelaBuild, givesTheWorkingRecordCountsTypeAnglesAndZeros)
{
    build({0, 90}, {0, 45, 90}, kTypeB);
    EXPECT_EQ(state.CandelaWorkRecord.size(), 1);
    EXPECT_EQ(work().NumHorzAngles, 2);
    EXPECT_EQ(work().NumVertAngles, 3);
    EXPECT_EQ(work().PhotometricType, kTypeB);
    EXPECT_EQ(work().HorAngles, (OneBased<float>{0, 90}));
    EXPECT_EQ(work().VertAngles, (OneBased<float>{0, 45, 90}));
    EXPECT_EQ(work().Candela, OneBasedTable<double>(2, 3));
    EXPECT_EQ(record().Candela, OneBasedTable<double>());
}

TEST_F(CandelaBuild, hasARowForEachOf37VerticalAnglesAndTwoColumns)
{
    std::vector<float> vertical;
    for (int i = 0; i < 37; ++i)
        vertical.push_back(2.5F * static_cast<float>(i));
    build({0}, vertical);
    EXPECT_EQ(table.rowCount(), 37);
    EXPECT_EQ(table.columnCount(), 2);
    EXPECT_EQ(table.columnCaption(1), "0");
    EXPECT_EQ(table.read(37, 0), "90");
}

TEST_F(CandelaBuild, laterOnesTurnBlanksIntoZeros)
{
    build({0, 90}, {0, 90});
    write(table, 1, 1, "100");
    lsbStart();
    EXPECT_EQ(shown(),
              "  |0|90\n"
              "0|100|0\n"
              "90|0|0\n");
}

TEST_F(CandelaBuild, laterOnesShowASingleAsTheDoubleThatItBecame)
{
    build({0}, {0});
    write(table, 1, 1, "12.3");
    EXPECT_EQ(table.read(1, 1), "12.3");
    lsbStart();
    EXPECT_EQ(table.read(1, 1), "12.3000001907349");
    EXPECT_EQ(table.CandelaCells()(1, 1), CandelaCell(12.300000190734863));
}

TEST_F(CandelaBuild, keepsByIndexWhatStillFits)
{
    build({0, 45, 90}, {0, 30});
    apply(table, table.PasteCandelaTable("1\t2\t3\r\n4\t5\t6"));
    build({0, 180}, {0, 10, 90});  // fewer columns, more rows, other angles
    EXPECT_EQ(shown(),
              "  |0|180\n"
              "0|1|2\n"
              "10|4|5\n"
              "90|0|0\n");
    build({0, 45, 90}, {0});  // what was dropped stays dropped
    EXPECT_EQ(shown(),
              "  |0|45|90\n"
              "0|1|2|0\n");
}

TEST_F(CandelaBuild, startsBlankAgainOnceTheFlagsAreCleared)
{
    build({0}, {0});
    write(table, 1, 1, "5");
    flags = CandelaState();
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.read(1, 1), "");
    lsbStart();
    EXPECT_EQ(shown(), "  |0\n0| \n");
    EXPECT_EQ(work().Candela(1, 1), 0);
}

TEST_F(CandelaBuild, refusesARecordThatCountsMoreAnglesThanItHas)
{
    giveAngles({0}, {0});
    record().NumVertAngles = 2;
    EXPECT_THROW(table.newTable(), RunTimeError);
    EXPECT_FALSE(flags.GridStarted);
}

TEST_F(CandelaBuild, readsFallbackTextsOutsideTheTable)
{
    build({0, 90}, {0, 90});
    EXPECT_EQ(table.read(0, 1), "out o bound");
    EXPECT_EQ(table.read(3, 1), "out o bound");
    EXPECT_EQ(table.read(3, 7), "out o bound");
    EXPECT_EQ(table.read(2, 3), "fug");
    EXPECT_EQ(table.read(2, -1), "fug");
}

TEST_F(CandelaBuild, outlivesRecordsThatTheHostReplaces)
{
    build({0, 90}, {0, 90});
    giveAngles({0}, {0});
    EXPECT_EQ(shown(),
              "  |0|\n"
              "0| |fug\n"
              "out o bound|out o bound|out o bound\n");
    state.CandelaWorkRecord(1) = PhotometricRecord();
    EXPECT_EQ(told(write(table, 2, 2, "7")), "");
    EXPECT_EQ(table.CandelaCells()(2, 2), CandelaCell(7.0F));
    state.CandelaWorkRecord.clear();
    EXPECT_EQ(told(write(table, 2, 2, "8")), "");
    state.PhotFiles.clear();
    EXPECT_EQ(table.read(1, 1), "out o bound");
    EXPECT_EQ(table.columnCaption(1), "");
    EXPECT_FALSE(table.anglesOf(1, 1));
}

TEST_F(CandelaBuild, namesTheAnglesOfDataCellsAlone)
{
    build({0, 22.5F}, {10, 20});
    ASSERT_TRUE(table.anglesOf(2, 2));
    EXPECT_EQ(table.anglesOf(2, 2)->horizontal, 22.5F);
    EXPECT_EQ(table.anglesOf(2, 2)->vertical, 20);
    for (const auto &[row, column] : {std::pair(1, 0), std::pair(0, 1), std::pair(3, 1), std::pair(1, 3)})
        EXPECT_FALSE(table.anglesOf(row, column)) << row << " " << column;
}

TEST_F(CandelaBuild, leavesOnlyTheLabelsUneditable)
{
    EXPECT_TRUE(table.isReadOnly(0));
    EXPECT_FALSE(table.isReadOnly(1));
    EXPECT_FALSE(table.canAppend());
}

struct CellCase {
    std::string text;
    std::string message;
    std::string shown = "5";  // what the cell holds before
};

class CandelaCellCheck : public CandelaTest, public testing::WithParamInterface<CellCase> {};

TEST_P(CandelaCellCheck, takesOrRefusesAndKeepsTheOldValue)
{
    build({0, 90}, {0});
    write(table, 1, 2, "5");
    EXPECT_EQ(told(table.check(1, 2, GetParam().text)), GetParam().message);
    EXPECT_EQ(told(write(table, 1, 2, GetParam().text)), GetParam().message);
    EXPECT_EQ(table.read(1, 2), GetParam().shown);
    EXPECT_EQ(work().Candela(2, 1), numberOf(table.CandelaCells()(2, 1)));
    EXPECT_EQ(table.read(1, 1), " ");
}

const std::string kNoNumber = "[Invalid entry|0] Not a number I know.";
const std::string kNegative = "[PenwrightPE|0] candela values cannot be negative!";
const std::string kTooLarge = "[PenwrightPE|0] candel values must be less than 10 million.";

INSTANTIATE_TEST_SUITE_P(Texts, CandelaCellCheck,
                         testing::ValuesIn(std::vector<CellCase>{
                             {"0", "", "0"},
                             {"-0", "", "0"},
                             {"12.5", "", "12.5"},
                             {" 7 ", "", "7"},
                             {"+7", "", "7"},
                             {"1e3", "", "1000"},
                             {"1E-99", "", "0"},
                             {"9999998", "", "9999998"},
                             {"9999998.9", "", "9999999"},
                             {"1234567.8", "", "1234568"},
                             {"0.1", "", "0.1"},
                             {"9999999", kTooLarge},
                             {"10000000", kTooLarge},
                             {"1E300", kTooLarge},
                             {"-1", kNegative},
                             {"-1E-30", kNegative},
                             {"-1E300", kNegative},
                             {"abc", kNoNumber},
                             {"", kNoNumber},
                             {" ", kNoNumber},
                             {"1,5", kNoNumber},
                             {"1 000", kNoNumber},
                             {"1E999", kNoNumber},
                             {"nan", kNoNumber},
                             {"--1", kNoNumber},
                         }));

TEST_F(CandelaTest, cellIsClearedToNothingButABlankOneHasNothingToClear)
{
    build({0, 90}, {0});
    write(table, 1, 1, "5");
    EXPECT_EQ(told(clear(table, 1, 1)), kNoNumber);
    EXPECT_EQ(table.read(1, 1), "5");
    EXPECT_EQ(told(clear(table, 1, 2)), "");
    EXPECT_EQ(table.read(1, 2), " ");
}

TEST_F(CandelaTest, blankCellInARowBeyondTheLastColumnHasNothingToClear)
{
    build({0, 90}, {0, 45, 90});
    EXPECT_EQ(told(clear(table, 3, 1)), "");
    EXPECT_EQ(table.read(3, 1), " ");
}

TEST_F(CandelaTest, copiesOneLineForEachVerticalAngleWithoutAngles)
{
    build({0, 45, 90}, {0, 90});
    write(table, 1, 2, "0.5");
    write(table, 2, 3, "1234567.8");
    EXPECT_EQ(table.CopyCandelaTable(),
              " \t0.5\t \r\n"
              " \t \t1234568\r\n");
}

TEST_F(CandelaTest, copiesKeptDoublesInFifteenDigits)
{
    build({0}, {0, 90});
    write(table, 1, 1, "12.3");
    lsbStart();
    EXPECT_EQ(table.CopyCandelaTable(), "12.3000001907349\r\n0\r\n");
}

}  // namespace
}  // namespace penwright::test
