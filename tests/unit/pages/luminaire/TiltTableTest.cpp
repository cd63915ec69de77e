#include "pages/luminaire/TiltTable.h"

#include <gtest/gtest.h>

#include "support/GridEdits.h"
#include "support/HeldGrid.h"

namespace penwright::test {
namespace {

const std::string kTitle = "the page";

/// Whether a text of the count gave the table another one.
bool giveCount(TiltTable &table, std::string_view text)
{
    auto edit = table.newCount(text);
    if (edit)
        apply(table, *std::move(edit));
    return edit.has_value();
}

/// A table of three angles with a value in each cell.
TiltTable filledTable()
{
    TiltTable table(kTitle);
    giveCount(table, "3");
    for (int row = 1; row <= 3; ++row) {
        write(table, row, TiltTable::kAngle, std::to_string(row * 10));
        write(table, row, TiltTable::kFactor, "0." + std::to_string(row));
    }
    return table;
}

TEST(TiltTable, isEmptyWithTwoNamedColumns)
{
    const TiltTable table(kTitle);
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.columnCount(), 2);
    EXPECT_EQ(table.columnCaption(0), "Angle");
    EXPECT_EQ(table.columnCaption(1), "Factor");
    EXPECT_FALSE(table.canAppend());
}

struct CountCase {
    std::string text;
    int count;
};

class TiltCount : public testing::TestWithParam<CountCase> {};

INSTANTIATE_TEST_SUITE_P(Taken, TiltCount,
                         testing::Values(CountCase{"1", 1}, CountCase{"6", 6}, CountCase{" +4 ", 4},
                                         CountCase{"4.0", 4}, CountCase{"2.5", 2}, CountCase{"3.5", 4},
                                         CountCase{"0.6", 1}, CountCase{"1E3", 1000}, CountCase{"32767", 32767},
                                         CountCase{"32767.4", 32767}));

TEST_P(TiltCount, givesBothListsThatLengthAndZeros)
{
    TiltTable table = filledTable();
    EXPECT_TRUE(giveCount(table, GetParam().text));
    EXPECT_EQ(table.angles(), OneBased<float>(GetParam().count));
    EXPECT_EQ(table.factors(), OneBased<float>(GetParam().count));
}

class TiltNoCount : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Left, TiltNoCount,
                         testing::Values("", " ", "3", "3.0", " +3", "2.6", "abc", "0", "-3", "0.0", "0.5", "0.4",
                                         "1E-50", "3x", "1,5", "32768", "32767.5", "40000", "2147483648", "1E300"));

TEST_P(TiltNoCount, leavesTheListsAsTheyAre)
{
    TiltTable table = filledTable();
    EXPECT_FALSE(giveCount(table, GetParam()));
    EXPECT_EQ(table.angles(), (OneBased<float>{10, 20, 30}));
    EXPECT_EQ(table.factors(), (OneBased<float>{0.1F, 0.2F, 0.3F}));
}

TEST(TiltTable, countTypedAnewKeepsTheValuesWhateverItPassesThrough)
{
    TiltTable table(kTitle);
    giveCount(table, "12");
    write(table, 12, TiltTable::kAngle, "90");
    write(table, 12, TiltTable::kFactor, "0.5");
    table.beginCount();
    for (const char *text : {"", "1", "123", "12"})
        giveCount(table, text);
    OneBased<float> angles(12);
    OneBased<float> factors(12);
    angles(12) = 90;
    factors(12) = 0.5F;
    EXPECT_EQ(table.angles(), angles);
    EXPECT_EQ(table.factors(), factors);
}

TEST(TiltTable, valuesComeBackOnlyInTheGoThatTheirCountWasTypedIn)
{
    TiltTable table = filledTable();
    table.beginCount();
    giveCount(table, "1");
    table.beginCount();
    EXPECT_TRUE(giveCount(table, "3"));
    EXPECT_EQ(table.angles(), OneBased<float>(3));
    EXPECT_EQ(table.factors(), OneBased<float>(3));
}

TEST(TiltTable, eachColumnHasItsOwnValues)
{
    TiltTable table = filledTable();
    EXPECT_EQ(write(table, 2, 0, "45"), std::nullopt);
    EXPECT_EQ(write(table, 3, 1, " .95 "), std::nullopt);
    EXPECT_EQ(table.angles(), (OneBased<float>{10, 45, 30}));
    EXPECT_EQ(table.factors(), (OneBased<float>{0.1F, 0.2F, 0.95F}));
}

TEST(TiltTable, showsSinglesInTheGeneralForm)
{
    TiltTable table = filledTable();
    const auto shown = [&](std::string_view text) {
        write(table, 1, 0, text);
        return table.read(1, 0);
    };
    EXPECT_EQ(shown("22.50"), "22.5");
    EXPECT_EQ(shown("-0"), "0");
    EXPECT_EQ(shown(".5"), "0.5");
    EXPECT_EQ(shown("0.1234567891"), "0.1234568");
    EXPECT_EQ(shown("10000000"), "1E+07");
}

