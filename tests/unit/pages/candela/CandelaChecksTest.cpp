#include "pages/candela/CandelaChecks.h"

#include "unit/pages/candela/CandelaTest.h"

namespace penwright::test {
namespace {

class CandelaChecks : public CandelaTest {
protected:
    /// The list after a check; the cells row by row, "_" for a blank one.
    std::string check(const std::vector<std::vector<std::string>> &rows)
    {
        fill(rows);
        list.Clear();
        checkCandela(record(), cells, list);
        return list.text();
    }

    void fill(const std::vector<std::vector<std::string>> &rows)
    {
        cells.reset(record().NumHorzAngles, record().NumVertAngles);
        for (int v = 1; const auto &row : rows) {
            for (int h = 1; const std::string &text : row)
                cells(h++, v) = text == "_" ? CandelaCell() : CandelaCell(std::stof(text));
            ++v;
        }
    }

    FaultPlace firstFault() const { return list.firstFault().value_or(FaultPlace{-1, 0, 0}); }

    OneBasedTable<CandelaCell> cells;
    WarningList list;
};

TEST_F(CandelaChecks, passCompleteTables)
{
    giveAngles({0, 90}, {0, 90});
    EXPECT_EQ(check({{"100", "100"}, {"5", "0"}}), "");
    giveAngles({0, 90}, {0, 180});
    EXPECT_EQ(check({{"100", "100"}, {"5", "5"}}), "");
}

TEST_F(CandelaChecks, tellTheThirdAngleWhoseNadirDiffers)
{
    giveAngles({0, 22.5F, 45}, {0, 90});
    EXPECT_EQ(check({{"100", "100", "90"}, {"1", "2", "3"}}), "Nadir Candela do not agree  H:45 not equal to H:0\r\n");
    EXPECT_EQ(firstFault(), (FaultPlace{.row = 1, .column = 3}));
}

TEST_F(CandelaChecks, compareTheFirstRowWhateverItsAngle)
{
    giveAngles({0, 90}, {90, 180});
    EXPECT_EQ(check({{"1", "2"}, {"3", "3"}}), "Nadir Candela do not agree  H:90 not equal to H:0\r\n");
}

TEST_F(CandelaChecks, compareTheZenithOnlyAt180)
{
    giveAngles({0, 90, 180}, {0, 180});
    EXPECT_EQ(check({{"1", "1", "1"}, {"3", "3", "4"}}),
              "Zenith (Top) Candela do not agree.  H:180 not equal to H:0\r\n");
    EXPECT_EQ(firstFault(), (FaultPlace{.row = 2, .column = 3}));
    for (const float top : {179.9F, 180.1F}) {
        giveAngles({0, 90, 180}, {0, top});
        EXPECT_EQ(check({{"1", "1", "1"}, {"3", "3", "4"}}), "") << top;
    }
}

TEST_F(CandelaChecks, nadirIsNotComparedWhenACellIsBlank)
{
    giveAngles({0, 90}, {0, 90});
    EXPECT_EQ(check({{"1", "_"}, {"1", "1"}}), "value H:90 V:0 is not a valid numeric value.\r\n");
}

TEST_F(CandelaChecks, nadirIsComparedWithABlankFirstCell)
{
    giveAngles({0, 90}, {0, 90});
    EXPECT_EQ(check({{"_", "0"}, {"1", "1"}}),
              "value H:0 V:0 is not a valid numeric value.\r\n"
              "Nadir Candela do not agree  H:90 not equal to H:0\r\n");
    EXPECT_EQ(firstFault(), (FaultPlace{.row = 1, .column = 1}));
}

TEST_F(CandelaChecks, zenithIsComparedEvenWhenACellIsBlank)
{
    giveAngles({0, 90}, {0, 180});
    EXPECT_EQ(check({{"1", "1"}, {"3", "_"}}),
              "Zenith (Top) Candela do not agree.  H:90 not equal to H:0\r\n"
              "value H:90 V:180 is not a valid numeric value.\r\n");
    EXPECT_EQ(check({{"1", "1"}, {"_", "0"}}),
              "value H:0 V:180 is not a valid numeric value.\r\n"
              "Zenith (Top) Candela do not agree.  H:90 not equal to H:0\r\n");
    EXPECT_EQ(check({{"1", "1"}, {"_", "_"}}),
              "value H:0 V:180 is not a valid numeric value.\r\n"
              "value H:90 V:180 is not a valid numeric value.\r\n");
}

TEST_F(CandelaChecks, oneRowAt180IsBothNadirAndZenith)
{
    giveAngles({0, 90}, {180});
    EXPECT_EQ(check({{"1", "2"}}),
              "Nadir Candela do not agree  H:90 not equal to H:0\r\n"
              "Zenith (Top) Candela do not agree.  H:90 not equal to H:0\r\n");
}

TEST_F(CandelaChecks, otherTypesHaveNoAgreementLines)
{
    for (const std::int16_t type : {kTypeB, std::int16_t{3}, std::int16_t{0}}) {
        giveAngles({0, 90}, {0, 180}, type);
        EXPECT_EQ(check({{"1", "2"}, {"3", "_"}}), "value H:90 V:180 is not a valid numeric value.\r\n") << type;
    }
}

TEST_F(CandelaChecks, tellNegativesUnlessTheyAreZero)
{
    giveAngles({-90, 0}, {-90, 0.1F}, kTypeB);
    EXPECT_EQ(check({{"-0", "0"}, {"1", "-0.001"}}), "value H:0 V:0.1 is less than zero.\r\n");
    EXPECT_EQ(firstFault(), (FaultPlace{.row = 2, .column = 2}));
}

TEST_F(CandelaChecks, goByHorizontalAngleWithNadirZenithAndValuesInTurn)
{
    giveAngles({0, 90, 180}, {0, 90, 180});
    EXPECT_EQ(check({{"-1", "2", "_"}, {"_", "-3", "1"}, {"4", "5", "4"}}),
              "value H:0 V:0 is less than zero.\r\n"
              "value H:0 V:90 is not a valid numeric value.\r\n"
              "Nadir Candela do not agree  H:90 not equal to H:0\r\n"
              "Zenith (Top) Candela do not agree.  H:90 not equal to H:0\r\n"
              "value H:90 V:90 is less than zero.\r\n"
              "value H:180 V:0 is not a valid numeric value.\r\n");
    EXPECT_EQ(firstFault(), (FaultPlace{.row = 1, .column = 1}));
}

TEST_F(CandelaChecks, listEveryCellOfABlankTable)
{
    giveAngles({0, 22.5F}, {0, 180});
    EXPECT_EQ(check({{"_", "_"}, {"_", "_"}}),
              "value H:0 V:0 is not a valid numeric value.\r\n"
              "value H:0 V:180 is not a valid numeric value.\r\n"
              "value H:22.5 V:0 is not a valid numeric value.\r\n"
              "value H:22.5 V:180 is not a valid numeric value.\r\n");
}

TEST_F(CandelaChecks, compareKeptDoublesAsSingles)
{
    giveAngles({0, 90}, {0, 180});
    cells.reset(2, 2);
    cells(1, 1) = 12.3F;
    cells(2, 1) = 12.3;  // as a host may hand it over
    cells(1, 2) = 0.1;
    cells(2, 2) = 0.1F;
    checkCandela(record(), cells, list);
    EXPECT_EQ(list.text(), "");
    cells(2, 1) = 12.300001F;
    checkCandela(record(), cells, list);
    EXPECT_EQ(list.text(), "Nadir Candela do not agree  H:90 not equal to H:0\r\n");
}

TEST_F(CandelaChecks, raiseWhatNoSingleHoldsUnderTheAnglesOfTheCell)
{
    giveAngles({0, 90}, {0, 45, 60}, kTypeB);
    fill({{"1", "1"}, {"1", "1"}, {"1", "1"}});
    cells(2, 3) = 1E39;
    try {
        checkCandela(record(), cells, list);
        ADD_FAILURE();
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 6);
        EXPECT_EQ(error.description(), "value H:90 V:60: Overflow");
    }
    EXPECT_EQ(firstFault(), (FaultPlace{.row = 3, .column = 2}));
}

TEST_F(CandelaChecks, raiseWhenTheRecordHasOutgrownTheCells)
{
    giveAngles({0}, {0});
    cells.reset(1, 1);
    cells(1, 1) = 1.0F;
    giveAngles({0, 90}, {0});
    EXPECT_THROW(checkCandela(record(), cells, list), RunTimeError);
}

TEST_F(CandelaChecks, passARecordWithoutAngles)
{
    checkCandela(record(), cells, list);
    EXPECT_TRUE(list.Clean());
}

TEST(CandelaCellText, isTheGeneralFormOfWhatTheCellIs)
{
    EXPECT_EQ(textOf(CandelaCell()), " ");
    EXPECT_EQ(textOf(CandelaCell(12.3F)), "12.3");
    EXPECT_EQ(textOf(CandelaCell(double{12.3F})), "12.3000001907349");
    EXPECT_EQ(textOf(CandelaCell(-0.0F)), "0");
    EXPECT_FALSE(numberOf(CandelaCell()));
    EXPECT_EQ(numberOf(CandelaCell(0.1F)), double{0.1F});
    EXPECT_EQ(numberOf(CandelaCell(0.1)), 0.1);
}

}  // namespace
}  // namespace penwright::test
