#include <random>

#include "core/NumberText.h"
#include "pages/candela/PastedValues.h"
#include "support/Growth.h"
#include "unit/pages/candela/CandelaTest.h"

namespace penwright::test {
namespace {

struct ValuesCase {
    std::string text;
    std::vector<std::string> values;
};

class Values : public testing::TestWithParam<ValuesCase> {};

TEST_P(Values, areSeparatedByTabsAndLineEndsAlike)
{
    PastedValues values(GetParam().text);
    ASSERT_EQ(values.count(), static_cast<int>(GetParam().values.size()));
    for (const std::string &expected : GetParam().values)
        EXPECT_EQ(values.next(), expected);
    EXPECT_EQ(values.next(), "");
}

INSTANTIATE_TEST_SUITE_P(Texts, Values,
                         testing::ValuesIn(std::vector<ValuesCase>{
                             {"", {}},
                             {"\r\n", {}},
                             {"\n", {}},
                             {"\r", {}},
                             {"1", {"1"}},
                             {"1\r\n", {"1"}},
                             {"1\n", {"1"}},
                             {"1\r", {"1"}},
                             {"1\r\n\r\n", {"1", ""}},
                             {"1\n\n", {"1", ""}},
                             {"\r\n1", {"", "1"}},
                             {"\t", {"", ""}},
                             {"1\t", {"1", ""}},
                             {"1\t\r\n", {"1", ""}},
                             {"1\t2\r\n3\t4\r\n", {"1", "2", "3", "4"}},
                             {"1\t2\n3\t4", {"1", "2", "3", "4"}},
                             {"1\r2\r3", {"1", "2", "3"}},
                             {"1\r\r\n2", {"1", "", "2"}},
                             {"1\n\r\n2", {"1", "", "2"}},
                             {" 1 \t x y ", {" 1 ", " x y "}},
                         }));

TEST(PastedValues, takeAsLongAsTheirText)
{
    const auto readAll = [](std::string_view text) {
        PastedValues values(text);
        for (int i = 0; i < values.count(); ++i)
            values.next();
    };
    for (const char *part : {"1\t2\r\n", "\r\n", "\r"})
        EXPECT_LT(growth(part, 2500, readAll), kMostGrowth) << testing::PrintToString(part);
}

class CandelaPaste : public CandelaTest {
protected:
    std::string paste(const std::string &text) { return told(apply(table, table.PasteCandelaTable(text))); }
};

TEST_F(CandelaPaste, fillsRowByRowWhateverTheArrangement)
{
    for (const std::string text :
         {"1\t2\t3\r\n4\t5\t6\r\n7\t8\t9\r\n10\t11\t12", "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12",
          "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n", "1\t2\t3\t4\r5\t6\t7\t8\r\n9\t10\t11\t12\n"}) {
        flags = CandelaState();
        build({0, 45, 90}, {0, 30, 60, 90});
        EXPECT_EQ(paste(text), "") << text;
        EXPECT_EQ(table.CopyCandelaTable(), "1\t2\t3\r\n4\t5\t6\r\n7\t8\t9\r\n10\t11\t12\r\n") << text;
        EXPECT_EQ(work().Candela(3, 2), 6) << text;
    }
}

struct CountCase {
    std::string text;
    std::string message;
};

class CandelaCount : public CandelaPaste, public testing::WithParamInterface<CountCase> {};

TEST_P(CandelaCount, changesNothingUnlessAllValuesAreThere)
{
    build({0, 45, 90}, {0, 30, 60, 90});
    write(table, 1, 1, "5");
    const std::string before = shown();
    const GridEdit edit = table.PasteCandelaTable(GetParam().text);
    ASSERT_TRUE(edit.refused);
    EXPECT_EQ(told(edit.refused->box), "[PenwrightPE|0] " + GetParam().message);
    EXPECT_EQ(edit.refused->row, 0);
    EXPECT_FALSE(edit.content);
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(work().Candela(1, 1), 5);
}

INSTANTIATE_TEST_SUITE_P(Texts, CandelaCount,
                         testing::ValuesIn(std::vector<CountCase>{
                             {"1\t2\t3\t4\t5\t6\t7\t8\t9\t10", "9 values read; need 11"},
                             {"1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t13", "12 values read; need 11"},
                             {"1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t", "12 values read; need 11"},
                             {"1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\n\n", "12 values read; need 11"},
                             {"abc", "0 values read; need 11"},
                             {"", "-1 values read; need 11"},
                         }));

TEST_F(CandelaPaste, doesNotAskForTheLimitsOfTypedValues)
{
    build({0, 90}, {0, 90});
    EXPECT_EQ(paste("-5\t10000000\t1E-40\t3E38"), "");
    EXPECT_EQ(table.CandelaCells()(1, 1), CandelaCell(-5.0F));
    EXPECT_EQ(table.read(1, 2), "1E+07");
    EXPECT_EQ(table.read(2, 2), "3E+38");
}

TEST_F(CandelaPaste, endsAtATextThatIsNoNumberAndKeepsWhatCameBefore)
{
    build({0, 45, 90}, {0, 30});
    paste("9\t9\t9\t9\t9\t9");
    GridEdit edit = table.PasteCandelaTable("1\t2\t3\r\n4\tabc\t6\r\n");
    ASSERT_TRUE(edit.refused);
    EXPECT_EQ(
        told(edit.refused->box),
        "[The page|0] Row 2, column 2 (V:30 H:45): \"abc\" is not a number. The values before it have been pasted.");
    EXPECT_EQ(edit.refused->row, 2);
    EXPECT_EQ(edit.refused->column, 2);
    apply(table, std::move(edit));
    EXPECT_EQ(table.CopyCandelaTable(), "1\t2\t3\r\n4\t9\t9\r\n");
    EXPECT_EQ(work().Candela(1, 2), 4);
    EXPECT_EQ(work().Candela(2, 2), 9);
}

TEST_F(CandelaPaste, keepsASingleValueBeforeATextThatIsNoNumberAndNoneWhereTheFirstIsOne)
{
    build({0, 45}, {0, 30});
    paste("9\t9\r\n9\t9\r\n");
    apply(table, table.PasteCandelaTable("1\tabc\r\n3\t4\r\n"));
    EXPECT_EQ(table.CopyCandelaTable(), "1\t9\r\n9\t9\r\n");
    EXPECT_FALSE(table.PasteCandelaTable("abc\t2\r\n3\t4\r\n").content);
}

TEST_F(CandelaPaste, hintsAtLinesOfAnotherLength)
{
    build({0, 90}, {0, 30, 60});
    const std::pair<const char *, const char *> kHints[]{
        {"1\t2\n3\t4\n5\t6\n", ""},
        {"1\t2\t3\n4\t5\t6\n", "Lines of 3 values were pasted into 2 columns"},
        {"1\n2\n3\n4\n5\n6", "Lines of 1 value were pasted into 2 columns"},
        {"1\t2\t3\t4\t5\t6", "One line of 6 values was pasted into 2 columns"},
        {"1\t2\t3\r\n4\r\n5\t6\r\n", "Lines of 1 to 3 values were pasted into 2 columns"},
        {"1\t2\t3\n4\t5\n",
         "Ctrl+V pastes the whole table, here 3 rows of 2 values, without angles. "
         "Paste Table... (Ctrl+Shift+V) takes a table with its angles"},
    };
    for (const auto &[text, hint] : kHints)
        EXPECT_EQ(table.PasteCandelaTable(text).hint, hint) << testing::PrintToString(text);
    build({0}, {0, 30});
    EXPECT_EQ(table.PasteCandelaTable("1\t2").hint, "One line of 2 values was pasted into 1 column");
}

TEST_F(CandelaPaste, hintsAtTheCellThatTheNewValuesEndBefore)
{
    build({0, 45}, {0, 30, 60});
    EXPECT_EQ(table.PasteCandelaTable("1\t2\n3\tx\n5\t6").hint,
              "Row 2, column 2 (V:30 H:45) and all behind it are as before the paste");
    EXPECT_EQ(table.PasteCandelaTable("1\t2\t3\nx\t5\t6").hint,
              "Lines of 3 values were pasted into 2 columns. "
              "Row 2, column 2 (V:30 H:45) and all behind it are as before the paste");
    EXPECT_EQ(table.PasteCandelaTable("x\t2\t3\n4\t5\t6").hint, "");
}

TEST_F(CandelaPaste, saysWhatAWholeTableNeedsWhereTheNumberOfValuesIsAnother)
{
    build({0, 45, 90}, {0, 30, 60, 90});
    const std::string table3x4 = "Ctrl+V pastes the whole table, here 4 rows of 3 values";
    EXPECT_EQ(table.PasteCandelaTable("5").hint, table3x4 + ". Into this cell alone: F2, Ctrl+A, Ctrl+V");
    EXPECT_EQ(table.PasteCandelaTable("1\t2").hint,
              table3x4 + ", without angles. Paste Table... (Ctrl+Shift+V) takes a table with its angles");
}

TEST_F(CandelaPaste, pointsToPasteTableWhereAValueIsANumberByOtherSigns)
{
    const std::string other = "Paste Table... (Ctrl+Shift+V) takes decimal commas and signs between thousands";
    build({0}, {0, 30});
    EXPECT_EQ(table.PasteCandelaTable("2481,37\n1").hint, other);
    EXPECT_EQ(table.PasteCandelaTable("1\n2481,37").hint,
              "Row 2, column 1 (V:30 H:0) and all behind it are as before the paste. " + other);
    EXPECT_EQ(table.PasteCandelaTable("abc\n1").hint, "");
}

struct ThousandsCase {
    std::string text;  ///< three columns, three rows
    std::string said;  ///< the cell, the value and its neighbour; "" where nothing is lost
};

class CandelaThousands : public CandelaPaste, public testing::WithParamInterface<ThousandsCase> {};

TEST_P(CandelaThousands, thatWereLostAreSaidWhereNeighboursJump)
{
    build({0, 45, 90}, {0, 30, 60});
    const std::string said = GetParam().said;
    const std::string why =
        ": was a sign between thousands read as a decimal point? Paste Table... (Ctrl+Shift+V) reads such signs";
    EXPECT_EQ(table.PasteCandelaTable(GetParam().text).hint, said.empty() ? "" : said + why);
    EXPECT_EQ(paste(GetParam().text), "");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CandelaThousands,
    testing::ValuesIn(std::vector<ThousandsCase>{
        {"2.481\t2.480\t2.100\n998\t990\t950\n10\t10\t10", "Row 1, column 1 (V:0 H:0): 2.481 stands beside 998"},
        {"900\t1.002\t1.100\n900\t1.002\t1.100\n900\t1.002\t1.100",
         "Row 1, column 2 (V:0 H:45): 1.002 stands beside 900"},
        {"1.002\t1.002\t950\n10\t10\t10\n1\t1\t1", "Row 1, column 2 (V:0 H:45): 1.002 stands beside 950"},
        {"10\t10\t10\n10\t10\t300\n10\t10\t1.150", "Row 3, column 3 (V:60 H:90): 1.15 stands beside 300"},
        // Lines are no neighbours where one ends and the next begins.
        {"10\t10\t900\n1.002\t10\t10\n10\t10\t10", ""},
        // All below a thousand, all above, and a table of three decimals throughout.
        {"998\t990\t950\n500\t500\t500\n10\t10\t10", ""},
        {"2.481\t2.480\t2.100\n2.481\t2.480\t2.100\n2.481\t2.480\t2.100", ""},
        {"998.125\t1.002\t1.100\n900.500\t1.002\t1.100\n1.001\t1.002\t1.100", ""},
        // A cut-off, thousands without a sign, and texts that are no groups.
        {"300\t12.345\t12\n300\t12.345\t12\n300\t12.345\t12", ""},
        {"5000\t1.234\t12\n5000\t1.234\t12\n5000\t1.234\t12", ""},
        {"900\t0.900\t0\n900\t1.02\t1.2345\n900\t1.02\t+1.002", ""},
    }));

struct BadValueCase {
    std::string value;
    std::string message;
};

class CandelaBadValue : public CandelaPaste, public testing::WithParamInterface<BadValueCase> {};

TEST_P(CandelaBadValue, isNamedAndChangesNothingWhenItComesFirst)
{
    build({0}, {0, 90});
    EXPECT_EQ(paste(GetParam().value + "\t1"), "[The page|0] Row 1, column 1 (V:0 H:0): " + GetParam().message);
    EXPECT_EQ(table.CopyCandelaTable(), " \r\n \r\n");
}

INSTANTIATE_TEST_SUITE_P(Texts, CandelaBadValue,
                         testing::ValuesIn(std::vector<BadValueCase>{
                             {"", "\"\" is not a number."},
                             {" ", "\" \" is not a number."},
                             {"1,5", "\"1,5\" is not a number. The decimal sign is a point, as in 2481.37."},
                             {"2.481,37", "\"2.481,37\" is not a number. The decimal sign is a point, as in 2481.37."},
                             {"2,481", "\"2,481\" is not a number. The decimal sign is a point, as in 2481.37."},
                             {"0x10", "\"0x10\" is not a number."},
                             {"inf", "\"inf\" is not a number."},
                             {"1E39", "\"1E39\" is too large a number."},
                             {"-1E39", "\"-1E39\" is too large a number."},
                             {"1E999", "\"1E999\" is not a number."},
                             {std::string(61, 'x'), "\"" + std::string(60, 'x') + "...\" is not a number."},
                             {std::string(59, 'x') + "\u00e9\u00e9",
                              "\"" + std::string(59, 'x') + "...\" is not a number."},
                         }));

TEST_F(CandelaPaste, ofWhatWasCopiedChangesNoNumber)
{
    std::mt19937 random(20260727);
    const auto below = [&](unsigned bound) { return static_cast<int>(random() % bound); };
    for (int round = 0; round < 60; ++round) {
        flags = CandelaState();
        build(std::vector<float>(static_cast<std::size_t>(1 + below(9))),
              std::vector<float>(static_cast<std::size_t>(1 + below(12))));
        std::string text;
        for (int i = 0; i < table.CandelaCells().rows() * table.CandelaCells().columns(); ++i)
            text += (i > 0 ? "\t" : "") +
                    generalText(static_cast<float>(below(10000000)) / static_cast<float>(1 + below(999)));
        ASSERT_EQ(paste(text), "");
        const OneBasedTable<CandelaCell> cells = table.CandelaCells();
        std::string copied = table.CopyCandelaTable();
        ASSERT_EQ(paste(copied), "");
        ASSERT_EQ(table.CandelaCells(), cells);
        std::string plain;
        for (const char character : copied)
            if (character != '\r')
                plain += character;
        ASSERT_EQ(paste(plain), "");
        ASSERT_EQ(paste(plain.substr(0, plain.size() - 1)), "");
        ASSERT_EQ(table.CandelaCells(), cells);
        ASSERT_EQ(table.CopyCandelaTable(), copied);
    }
}

TEST_F(CandelaPaste, needsMoreValuesThanSixteenBitsCount)
{
    build(std::vector<float>(1000), std::vector<float>(1000));
    EXPECT_EQ(paste("1\t2"), "[PenwrightPE|0] 1 values read; need 999999");
}

}  // namespace
}  // namespace penwright::test
