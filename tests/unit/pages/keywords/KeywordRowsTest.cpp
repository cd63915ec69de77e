#include "pages/keywords/KeywordRows.h"

#include <gtest/gtest.h>

#include "pages/keywords/KeywordTable.h"
#include "support/GridEdits.h"
#include "support/HeldGrid.h"

namespace penwright::test {
namespace {

/// Rows with the given keys, and the key in small letters as each value.
KeywordRows rowsOf(const std::string &keys)
{
    KeywordRows rows;
    for (const char key : keys) {
        write(rows, rows.rowCount() + 1, KeywordRows::kKey, std::string(1, key));
        write(rows, rows.rowCount(), KeywordRows::kValue, std::string(1, static_cast<char>(key + 32)));
    }
    return rows;
}

/// The rows as text: "Aa Bb", "-" for an empty one.
std::string shown(const KeywordRows &rows)
{
    std::string text;
    for (int row = 1; row <= rows.rowCount(); ++row)
        text += (row > 1 ? " " : "") +
                (rows.rows()(row).isEmpty() ? "-" : rows.read(row, KeywordRows::kKey) + rows.read(row, 1));
    return text;
}

TEST(KeywordRows, tellWhatTheFileIsAbout)
{
    EXPECT_EQ(subjectOf({}), "");
    EXPECT_EQ(subjectOf({{"[TEST]", "1"}, {"[MANUFAC]", "M"}}), "M");
    EXPECT_EQ(subjectOf({{"[MANUFAC]", "M"}, {"[LUMCAT]", ""}, {"[LUMCAT]", "D 10"}}), "D 10");
    EXPECT_EQ(subjectOf({{"[LUMCAT]", "  "}, {"[MANUFAC]", " M "}}), "M");
}

TEST(KeywordRows, haveTwoColumnsUnderTheirCaptions)
{
    const KeywordRows rows;
    EXPECT_EQ(rows.columnCount(), 2);
    EXPECT_EQ(rows.columnCaption(0), "Keyword");
    EXPECT_EQ(rows.columnCaption(1), "Description (254 total chars max per line. or use [MORE]  )");
    EXPECT_EQ(rows.rowCount(), 0);
    EXPECT_TRUE(rows.canAppend());
    EXPECT_FALSE(rows.isReadOnly(0) || rows.isReadOnly(1));
}

TEST(KeywordRows, cellKeepsItsTextWithoutOuterBlanks)
{
    KeywordRows rows = rowsOf("AB");
    EXPECT_EQ(write(rows, 2, 0, "  [_MY KEY] "), std::nullopt);
    EXPECT_EQ(write(rows, 2, 1, " two  words   "), std::nullopt);
    EXPECT_EQ(rows.rows(), (OneBased<KeywordRow>{{"A", "a"}, {"[_MY KEY]", "two  words"}}));
    write(rows, 1, 1, "   ");
    write(rows, 1, 0, "\t[TEST]\t");
    EXPECT_EQ(rows.rows()(1), (KeywordRow{"\t[TEST]\t", ""}));
}

TEST(KeywordRows, pastedBlanksAppendNoRow)
{
    const auto pastedInto = [](int row, std::string_view text) {
        KeywordRows rows = rowsOf("A");
        apply(rows, rows.paste({row, 0, row, 0}, text, "the page"));
        return shown(rows);
    };
    for (const char *text : {" ", " \t  \n", "\t\n\t\n", " \n \n \n"})
        EXPECT_EQ(pastedInto(2, text), "Aa") << testing::PrintToString(text);
    EXPECT_EQ(pastedInto(1, " \t \n \t \n"), "-");
    EXPECT_EQ(pastedInto(2, "B\tb\n \t \n"), "Aa Bb");
    EXPECT_EQ(pastedInto(2, " \t \nB\tb\n"), "Aa - Bb");
}

TEST(KeywordRows, noCellHoldsALineEnd)
{
    KeywordRows rows;
    apply(rows, rows.loadRows({{"[TEST]\r\n", "one\rtwo\nthree"}}));
    EXPECT_EQ(rows.rows(), (OneBased<KeywordRow>{{"[TEST]", "one two three"}}));
    write(rows, 1, 1, "four\r\nfive\n");
    EXPECT_EQ(rows.read(1, 1), "four five");
}

TEST(KeywordRows, anyTextIsTaken)
{
    KeywordRows rows = rowsOf("A");
    for (const std::string &text : {std::string(), std::string(1000, 'x'), std::string("\xFF"), std::string("[FOO")})
        for (const int column : {0, 1}) {
            EXPECT_EQ(rows.check(1, column, text), std::nullopt);
            EXPECT_EQ(write(rows, 1, column, text), std::nullopt);
            EXPECT_EQ(rows.read(1, column), text);
        }
}

TEST(KeywordRows, clearedCellIsEmpty)
{
    KeywordRows rows = rowsOf("AB");
    clear(rows, 1, 1);
    clear(rows, 2, 0);
    EXPECT_EQ(rows.rows(), (OneBased<KeywordRow>{{"A", ""}, {"", "b"}}));
}

TEST(KeywordRows, appendedOnesKeepTheRowsBefore)
{
    KeywordRows rows = rowsOf("AB");
    write(rows, 4, KeywordRows::kKey, "D");
    EXPECT_EQ(shown(rows), "Aa Bb - D");
    write(rows, 5, KeywordRows::kKey, "  ");
    EXPECT_EQ(rows.rowCount(), 4);
}

struct InsertCase {
    int row;
    std::string after;
};

class KeywordInsert : public testing::TestWithParam<InsertCase> {};

INSTANTIATE_TEST_SUITE_P(Rows, KeywordInsert,
                         testing::Values(InsertCase{1, "- Aa Bb Cc"}, InsertCase{2, "Aa - Bb Cc"},
                                         InsertCase{3, "Aa Bb - Cc"}, InsertCase{4, "Aa Bb Cc -"},
                                         InsertCase{5, "Aa Bb Cc -"}, InsertCase{0, "Aa Bb Cc -"}));

TEST_P(KeywordInsert, putsAnEmptyRowBeforeTheRow)
{
    KeywordRows rows = rowsOf("ABC");
    apply(rows, rows.insertRow(GetParam().row));
    EXPECT_EQ(shown(rows), GetParam().after);
}

struct BlockCase {
    int first;
    int last;
    std::string after;
};

class KeywordRemove : public testing::TestWithParam<BlockCase> {};

INSTANTIATE_TEST_SUITE_P(Blocks, KeywordRemove,
                         testing::Values(BlockCase{1, 1, "Bb Cc Dd"}, BlockCase{2, 3, "Aa Dd"},
                                         BlockCase{4, 4, "Aa Bb Cc"}, BlockCase{3, 5, "Aa Bb"}, BlockCase{1, 4, ""},
                                         BlockCase{0, 1, "Bb Cc Dd"}, BlockCase{5, 5, "Aa Bb Cc Dd"},
                                         BlockCase{3, 2, "Aa Bb Cc Dd"}, BlockCase{0, 0, "Aa Bb Cc Dd"}));

TEST_P(KeywordRemove, takesTheRowsThatExist)
{
    KeywordRows rows = rowsOf("ABCD");
    if (auto edit = rows.deleteRows(GetParam().first, GetParam().last))
        apply(rows, *std::move(edit));
    EXPECT_EQ(shown(rows), GetParam().after);
}

struct MoveCase {
    std::optional<GridEdit> (KeywordRows::*move)(int first, int last);
    int first;
    int last;
    std::string after;  ///< "" when nothing can be moved
};

constexpr auto up = &KeywordRows::moveUp;
constexpr auto down = &KeywordRows::moveDown;

void PrintTo(const MoveCase &block, std::ostream *out)
{
    *out << (block.move == up ? "up " : "down ") << block.first << " to " << block.last;
}

class KeywordMove : public testing::TestWithParam<MoveCase> {};

INSTANTIATE_TEST_SUITE_P(Blocks, KeywordMove,
                         testing::Values(MoveCase{up, 2, 2, "Bb Aa Cc Dd"}, MoveCase{up, 4, 4, "Aa Bb Dd Cc"},
                                         MoveCase{up, 3, 4, "Aa Cc Dd Bb"}, MoveCase{up, 2, 4, "Bb Cc Dd Aa"},
                                         MoveCase{up, 1, 2, ""}, MoveCase{up, 4, 5, ""}, MoveCase{up, 5, 5, ""},
                                         MoveCase{up, 0, 1, ""}, MoveCase{up, 3, 2, ""},
                                         MoveCase{down, 1, 1, "Bb Aa Cc Dd"}, MoveCase{down, 3, 3, "Aa Bb Dd Cc"},
                                         MoveCase{down, 1, 2, "Cc Aa Bb Dd"}, MoveCase{down, 1, 3, "Dd Aa Bb Cc"},
                                         MoveCase{down, 4, 4, ""}, MoveCase{down, 3, 4, ""}, MoveCase{down, 5, 5, ""},
                                         MoveCase{down, 0, 1, ""}, MoveCase{down, 3, 2, ""}));

TEST_P(KeywordMove, goesOverTheRowBesideTheBlock)
{
    KeywordRows rows = rowsOf("ABCD");
    auto edit = (rows.*GetParam().move)(GetParam().first, GetParam().last);
    EXPECT_EQ(edit.has_value(), !GetParam().after.empty());
    if (edit)
        apply(rows, *std::move(edit));
    EXPECT_EQ(shown(rows), GetParam().after.empty() ? "Aa Bb Cc Dd" : GetParam().after);
}

TEST(KeywordRows, emptyRowHasNeitherKeyNorValue)
{
    KeywordRows rows;
    apply(rows, rows.loadRows({{"", ""}, {"[TEST]", ""}, {"", "value"}, {"", ""}}));
    EXPECT_EQ(rows.emptyRows(), (std::vector{1, 4}));
    EXPECT_TRUE(KeywordRows().emptyRows().empty());
}

std::string offered(const KeywordRows &rows, int row)
{
    std::string text;
    for (const GridChoice &choice : rows.choices(row, KeywordRows::kKey))
        text += choice.text + "|" + choice.hint + "\n";
    return text;
}

TEST(KeywordRows, keywordColumnOffersTheTableAndRowOneTheVersionsFirst)
{
    std::string table;
    for (const KeywordEntry &entry : kStandardKeywords)
        table.append(entry.keyword).append("|").append(entry.description).append("\n");
    const KeywordRows rows = rowsOf("AB");
    EXPECT_EQ(offered(rows, 2), table);
    EXPECT_EQ(offered(rows, 3), table);
    EXPECT_EQ(offered(rows, 1),
              "IESNA:LM-63-2002|Version line of the format of 2002\n"
              "IESNA:LM-63-1995|Version line of the format of 1995\n"
              "IESNA91|Version line of the format of 1991\n" +
                  table);
    EXPECT_TRUE(rows.choices(1, KeywordRows::kValue).empty());
}

TEST(HeldKeywords, comeBackAsTheyWere)
{
    KeywordRows rows = rowsOf("ABC");
    write(rows, 2, KeywordRows::kValue, "back\\slash");
    apply(rows, rows.insertRow(2));
    const OneBased<KeywordRow> before = rows.rows();
    const auto held = rows.held();
    apply(rows, *rows.deleteRows(1, 4));
    EXPECT_TRUE(bringBack(rows, held()));
    EXPECT_EQ(rows.rows(), before);
}

TEST(HeldKeywords, takeTheMemoryOfEachOfTheirTexts)
{
    EXPECT_EQ(HeldKeywords::bytesOf({}), 0U);
    const std::string text(1000, 'a');
    EXPECT_GE(HeldKeywords::bytesOf({{"", ""}, {text, text}}), 2 * (sizeof(KeywordRow) + text.size()));
    EXPECT_LT(HeldKeywords::bytesOf({{"", ""}, {text, text}}), 3 * (sizeof(KeywordRow) + text.size()));
}

TEST(HeldKeywords, refuseWhatNoRowHolds)
{
    KeywordRows rows = rowsOf("A");
    for (const char *text : {"a\n", "a\tb", "a\tb\tc\n", "a\\n\tb\n", "a\tb\\\n", "a\\r\tb\n"})
        EXPECT_FALSE(bringBack(rows, text)) << text;
    EXPECT_EQ(shown(rows), "Aa");
}

}  // namespace
}  // namespace penwright::test
