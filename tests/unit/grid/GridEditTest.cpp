#include "grid/SourceEdits.h"

#include <gtest/gtest.h>

#include "support/GridEdits.h"
#include "support/TextTable.h"

namespace penwright::test {
namespace {

const std::string kTitle = "the page";

/// A table of two rows and columns, each cell holding its name, that counts how often a text was checked.
class EditedTable : public TextTable {
public:
    EditedTable() : TextTable(2, 2) { cells = {{"A1", "B1"}, {"A2", "B2"}}; }

    std::optional<MessageBox> check(int row, int column, std::string_view text) const override
    {
        ++checks;
        return TextTable::check(row, column, text);
    }

    std::string stepBeforeCells() const override { return "first a row"; }

    mutable int checks = 0;
};

class GridEdits : public testing::Test {
protected:
    GridEdit paste(const GridBlock &block, std::string_view text) { return table.paste(block, text, kTitle); }

    EditedTable table;
};

TEST_F(GridEdits, checkEachTextOnce)
{
    EXPECT_EQ(write(table, 1, 1, "5"), std::nullopt);
    EXPECT_EQ(table.checks, 1);
    apply(table, paste({1, 0, 1, 0}, "1\t2\n3\t4"));
    EXPECT_EQ(table.checks, 5);
    apply(table, clearingEdit(table, {1, 0, 2, 1}));
    EXPECT_EQ(table.checks, 9);
}

TEST_F(GridEdits, changeNothingBeforeTheyAreApplied)
{
    GridEdit edit = paste({1, 0, 1, 0}, "1\t2");
    prepareEdit(edit, table);
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2");
    ASSERT_TRUE(edit.content);
    edit.content->swap();
    EXPECT_EQ(table.all(), "1|2 / A2|B2");
}

TEST_F(GridEdits, leadBackToWhatStoodBefore)
{
    table.growing = true;
    GridEdit edit = paste({2, 0, 2, 0}, "1\t2\n3\t4");
    prepareEdit(edit, table);
    edit.content->swap();
    EXPECT_EQ(table.all(), "A1|B1 / 1|2 / 3|4");
    edit.content->swap();
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2");
    edit.content->swap();
    EXPECT_EQ(table.all(), "A1|B1 / 1|2 / 3|4");
}

TEST_F(GridEdits, ofTypingAreOfTheCellAlone)
{
    const GridBlock block = typedEdit(table, 2, 1, "5").block;
    EXPECT_EQ(block.firstRow, 2);
    EXPECT_EQ(block.firstColumn, 1);
    EXPECT_EQ(block.lastRow, 2);
    EXPECT_EQ(block.lastColumn, 1);
}

TEST_F(GridEdits, areCalledAsAMenuCallsThem)
{
    EXPECT_EQ(typedEdit(table, 1, 0, "5").name, "Typing");
    EXPECT_EQ(clearingEdit(table, {1, 0, 1, 0}).name, "Clear");
    EXPECT_EQ(paste({1, 0, 1, 0}, "5").name, "Paste");
}

TEST_F(GridEdits, refusedTextOfABlockRefusesItAllForItsFirstCell)
{
    GridEdit edit = paste({1, 0, 1, 0}, "1\t2\n3\tx");
    const auto refused = prepareEdit(edit, table);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->box.text, "no x in B2");
    EXPECT_EQ(refused->row, 1);
    EXPECT_EQ(refused->column, 0);
    EXPECT_FALSE(edit.content);
}

/// Refuses to be empty in its second column.
class PartlyEmptied : public TextTable {
public:
    using TextTable::TextTable;
    std::string emptied(int, int column) const override { return column == 1 ? "x" : ""; }
};

TEST(ClearingEdit, leavesOutTheCellsThatRefuseItAndTellsTheFirst)
{
    PartlyEmptied table(2, 2);
    table.cells = {{"A1", "B1"}, {"A2", "B2"}};
    GridEdit edit = clearingEdit(table, {1, 0, 3, 1});
    const auto refused = prepareEdit(edit, table);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->box.text, "no x in B1");
    EXPECT_EQ(refused->row, 1);
    EXPECT_EQ(refused->column, 1);
    EXPECT_EQ(edit.texts.size(), 2U);
    edit.content->swap();
    EXPECT_EQ(table.all(), "|B1 / |B2");
}

TEST_F(GridEdits, withoutAChangeHaveNoContent)
{
    const std::pair<GridBlock, const char *> kNothing[]{{{1, 0, 1, 0}, "A1\tB1"}, {{1, 0, 1, 0}, ""}, {{}, "1"}};
    for (const auto &[block, text] : kNothing) {
        GridEdit edit = paste(block, text);
        EXPECT_FALSE(prepareEdit(edit, table)) << text;
        EXPECT_FALSE(edit.content) << text;
    }
}

TEST_F(GridEdits, pasteIsRefusedByTheColumnThatCannotBeChangedInAnyRow)
{
    table.readOnlyColumn = 1;
    for (const int row : {1, 2}) {
        const GridEdit refused = paste({row, 0, row, 0}, "1\t2");
        ASSERT_TRUE(refused.refused);
        EXPECT_EQ(refused.refused->box.text, "Row " + std::to_string(row) + ": the column \"B\" cannot be changed.");
        EXPECT_FALSE(paste({row, 0, row, 0}, "1").refused);
    }
}

TEST_F(GridEdits, sayWhatAPasteWithoutACellIsMissing)
{
    EXPECT_EQ(paste({}, "1").hint, "Select a cell first, then paste again.");
    EXPECT_EQ(paste({}, "").hint, "");
    EXPECT_EQ(paste({1, 0, 1, 0}, "1").hint, "");
    table.cells.clear();
    EXPECT_EQ(paste({}, "1").hint, "first a row");
}

TEST_F(GridEdits, appendTheRowsOfABlockAndNoneForBlanksThatAreNotKept)
{
    table.growing = true;
    apply(table, paste({3, 0, 3, 0}, "1\n\n\t2"));
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / 1| / | / |2");
    write(table, 6, 0, "");
    EXPECT_EQ(table.rowCount(), 5);
}

TEST_F(GridEdits, bringNoLineEndIntoACell)
{
    write(table, 1, 0, "a\r\nb\rc\n");
    EXPECT_EQ(table.cells[0][0], "a b c");
    apply(table, paste({1, 0, 1, 0}, "1\t\"2\n3\"\r4\t5\n"));
    EXPECT_EQ(table.all(), "1|2 3 / 4|5");
}

TEST_F(GridEdits, copyTheRowsThatThereAre)
{
    EXPECT_EQ(table.copy({1, 0, 2, 1}), "A1\tB1\nA2\tB2");
    EXPECT_EQ(table.copy({2, 1, 3, 1}), "B2");
    EXPECT_EQ(table.copy({3, 0, 3, 1}), std::nullopt);
    EXPECT_EQ(table.copy({}), std::nullopt);
}

TEST_F(GridEdits, leadBackWhenTheirContentIsExchangedOnceMore)
{
    table.growing = true;
    const std::string before = table.all();
    GridEdit edit = paste({2, 0, 2, 0}, "1\t2\n3\t4\n");
    prepareEdit(edit, table);
    for (int turn = 0; turn < 2; ++turn) {
        edit.content->swap();
        EXPECT_EQ(table.all(), "A1|B1 / 1|2 / 3|4");
        edit.content->swap();
        EXPECT_EQ(table.all(), before);
    }
    EXPECT_GT(edit.content->bytes(), 0U);
}

}  // namespace
}  // namespace penwright::test
