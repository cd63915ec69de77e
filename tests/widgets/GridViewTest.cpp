#include "widgets/GridViewTest.h"

namespace penwright::test {
namespace {

using Grid = FilledGrid;

TEST_F(Grid, showsTheSourceWithCaptionsAndRowNumbers)
{
    EXPECT_EQ(grid->model()->rowCount(), 3);
    EXPECT_EQ(grid->model()->columnCount(), 2);
    EXPECT_EQ(shown(3, 1), "B3");
    EXPECT_EQ(grid->model()->headerData(1, Qt::Horizontal).toString(), "B");
    EXPECT_EQ(grid->model()->headerData(2, Qt::Vertical).toString(), "3");
    EXPECT_EQ(current(), "A1");
}

TEST_F(Grid, typingReplacesTheTextAndEnterMovesDown)
{
    type("7.5");
    EXPECT_EQ(focus(), "editor");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
    press(Qt::Key_Return);
    EXPECT_EQ(table.all(), "7.5|B1 / A2|B2 / A3|B3");
    EXPECT_EQ(taken, "A1 ");
    EXPECT_EQ(current(), "A2");
    EXPECT_EQ(focus(), "cell");
}

TEST_F(Grid, enterStaysOnTheLastRow)
{
    grid->goTo(3, 1);
    type("q");
    press(Qt::Key_Enter);
    EXPECT_EQ(current(), "B3");
    EXPECT_EQ(table.cells[2][1], "q");
    press(Qt::Key_Return);
    EXPECT_EQ(current(), "B3");
    EXPECT_EQ(focus(), "cell");
}

TEST_F(Grid, enterGoesAlongTheOnlyRow)
{
    table.cells = {{"A1", "B1"}};
    rebuild();
    type("5");
    press(Qt::Key_Return);
    EXPECT_EQ(current(), "B1");
    type("6");
    press(Qt::Key_Enter);
    EXPECT_EQ(current(), "B1");
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(current(), "A1");
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(current(), "A1");
    EXPECT_EQ(focus(), "cell");
    EXPECT_EQ(table.all(), "5|6");
}

TEST_F(Grid, theCurrentCellIsPaleWithoutTheFocus)
{
    const auto ground = [this] {
        return grid->viewport()->grab().toImage().pixelColor(grid->visualRect(grid->currentIndex()).topLeft() +
                                                             QPoint(2, 2));
    };
    const QColor strong = ground();
    grid->clearFocus();
    EXPECT_GT(ground().lightness(), strong.lightness() + 40);
    EXPECT_LT(ground().lightness(), grid->palette().color(QPalette::Base).lightness() - 10);
    grid->setFocus();
    EXPECT_EQ(ground(), strong);
}

TEST_F(Grid, f2EditsTheTextAndTheArrowsMoveInIt)
{
    press(Qt::Key_F2);
    type("5");
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    type("-");
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[0][0], "A-15");
}

TEST_F(Grid, doubleClickEdits)
{
    clickCell(2, 1);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, centre(2, 1));
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, centre(2, 1));
    ASSERT_EQ(focus(), "editor");
    type("5");
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[1][1], "B25");
}

TEST_F(Grid, upAndDownCommitAndMove)
{
    type("1");
    press(Qt::Key_Down);
    EXPECT_EQ(current(), "A2");
    EXPECT_EQ(focus(), "cell");
    type("2");
    press(Qt::Key_Up);
    EXPECT_EQ(current(), "A1");
    EXPECT_EQ(table.all(), "1|B1 / 2|B2 / A3|B3");
}

TEST_F(Grid, arrowsHomeAndEndMoveBetweenCells)
{
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(current(), "B2");
    press(Qt::Key_Home);
    EXPECT_EQ(current(), "A2");
    press(Qt::Key_End);
    press(Qt::Key_PageDown);
    EXPECT_EQ(current(), "B3");
    press(Qt::Key_PageUp);
    EXPECT_EQ(current(), "B1");
    EXPECT_EQ(visited, "A1 B1 B2 A2 B2 B3 B1 ");
}

TEST_F(Grid, escapeGivesTheOldTextBackAndOnlyThenReachesTheWindow)
{
    struct EscapeCount : QObject {
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
                ++count;
            return false;
        }
        int count = 0;
    } escapes;
    window.installEventFilter(&escapes);
    type("77");
    press(Qt::Key_Escape);
    EXPECT_EQ(focus(), "cell");
    EXPECT_EQ(escapes.count, 0);
    EXPECT_EQ(table.cells[0][0], "A1");
    EXPECT_EQ(taken, "");
    press(Qt::Key_Escape);
    EXPECT_EQ(escapes.count, 1);
}

