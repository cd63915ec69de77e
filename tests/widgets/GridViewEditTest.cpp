// How an editor looks, and when it commits, stays open or is dropped.
#include "widgets/GridViewTest.h"

namespace penwright::test {
namespace {

using GridEditor = FilledGrid;

TEST_F(GridEditor, editorOfANarrowCellIsAsWideAsItsText)
{
    grid->setColumnWidth(0, 40);
    grid->setColumnWidth(1, 40);
    for (const int column : {0, 1}) {
        grid->goTo(1, column);
        const QRect cell = grid->visualRect(grid->model()->index(0, column));
        type("1");
        auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->geometry(), cell);
        type("234567.125");
        EXPECT_EQ(editor->geometry().topLeft(), cell.topLeft());
        EXPECT_GT(editor->width(), editor->fontMetrics().horizontalAdvance("1234567.125"));
        grid->resize(grid->width() + 20, grid->height());
        QCoreApplication::processEvents();
        EXPECT_GT(editor->width(), editor->fontMetrics().horizontalAdvance("1234567.125"));
        editor->setText("1");
        EXPECT_EQ(editor->geometry(), cell);
        press(Qt::Key_Escape);
    }
}

TEST_F(GridEditor, editorStaysInsideTheGrid)
{
    grid->setColumnWidth(0, grid->viewport()->width() - 40);
    grid->setColumnWidth(1, 40);
    grid->goTo(1, 1);
    type(std::string(400, '8').c_str());
    EXPECT_EQ(QApplication::focusWidget()->x(), 0);
    EXPECT_EQ(QApplication::focusWidget()->width(), grid->viewport()->width());
}

TEST_F(GridEditor, unchangedTextIsNoNewValue)
{
    for (const auto end : {Qt::Key_Return, Qt::Key_Up, Qt::Key_Tab}) {
        press(Qt::Key_F2);
        press(end);
        grid->goTo(1, 0);
    }
    EXPECT_EQ(taken, "");
    type("A1");  // reads the same, but has been typed
    press(Qt::Key_Return);
    EXPECT_EQ(taken, "A1 ");
}

TEST_F(GridEditor, textEditedBackToWhatItWasIsNoNewValue)
{
    for (const bool byMouse : {false, true}) {
        if (byMouse) {
            clickCell(1, 0);
            QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, centre(1, 0));
            QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, centre(1, 0));
        } else {
            press(Qt::Key_F2);
        }
        type("5");
        press(Qt::Key_Backspace);
        press(Qt::Key_Return);
        EXPECT_EQ(taken, "");
        grid->goTo(1, 0);
    }
    press(Qt::Key_F2);
    type("5");
    press(Qt::Key_Backspace);
    type("6");
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[0][0], "A16");
}

TEST_F(GridEditor, clickElsewhereCommits)
{
    type("5");
    clickCell(3, 1);
    EXPECT_EQ(table.cells[0][0], "5");
    EXPECT_EQ(current(), "B3");
    EXPECT_EQ(focus(), "cell");
    type("6");
    QTest::mouseClick(before, Qt::LeftButton);
    EXPECT_EQ(table.cells[2][1], "6");
    EXPECT_EQ(focus(), "before");
}

TEST_F(GridEditor, clickOnAHeaderCommits)
{
    type("5");
    QHeaderView *header = grid->verticalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(5, header->sectionViewportPosition(2) + 5));
    EXPECT_EQ(table.cells[0][0], "5");
    EXPECT_FALSE(grid->isEditing());
}

TEST_F(GridEditor, anotherWindowLeavesTheEditorOpen)
{
    type("5");
    QLineEdit other;
    other.setFocus();
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other, 60'000));
    QApplication::setActiveWindow(&other);
    ASSERT_TRUE(other.hasFocus());
    EXPECT_TRUE(grid->isEditing());
    QApplication::setActiveWindow(&window);
    EXPECT_EQ(focus(), "editor");
    type("6");
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[0][0], "56");
}

TEST_F(GridEditor, menuOfTheEditorLeavesItOpen)
{
    type("5");
    const QPointer<QWidget> editor = QApplication::focusWidget();
    QMenu menu(editor);
    menu.addAction("Paste");
    menu.popup(QPoint(10, 10));
    EXPECT_TRUE(grid->isEditing());
    menu.close();
    EXPECT_EQ(QApplication::focusWidget(), editor);
    EXPECT_EQ(table.cells[0][0], "A1");
}

TEST_F(GridEditor, hidingThePageDropsTheEdit)
{
    type("x5");
    grid->hide();
    settle();
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(table.cells[0][0], "A1");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(GridEditor, hidingTheWholeWindowKeepsTheEdit)
{
    type("5");
    window.hide();
    settle();
    EXPECT_EQ(table.cells[0][0], "A1");
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, 60'000));
    ASSERT_TRUE(grid->isEditing());
    grid->commitEdit();
    EXPECT_EQ(table.cells[0][0], "5");
}

TEST_F(GridEditor, droppedEditIsLost)
{
    type("5");
    grid->dropEdit();
    EXPECT_EQ(focus(), "cell");
    EXPECT_TRUE(grid->commitEdit());
    EXPECT_EQ(table.cells[0][0], "A1");
}

}  // namespace
}  // namespace penwright::test
