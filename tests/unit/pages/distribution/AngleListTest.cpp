#include "pages/distribution/AngleList.h"

#include <gtest/gtest.h>

#include "core/PhotometricRecord.h"
#include "support/GridEdits.h"
#include "support/HeldGrid.h"
#include "unit/pages/distribution/AxisLetters.h"

namespace penwright::test {
namespace {

/// What a text from the drop-down list did to the cells.
enum class Resizing { Nothing, Sized, BecameOne };

Resizing resize(AngleList &list, std::string_view text, std::int16_t type)
{
    auto resizing = list.resize(text, type);
    if (!resizing)
        return Resizing::Nothing;
    apply(list, std::move(resizing->edit));
    return resizing->becomesOne ? Resizing::BecameOne : Resizing::Sized;
}

/// What the cells hold: a text in quotes, a single as it stands.
std::string shown(const AngleCells &cells)
{
    std::string text;
    for (const AngleCell &cell : cells) {
        const auto *number = std::get_if<float>(&cell);
        std::ostringstream out;
        number ? out << *number : out << '"' << std::get<std::string>(cell) << '"';
        text += (text.empty() ? "" : " ") + out.str();
    }
    return text;
}

AngleCells cells(const std::vector<AngleCell> &values)
{
    AngleCells list;
    for (const AngleCell &value : values)
        list.append(value);
    return list;
}

TEST(SameAngles, areComparedAsSinglesWhetherTypedOrPredefined)
{
    EXPECT_TRUE(areSameAngles(cells({0.0F, std::string("22.50")}), cells({std::string("0"), 22.5F})));
    EXPECT_TRUE(areSameAngles(cells({std::string("0.1")}), cells({0.1F})));
    EXPECT_TRUE(areSameAngles({}, {}));
}

TEST(SameAngles, areNotWhereOneDiffersOrIsNoneOrIsLacking)
{
    EXPECT_FALSE(areSameAngles(cells({0.0F, 45.0F}), cells({0.0F, 90.0F})));
    EXPECT_FALSE(areSameAngles(cells({0.0F, 45.0F}), cells({0.0F})));
    EXPECT_FALSE(areSameAngles(cells({0.0F}), cells({0.0F, 45.0F})));
    EXPECT_FALSE(areSameAngles(cells({std::string(kBlankAngle)}), cells({std::string(kBlankAngle)})));
    EXPECT_FALSE(areSameAngles(cells({0.0F}), cells({std::string("x")})));
}

struct CountCase {
    std::string text;
    Resizing done;
    int count;
};

void PrintTo(const CountCase &typed, std::ostream *out)
{
    *out << '"' << typed.text << '"';
}

class TypedCount : public testing::TestWithParam<CountCase> {};

INSTANTIATE_TEST_SUITE_P(Accepted, TypedCount,
                         testing::Values(CountCase{"1", Resizing::Sized, 1}, CountCase{"2", Resizing::Sized, 2},
                                         CountCase{"12", Resizing::Sized, 12}, CountCase{"999", Resizing::Sized, 999},
                                         CountCase{"1000", Resizing::Sized, 1000},
                                         CountCase{"  12", Resizing::Sized, 12}, CountCase{"12  ", Resizing::Sized, 12},
                                         CountCase{"+12", Resizing::Sized, 12}, CountCase{"0012", Resizing::Sized, 12},
                                         CountCase{"12.", Resizing::Sized, 12}, CountCase{"12.4", Resizing::Sized, 12},
                                         CountCase{"12.5", Resizing::Sized, 12}, CountCase{"13.5", Resizing::Sized, 14},
                                         CountCase{"12.6", Resizing::Sized, 13}, CountCase{"0.51", Resizing::Sized, 1},
                                         CountCase{"1e3", Resizing::Sized, 1000},
                                         CountCase{"1E2", Resizing::Sized, 100},
                                         CountCase{"999.6", Resizing::Sized, 1000}));

INSTANTIATE_TEST_SUITE_P(
    BecomeOne, TypedCount,
    testing::Values(CountCase{"", Resizing::BecameOne, 1}, CountCase{" ", Resizing::BecameOne, 1},
                    CountCase{"0", Resizing::BecameOne, 1}, CountCase{"0.5", Resizing::BecameOne, 1},
                    CountCase{"-4", Resizing::BecameOne, 1}, CountCase{"-", Resizing::BecameOne, 1},
                    CountCase{"-32769", Resizing::BecameOne, 1}, CountCase{"1001", Resizing::BecameOne, 1},
                    CountCase{"1000.1", Resizing::BecameOne, 1}, CountCase{"32767", Resizing::BecameOne, 1},
                    CountCase{"40000", Resizing::BecameOne, 1}, CountCase{"1e4", Resizing::BecameOne, 1},
                    CountCase{"1e999", Resizing::BecameOne, 1}, CountCase{"-1e999", Resizing::BecameOne, 1},
                    CountCase{"word", Resizing::BecameOne, 1}, CountCase{"two words", Resizing::BecameOne, 1},
                    CountCase{"type", Resizing::BecameOne, 1}, CountCase{"Typ", Resizing::BecameOne, 1},
                    CountCase{"12 foo", Resizing::BecameOne, 1}, CountCase{"12,", Resizing::BecameOne, 1},
                    CountCase{"1,000", Resizing::BecameOne, 1}, CountCase{"&H10", Resizing::BecameOne, 1},
                    CountCase{"2000, Downlight 0 to 90, 10 degree increments", Resizing::BecameOne, 1}));

TEST_P(TypedCount, givesBlankCellsOnEveryAxis)
{
    for (const AngleAxis axis : {V, H})
        for (const std::int16_t type : {kTypeC, kTypeB}) {
            AngleList list(axis);
            resize(list, "3", type);
            write(list, 1, 0, "7");
            EXPECT_EQ(resize(list, GetParam().text, type), GetParam().done);
            ASSERT_EQ(list.cells().size(), GetParam().count);
            for (const AngleCell &cell : list.cells())
                EXPECT_EQ(cell, AngleCell(" "));
        }
}

struct EntryTextCase {
    std::int16_t type;
    AngleAxis axis;
    std::string text;
    Resizing done;
    std::string cells;
};

void PrintTo(const EntryTextCase &entry, std::ostream *out)
{
    *out << entry.text << ", type " << entry.type << (entry.axis == V ? ", vertical" : ", horizontal");
}

class EntryText : public testing::TestWithParam<EntryTextCase> {};

INSTANTIATE_TEST_SUITE_P(
    Variants, EntryText,
    testing::Values(
        EntryTextCase{kTypeB, V, "3, -4 to x, 1.5 degrees", Resizing::Sized, "-4 -2.5 -1"},
        EntryTextCase{kTypeB, H, "3, -4 to x, 1.5 degrees", Resizing::Sized, "-4 -2.5 -1"},
        EntryTextCase{kTypeC, V, "2, Downlight 10 to x, 5 degrees", Resizing::Sized, "10 15"},
        EntryTextCase{kTypeC, H, "2, Quad Symmetric 10 to x, 5 degrees", Resizing::Sized, "10 15"},
        EntryTextCase{kTypeC, V, "3 Downlight 10, to x, 5, degrees", Resizing::Sized, "10 15 20"},
        EntryTextCase{kTypeC, V, "2.5, Downlight 0 to 90, 10 degree", Resizing::Sized, "0 10"},
        EntryTextCase{kTypeB, V, "1, 20 to x, 5 degrees", Resizing::Sized, "20"},
        EntryTextCase{kTypeB, V, "01, Laterally Symmetric, No increment", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, "01, Laterally Symmetric, No increment", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, H, "1 word", Resizing::Sized, "0"}, EntryTextCase{kTypeC, H, "1,", Resizing::Sized, "0"},
        EntryTextCase{kTypeC, V, "10, Downlight  0 to 90, 10 degree increments", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, "10, Downlight 0 to 90, ten degree increments", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, "10,, Downlight 0 to 90, 10 degree increments", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, " 10, Downlight 0 to 90, 10 degree increments", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, "0, Downlight 0 to 90, 10 degree increments", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, "3, Downlight 0 to 90, 3e38 degree increments", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, "3, Downlight 1e39 to 90, 1 degree increments", Resizing::BecameOne, "\" \""},
        EntryTextCase{kTypeC, V, "10, 0 to 90, 10 degree increments", Resizing::BecameOne, "\" \""}));

TEST_P(EntryText, isReadAtTheTokensOfItsTypeAndAxis)
{
    AngleList list(GetParam().axis);
    resize(list, "3", kTypeC);
    EXPECT_EQ(resize(list, GetParam().text, GetParam().type), GetParam().done);
    EXPECT_EQ(shown(list.cells()), GetParam().cells);
}

TEST(AngleList, hasOneRowAtAnyDistance)
{
    EXPECT_EQ(AngleList::relativeRow("", 1), (RelativeRow{"1", 1}));
    EXPECT_EQ(AngleList::relativeRow("", 2), (RelativeRow{"", 2}));
    EXPECT_EQ(AngleList::relativeRow("", 0), (RelativeRow{"", 0}));
    EXPECT_EQ(AngleList::relativeRow("", -1), (RelativeRow{"", 0}));
    EXPECT_EQ(AngleList::relativeRow("1", 0), (RelativeRow{"1", 1}));
    EXPECT_EQ(AngleList::relativeRow("1", 1), (RelativeRow{"", 2}));
    EXPECT_EQ(AngleList::relativeRow("1", -1), (RelativeRow{"", 0}));
    EXPECT_EQ(AngleList::relativeRow("2", -1), (RelativeRow{"1", 1}));
    EXPECT_EQ(AngleList::relativeRow("2147483647", 0), (RelativeRow{"", 2147483647}));
    EXPECT_THROW(AngleList::relativeRow("2147483647", 1), RunTimeError);
    EXPECT_THROW(AngleList::relativeRow("-2147483648", -1), RunTimeError);
    EXPECT_THROW(AngleList::relativeRow("x", 1), RunTimeError);
}

TEST(AngleListResize, computesInSinglePrecision)
{
    AngleList list(V);
    resize(list, "4, 0.1 to x, 0.2 degrees", kTypeB);
    for (int i = 1; i <= 4; ++i) {
        const volatile float product = static_cast<float>(i - 1) * 0.2F;
        EXPECT_EQ(list.cells()(i), AngleCell(product + 0.1F)) << i;
    }
}

TEST(AngleListResize, promptChangesNothing)
{
    for (const char *text : {"Type in a number or select a pre-defined distribution", "Type", "Typed 12"}) {
        AngleList list(V);
        EXPECT_EQ(resize(list, text, kTypeC), Resizing::Nothing);
        EXPECT_FALSE(isAllocated(list.cells()));
        resize(list, "2", kTypeC);
        write(list, 1, 1, "45");
        EXPECT_EQ(resize(list, text, kTypeC), Resizing::Nothing);
        EXPECT_EQ(shown(list.cells()), "\" \" \"45\"");
    }
}

TEST(AngleListResize, isUnallocatedUntilSizedOnce)
{
    AngleList list(H);
    EXPECT_FALSE(isAllocated(list.cells()));
    EXPECT_EQ(list.columnCount(), 0);
    resize(list, "word", kTypeC);
    EXPECT_TRUE(isAllocated(list.cells()));
}

TEST(AngleListResize, samePickFillsTypedCellsAgain)
{
    AngleList list(V);
    resize(list, "10, 0 to 90, 10 degree increments", kTypeB);
    write(list, 1, 3, "33");
    EXPECT_EQ(shown(list.cells()), "0 10 20 \"33\" 40 50 60 70 80 90");
    resize(list, "10, 0 to 90, 10 degree increments", kTypeB);
    EXPECT_EQ(shown(list.cells()), "0 10 20 30 40 50 60 70 80 90");
}

TEST(AngleListGrid, hasOneRowAndColumnsHeadedFromOne)
{
    AngleList list(V);
    EXPECT_EQ(list.rowCount(), 1);
    resize(list, "12", kTypeC);
    EXPECT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.columnCount(), 12);
    EXPECT_EQ(list.columnCaption(0), "1");
    EXPECT_EQ(list.columnCaption(11), "12");
}

TEST(AngleListGrid, showsSinglesInGeneralFormAndTextsAsTyped)
{
    AngleList list(V);
    resize(list, "2, -0.5 to x, 1.25 degrees", kTypeB);
    EXPECT_EQ(list.read(1, 0), "-0.5");
    EXPECT_EQ(list.read(1, 1), "0.75");
    for (const char *text : {"090.00", "abc", "", " 5 ", "1e1"}) {
        EXPECT_FALSE(list.check(1, 1, text));
        EXPECT_FALSE(write(list, 1, 1, text));
        EXPECT_EQ(list.read(1, 1), text);
        EXPECT_EQ(list.cells()(2), AngleCell(text));
    }
}

TEST(AngleListGrid, readsBeyondItsCellsDifferentlyOnEachAxis)
{
    AngleList vertical(V);
    AngleList horizontal(H);
    const auto expectBeyond = [&](int column) {
        std::string value = "as it came";
        vertical.readCell(column, value);
        EXPECT_EQ(value, " ") << column;
        value = "as it came";
        horizontal.readCell(column, value);
        EXPECT_EQ(value, "as it came") << column;
    };
    for (const int column : {-1, 0, 1000})
        expectBeyond(column);
    resize(vertical, "2", kTypeC);
    resize(horizontal, "2", kTypeC);
    for (const int column : {-1, 2, 1000})
        expectBeyond(column);
}

TEST(AngleCellNumber, isThatOfANumericText)
{
    EXPECT_EQ(numberIn(AngleCell(22.5F)), 22.5);
    EXPECT_EQ(numberIn(AngleCell(" 090.0 ")), 90);
    EXPECT_EQ(numberIn(AngleCell("1,5")), std::nullopt);
    EXPECT_EQ(numberIn(AngleCell(" ")), std::nullopt);
    EXPECT_EQ(numberIn(AngleCell("")), std::nullopt);
    EXPECT_EQ(singleIn(AngleCell("0.1")), 0.1F);
}

TEST(AngleCellNumber, raisesWhatNoSingleHolds)
{
    for (const auto &[text, number] : {std::pair("1e39", 6), std::pair("x", 13)})
        try {
            singleIn(AngleCell(text));
            FAIL() << text;
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), number);
        }
}