TEST_F(Grid, tabWalksAlongTheRowsAndLeavesAtBothEnds)
{
    visited.clear();
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Tab);
    EXPECT_EQ(visited, "B1 A2 B2 A3 B3 ");
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "after");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "cell");
    EXPECT_EQ(current(), "B3");
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), "A1");
    EXPECT_EQ(grid->selectionModel()->selectedIndexes().size(), 1);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "before");
}

TEST_F(Grid, tabDownTheColumnLeavesOnTheLastAndTheFirstRow)
{
    grid->setTabWay(TabWay::DownColumn);
    grid->goTo(1, 1);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(current(), "B3");
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "after");
    grid->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), "B1");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "before");
}

TEST_F(Grid, tabInAnEditorCommitsAndOpensNoOther)
{
    type("1");
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "cell");
    EXPECT_EQ(current(), "B1");
    type("2");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), "A1");
    grid->goTo(3, 1);
    type("3");
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "after");
    EXPECT_EQ(table.all(), "1|2 / A2|B2 / A3|3");
}

TEST_F(Grid, ctrlTabLeavesFromCellAndEditor)
{
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(focus(), "after");
    grid->setFocus();
    type("9");
    press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(focus(), "before");
    EXPECT_EQ(table.cells[0][0], "9");
}

TEST_F(Grid, tabPassesOverReadOnlyColumnsAndTheyOpenNoEditor)
{
    table.readOnlyColumn = 0;
    rebuild();
    grid->goTo(1, 1);
    press(Qt::Key_Tab);
    EXPECT_EQ(current(), "B2");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), "B1");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "before");
    grid->goTo(2, 0);
    type("5");
    press(Qt::Key_F2);
    EXPECT_EQ(focus(), "cell");
    EXPECT_EQ(current(), "A2");
    press(Qt::Key_Delete);
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
}

TEST_F(Grid, deleteClearsTheSelectedCells)
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(table.all(), "| / | / A3|B3");
    EXPECT_EQ(taken, "A1 B1 A2 B2 ");
}

TEST_F(Grid, refreshReadsAnewAndKeepsTheCellThatIsStillThere)
{
    grid->goTo(2, 1);
    type("5");
    table.cells = {{"p", "q"}, {"r", "s"}};
    rebuild();
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(current(), "B2");
    EXPECT_EQ(shown(2, 1), "s");
    table.cells = {{"p", "q"}};
    visited.clear();
    rebuild();
    EXPECT_EQ(grid->currentRow(), 0);
    EXPECT_EQ(visited, "A0 ");
}

TEST_F(Grid, cellMadeTheCurrentOneIsSelectedAloneAndTakesNoFocus)
{
    grid->goTo(1, 0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    before->setFocus();
    QTest::keyPress(before, Qt::Key_Shift, Qt::ShiftModifier);  // a block would be selected by it
    grid->makeCurrent(3, 1);
    QTest::keyRelease(before, Qt::Key_Shift);
    EXPECT_EQ(current(), "B3");
    EXPECT_EQ(grid->selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(focus(), "before");
    grid->makeCurrent(9, 1);
    EXPECT_EQ(current(), "B3");
}

TEST_F(Grid, becomesEmptyAndStaysUsable)
{
    table.cells.clear();
    rebuild();
    for (const auto key : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_F2, Qt::Key_Down, Qt::Key_A})
        press(key);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "after");
    table.cells = {{"p", "q"}};
    rebuild();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), "A1");
}

TEST_F(GridTest, isEmptyBeforeItServesASource)
{
    show();
    EXPECT_EQ(grid->model()->rowCount(), 0);
    for (const auto key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Down})
        press(key);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(grid->currentRow(), 0);
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "after");
}

TEST_F(Grid, keepsItsSourceWhoeverElseLetsItGo)
{
    const std::weak_ptr<TextTable> served = source;
    source.reset();
    type("5");
    press(Qt::Key_Return);
    EXPECT_EQ(shown(1, 0), "5");
    delete grid;
    EXPECT_TRUE(served.expired());
}

TEST_F(Grid, editorTellsItsCellAndHeadersTheirNamesToScreenReaders)
{
    grid->goTo(2, 1);
    type("5");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Row 2, B");
    QAccessibleInterface *table_ = QAccessible::queryAccessibleInterface(grid);
    ASSERT_TRUE(table_ && table_->tableInterface());
    EXPECT_EQ(table_->tableInterface()->rowDescription(1), "2");
    EXPECT_EQ(table_->tableInterface()->columnDescription(1), "B");
}

}  // namespace
}  // namespace penwright::test
