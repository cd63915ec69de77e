#include "widgets/GridViewTest.h"

namespace penwright::test {
namespace {

/// A grid of one row that takes further ones.
class GrowingGrid : public GridTest {
protected:
    void SetUp() override
    {
        table.growing = true;
        table.cells = {{"A1", "B1"}};
        show();
    }
    TextTable &table = ownTable(1, 2);
};

TEST_F(GrowingGrid, showsOneRowMoreMarkedWithAStar)
{
    EXPECT_EQ(grid->model()->rowCount(), 2);
    EXPECT_EQ(grid->model()->headerData(1, Qt::Vertical).toString(), "*");
    EXPECT_EQ(shown(2, 0), "");
    EXPECT_EQ(table.rowCount(), 1);
}

TEST_F(GrowingGrid, textCommittedInItMakesItARow)
{
    grid->goTo(2, 1);
    type("new");
    press(Qt::Key_Return);
    EXPECT_EQ(table.all(), "A1|B1 / |new");
    EXPECT_EQ(taken, "B2 ");
    EXPECT_EQ(grid->model()->rowCount(), 3);
    EXPECT_EQ(grid->model()->headerData(1, Qt::Vertical).toString(), "2");
    EXPECT_EQ(grid->model()->headerData(2, Qt::Vertical).toString(), "*");
    EXPECT_EQ(current(), "B3");
}

TEST_F(GrowingGrid, emptyRefusedOrDroppedTextMakesNoRow)
{
    grid->goTo(2, 0);
    press(Qt::Key_F2);
    press(Qt::Key_Return);
    type("a");
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    type("x");
    press(Qt::Key_Return);
    settle();
    type("a");
    press(Qt::Key_Escape);
    press(Qt::Key_Delete);
    EXPECT_EQ(table.all(), "A1|B1");
    EXPECT_EQ(grid->model()->rowCount(), 2);
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|0] no x in A2\n");
}

TEST_F(GrowingGrid, tabWalksThroughTheNewRowToTheNext)
{
    grid->goTo(2, 1);
    type("new");
    press(Qt::Key_Tab);
    EXPECT_EQ(current(), "A3");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "after");
}

TEST_F(GrowingGrid, beginsWithTheFirstRowOfAnEmptySource)
{
    table.cells.clear();
    rebuild();
    EXPECT_EQ(grid->model()->rowCount(), 1);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Tab);
    ASSERT_EQ(current(), "A1");
    type("new");
    press(Qt::Key_Return);
    EXPECT_EQ(table.all(), "new|");
}

}  // namespace
}  // namespace penwright::test