TEST(HeldAngles, comeBackAsTheTextsAndSinglesThatTheyWere)
{
    AngleList list(V);
    resize(list, "3", kTypeC);
    write(list, 1, 0, "0.10");
    write(list, 1, 1, "a\\n=b");
    AngleList entry(V);
    resize(entry, "19, Type C V.dist 0 to 180, 10 degree increments", kTypeC);
    for (AngleList *source : {&list, &entry}) {
        const AngleCells before = source->cells();
        const auto held = source->held();
        resize(*source, "1", kTypeC);
        EXPECT_TRUE(bringBack(*source, held()));
        EXPECT_EQ(source->cells(), before);
    }
}

TEST(HeldAngles, areSinglesOrTextsByTheirFirstSign)
{
    AngleList list(V);
    EXPECT_TRUE(bringBack(list, "=22.5\n'45\n=90\n"));
    EXPECT_EQ(list.cells(), cells({22.5F, std::string("45"), 90.0F}));
    EXPECT_EQ(list.held()(), "=22.5\n'45\n=90\n");
}

TEST(HeldAngles, refuseWhatNoListHolds)
{
    AngleList list(V);
    resize(list, "2", kTypeC);
    for (const char *text : {"5\n", "=x\n", "='\n", "\n", "'a", "'a\\x\n", "'a\tb\n"})
        EXPECT_FALSE(bringBack(list, text)) << text;
    std::string tooMany;
    for (int angle = 0; angle <= AngleList::kMostAngles; ++angle)
        tooMany += "=1\n";
    EXPECT_FALSE(bringBack(list, tooMany));
    EXPECT_EQ(list.columnCount(), 2);
}

}  // namespace
}  // namespace penwright::test