struct RefusedCell {
    int row;
    int column;
    std::string text;
    std::string message;
};

class TiltRefusal : public testing::TestWithParam<RefusedCell> {};

INSTANTIATE_TEST_SUITE_P(
    Cells, TiltRefusal,
    testing::Values(RefusedCell{3, 0, "abc", "Row 3, Angle: \"abc\" is not a number."},
                    RefusedCell{1, 1, "1,5",
                                "Row 1, Factor: \"1,5\" is not a number. The decimal sign is a point, as in 2481.37."},
                    RefusedCell{2, 0, "", "Row 2, Angle: \"\" is not a number."},
                    RefusedCell{3, 0, "1E39", "Row 3, Angle: Overflow"},
                    RefusedCell{3, 1, "-4E38", "Row 3, Factor: Overflow"},
                    RefusedCell{32767, 0, "x", "Row 32767, Angle: \"x\" is not a number."}));

TEST_P(TiltRefusal, namesRowColumnAndTextAndLeavesTheCell)
{
    const RefusedCell &cell = GetParam();
    const MessageBox expected{.text = cell.message, .flags = kOkOnly, .title = kTitle};
    TiltTable table = filledTable();
    EXPECT_EQ(table.check(cell.row, cell.column, cell.text), expected);
    EXPECT_EQ(write(table, cell.row, cell.column, cell.text), expected);
    EXPECT_EQ(table.angles(), (OneBased<float>{10, 20, 30}));
    EXPECT_EQ(table.factors(), (OneBased<float>{0.1F, 0.2F, 0.3F}));
}

TEST(TiltTable, clearedCellIsZero)
{
    TiltTable table = filledTable();
    EXPECT_EQ(clear(table, 2, 0), std::nullopt);
    EXPECT_EQ(clear(table, 3, 1), std::nullopt);
    EXPECT_EQ(table.angles(), (OneBased<float>{10, 0, 30}));
    EXPECT_EQ(table.factors(), (OneBased<float>{0.1F, 0.2F, 0}));
}

TEST(TiltTable, tellsRowsAtADistance)
{
    const TiltTable table = filledTable();
    EXPECT_EQ(table.relativeRow("", 1), (RelativeRow{"1", 1}));
    EXPECT_EQ(table.relativeRow("", 3), (RelativeRow{"3", 3}));
    EXPECT_EQ(table.relativeRow("", 4), (RelativeRow{"", 4}));
    EXPECT_EQ(table.relativeRow("", 0), (RelativeRow{"", 0}));
    EXPECT_EQ(table.relativeRow("", -1), (RelativeRow{"3", 3}));
    EXPECT_EQ(table.relativeRow("", -4), (RelativeRow{"", 0}));
    EXPECT_EQ(table.relativeRow("2", 1), (RelativeRow{"3", 3}));
    EXPECT_EQ(table.relativeRow("2", -1), (RelativeRow{"1", 1}));
    EXPECT_EQ(table.relativeRow("2", -2), (RelativeRow{"", 0}));
    EXPECT_EQ(table.relativeRow("3", 1), (RelativeRow{"", 4}));
    EXPECT_EQ(table.relativeRow("2147483647", -2147483647), (RelativeRow{"", 0}));
    EXPECT_THROW(table.relativeRow("2147483647", 1), RunTimeError);
    EXPECT_THROW(table.relativeRow("-2147483648", -1), RunTimeError);
    EXPECT_THROW(table.relativeRow("x", 1), RunTimeError);
}

TEST(HeldTilt, comesBackToTheLastBit)
{
    TiltTable table = filledTable();
    write(table, 2, TiltTable::kFactor, "0.1234567");
    const auto held = table.held();
    const OneBased<float> angles = table.angles();
    const OneBased<float> factors = table.factors();
    giveCount(table, "1");
    EXPECT_TRUE(bringBack(table, held()));
    EXPECT_EQ(table.angles(), angles);
    EXPECT_EQ(table.factors(), factors);
    EXPECT_TRUE(bringBack(table, ""));
    EXPECT_EQ(table.rowCount(), 0);
}

TEST(HeldTilt, takesTheMemoryOfBothLists)
{
    EXPECT_EQ(HeldTilt::bytesOf({}), 0U);
    EXPECT_EQ(HeldTilt::bytesOf({.angles = {0, 45, 90}, .factors = {1, 1, 1}}), 6 * sizeof(float));
}

TEST(HeldTilt, refusesWhatNoTableHolds)
{
    TiltTable table = filledTable();
    for (const char *text : {"1\n", "1\t2", "1\t2\t3\n", "x\t1\n", "1\tinf\n"})
        EXPECT_FALSE(bringBack(table, text)) << text;
    std::string tooMany;
    for (int row = 0; row <= TiltTable::kMostAngles; ++row)
        tooMany += "1\t1\n";
    EXPECT_FALSE(bringBack(table, tooMany));
    EXPECT_EQ(table.rowCount(), 3);
}

}  // namespace
}  // namespace penwright::test
