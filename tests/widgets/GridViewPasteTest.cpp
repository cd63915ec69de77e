#include "controls/OneLine.h"
#include "support/Growth.h"
#include "widgets/GridViewTest.h"

namespace penwright::test {
namespace {

class GridPaste : public GridTest {
protected:
    void SetUp() override
    {
        table.cells = {{"A1", "B1"}, {"A2", "B2"}, {"A3", "B3"}};
        show();
    }

    static void setClipboard(const char *text) { QApplication::clipboard()->setText(text); }
    static std::string clipboard() { return QApplication::clipboard()->text().toStdString(); }
    static void copy() { press(Qt::Key_C, Qt::ControlModifier); }
    void paste(const char *text)
    {
        setClipboard(text);
        press(Qt::Key_V, Qt::ControlModifier);
        settle();
    }

    TextTable &table = ownTable(3, 2);
};

TEST_F(GridPaste, copiesTheSelectedBlockAsPlainText)
{
    grid->goTo(2, 0);
    copy();
    EXPECT_EQ(clipboard(), "A2");
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    copy();
    EXPECT_EQ(clipboard(), "A2\tB2\nA3\tB3");
    EXPECT_EQ(QApplication::clipboard()->mimeData()->formats(), QStringList("text/plain"));
}

TEST_F(GridPaste, selectAllCopiesTheTableWithoutTheRowToAppend)
{
    table.growing = true;
    rebuild();
    press(Qt::Key_A, Qt::ControlModifier);
    copy();
    EXPECT_EQ(clipboard(), "A1\tB1\nA2\tB2\nA3\tB3");
}

TEST_F(GridPaste, pastesFromTheCurrentCellWithEitherLineEnd)
{
    for (const char *text : {"1\t2\n3\t4", "1\t2\r\n3\t4", "1\t2\n3\t4\n", "1\t2\r\n3\t4\r\n"}) {
        table.cells = {{"A1", "B1"}, {"A2", "B2"}, {"A3", "B3"}};
        taken.clear();
        grid->goTo(2, 0);
        paste(text);
        EXPECT_EQ(table.all(), "A1|B1 / 1|2 / 3|4");
        EXPECT_EQ(taken, "A2 B2 A3 B3 ");
        EXPECT_EQ(dialogs.transcript, "");
    }
}

TEST_F(GridPaste, pastesFromTheTopLeftOfASelectedBlock)
{
    grid->goTo(2, 0);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    paste("1\t2\n3\t4");
    EXPECT_EQ(table.all(), "A1|B1 / 1|2 / 3|4");
}

TEST_F(GridPaste, ownCopyPastedBackChangesNothing)
{
    press(Qt::Key_A, Qt::ControlModifier);
    copy();
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(taken, "");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
}

TEST_F(GridPaste, oneRefusedTextRefusesTheWholeBlock)
{
    paste("1\t2\nx3\tx4\n5\t6");
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|0] no x3 in A2\n");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
    EXPECT_EQ(current(), "A1");
    EXPECT_EQ(focus(), "cell");
    paste("1\t2\n3\t4\n5\t6");
    EXPECT_EQ(table.all(), "1|2 / 3|4 / 5|6");
}

TEST_F(GridPaste, emptyLinesAndColumnsBehindTheBlockAreLeftOut)
{
    for (const char *text : {"1\n\n", "1\t\n\t\n", "1\t\t\t\n\n\n\n\n"}) {
        table.cells = {{"A1", "B1"}, {"A2", "B2"}, {"A3", "B3"}};
        grid->goTo(1, 0);
        paste(text);
        EXPECT_EQ(table.all(), "1|B1 / A2|B2 / A3|B3") << text;
    }
    paste("1\t\n\t\n\t2\n");
    EXPECT_EQ(table.all(), "1| / | / |2");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(GridPaste, aBlockOfEmptyCellsEmptiesThem)
{
    paste("\t\n\t\n");
    EXPECT_EQ(table.all(), "| / | / A3|B3");
}

TEST_F(GridPaste, blockThatDoesNotFitIsRefusedWhole)
{
    grid->goTo(2, 1);
    paste("1\t2\n3\t4\n5\t6");
    EXPECT_EQ(dialogs.transcript,
              "[the page|0] The copied block has 3 rows and 2 columns. From here on there is room for 2 rows and 1 "
              "column.\n");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
}

TEST_F(GridPaste, rowsAreAppendedWhereTheyCanBe)
{
    table.growing = true;
    rebuild();
    grid->goTo(3, 0);
    paste("1\t2\n3\t4\n5\t6");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / 1|2 / 3|4 / 5|6");
    EXPECT_EQ(grid->model()->rowCount(), 6);
    grid->goTo(6, 1);
    paste("9");
    EXPECT_EQ(table.rowCount(), 6);
    paste("1\t2");
    EXPECT_EQ(dialogs.transcript,
              "[the page|0] The copied block has 2 columns. From here on there is room for 1 column.\n");
}

TEST_F(GridPaste, refusedBlockAppendsNoRow)
{
    table.growing = true;
    rebuild();
    grid->goTo(3, 0);
    paste("1\n2\nx");
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|0] no x in A5\n");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
    EXPECT_EQ(grid->model()->rowCount(), 4);
}

TEST_F(GridPaste, readOnlyColumnRefusesTheBlock)
{
    table.readOnlyColumn = 1;
    paste("1\t2");
    EXPECT_EQ(dialogs.transcript, "[the page|0] Row 1: the column \"B\" cannot be changed.\n");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
}

TEST_F(GridPaste, emptyClipboardChangesNothing)
{
    paste("");
    EXPECT_EQ(table.all(), "A1|B1 / A2|B2 / A3|B3");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(GridPaste, linesMayDifferInLength)
{
    paste("1\n2\t3\n");
    EXPECT_EQ(table.all(), "1|B1 / 2|3 / A3|B3");
}

TEST_F(GridPaste, openEditorCopiesAndPastesItsOwnText)
{
    type("abc");
    press(Qt::Key_A, Qt::ControlModifier);
    copy();
    EXPECT_EQ(clipboard(), "abc");
    press(Qt::Key_End);
    paste("de");
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[0][0], "abcde");
}

TEST_F(GridPaste, cellOfASpreadsheetGoesIntoTheTextOfAnOpenEditor)
{
    for (const char *text : {"Night Lab\n", "Night Lab\r\n", "Night Lab\r", "Night Lab"}) {
        grid->goTo(2, 0);
        type("Lab: ");
        paste(text);
        ASSERT_TRUE(grid->isEditing());
        press(Qt::Key_Return);
        EXPECT_EQ(table.cells[1][0], "Lab: Night Lab");
    }
}

TEST_F(GridPaste, blockComesOverTheTextOfAnOpenEditorWhichIsTakenFirst)
{
    for (const char *text : {"1\t2", "1\n2", "1\t\n"}) {
        grid->goTo(2, 0);
        type("abc");
        taken.clear();
        paste(text);
        EXPECT_FALSE(grid->isEditing());
        EXPECT_EQ(table.cells[1][0], "1");
        EXPECT_EQ(taken.substr(0, 6), "A2 A2 ") << "once typed, once pasted";
        press(Qt::Key_Delete);
    }
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(GridPaste, blockDropsATextThatCannotStand)
{
    grid->goTo(2, 0);
    type("x");
    paste("1\t2");
    settle();
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(table.cells[1][0] + table.cells[1][1], "12");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(GridPaste, blockOfWhatStandsAlreadyComesOverASlipInAnOpenEditor)
{
    const std::string stood = table.all();
    grid->goTo(1, 0);
    type("abc");
    paste("A1\tB1");
    settle();
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(table.all(), stood);
}

TEST_F(GridPaste, refusedBlockLeavesTheEditorOpen)
{
    grid->goTo(2, 0);
    type("abc");
    paste("1\tx");
    settle();
    EXPECT_NE(dialogs.transcript, "");
    ASSERT_TRUE(grid->isEditing());
    EXPECT_EQ(focus(), "editor");
    type("d");
    press(Qt::Key_Return);
    EXPECT_EQ(table.all(), "A1|B1 / abcd|B2 / A3|B3");
}

TEST_F(GridPaste, menuOfTheEditorPastesOneLine)
{
    setClipboard("a\tb\nc\n");
    press(Qt::Key_F2);
    auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    line->selectAll();
    line->paste();
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[0][0], "a b c");
}

TEST(OneLine, takesAsLongAsItsText)
{
    const auto validate = [](const std::string &text) {
        QString line = QString::fromStdString(text) + "end";
        int cursor = 0;
        OneLine().validate(line, cursor);
        EXPECT_TRUE(line.endsWith(" end"));
    };
    for (const char *part : {"\n", "\r\n"})
        EXPECT_LT(growth(part, 4000, validate), kMostGrowth) << testing::PrintToString(part);
}

}  // namespace
}  // namespace penwright::test
