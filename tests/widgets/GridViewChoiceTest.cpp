#include "support/SpinUntil.h"
#include "widgets/GridViewTest.h"

namespace penwright::test {
namespace {

/// A grid whose first column offers "[TEST]", "[LAMP]" and "[MORE]".
class GridChoices : public GridTest {
protected:
    void SetUp() override
    {
        table.cells = {{"[LAMP]", "B1"}, {"", "B2"}};
        table.choiceColumn = 0;
        show();
    }

    void TearDown() override
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    }

    QComboBox *box() const { return grid->viewport()->findChild<QComboBox *>(); }
    static bool isListOpen() { return QApplication::activePopupWidget() != nullptr; }
    QPoint arrow() const
    {
        const QRect cell = grid->visualRect(grid->currentIndex());
        return {cell.right() - 5, cell.center().y()};
    }

    TextTable &table = ownTable(2, 2);
};

TEST_F(GridChoices, typingReplacesTheTextAndNothingIsCompleted)
{
    type("[te");
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->currentText(), "[te");
    EXPECT_FALSE(box()->lineEdit()->hasSelectedText());
    EXPECT_FALSE(box()->completer());
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[0][0], "[te");
    EXPECT_EQ(current(), "A2");
    EXPECT_EQ(focus(), "cell");
}

TEST_F(GridChoices, f2EditsTheText)
{
    press(Qt::Key_F2);
    EXPECT_EQ(box()->currentText(), "[LAMP]");
    type("CAT");
    press(Qt::Key_Tab);
    EXPECT_EQ(table.cells[0][0], "[LAMP]CAT");
    EXPECT_EQ(current(), "B1");
}

TEST_F(GridChoices, entriesAreThoseOfTheSourceWithTheirHints)
{
    press(Qt::Key_F2);
    ASSERT_EQ(box()->count(), 3);
    EXPECT_EQ(box()->itemText(0), "[TEST]");
    EXPECT_EQ(box()->itemData(0, Qt::ToolTipRole), "Test report number");
    press(Qt::Key_Escape);
    grid->goTo(1, 1);
    press(Qt::Key_F2);
    EXPECT_TRUE(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
}

TEST_F(GridChoices, altDownOpensTheListAndEnterPicks)
{
    press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(isListOpen());
    EXPECT_EQ(box()->view()->currentIndex().row(), 1);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(isListOpen());
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(table.cells[0][0], "[MORE]");
    EXPECT_EQ(taken, "A1 ");
    EXPECT_EQ(current(), "A1");
    EXPECT_EQ(focus(), "cell");
}

TEST_F(GridChoices, altDownOpensTheListOfAnOpenEditor)
{
    type("[");
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(isListOpen());
    EXPECT_TRUE(grid->isEditing());
}

TEST_F(GridChoices, altDownInAPlainColumnOpensNothing)
{
    grid->goTo(1, 1);
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_FALSE(isListOpen());
    EXPECT_FALSE(grid->isEditing());
}

TEST_F(GridChoices, listIsWideEnoughForTheHints)
{
    grid->setColumnWidth(0, 60);
    press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(isListOpen());
    const int hint = box()->fontMetrics().horizontalAdvance("[LAMP]Test report number");
    EXPECT_GT(box()->view()->viewport()->width(), hint);
}

TEST_F(GridChoices, clickOnTheArrowOpensTheListAndAClickPicks)
{
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, arrow());
    ASSERT_TRUE(isListOpen());
    QAbstractItemView *view = box()->view();
    const QPoint first = view->visualRect(view->model()->index(0, 0)).center();
    QTest::mouseMove(view->viewport(), first);
    // The box takes a release that comes at once for the end of the click that opened it.
    ASSERT_TRUE(spinUntil([&] {
        if (isListOpen())
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, first);
        return !isListOpen();
    }));
    EXPECT_EQ(table.cells[0][0], "[TEST]");
    EXPECT_FALSE(grid->isEditing());
}

TEST_F(GridChoices, clickOnTheArrowsPlaceInAnotherCellOnlySelectsIt)
{
    const QRect other = grid->visualRect(grid->model()->index(1, 0));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, QPoint(other.right() - 5, other.center().y()));
    EXPECT_EQ(current(), "A2");
    EXPECT_FALSE(isListOpen());
}

TEST_F(GridChoices, arrowShowsInTheCurrentCellOfTheColumnAlone)
{
    const auto corner = [&](int row, int column) {
        const QRect cell = grid->visualRect(grid->model()->index(row - 1, column));
        return grid->viewport()->grab(QRect(cell.right() - 20, cell.top(), 20, cell.height())).toImage();
    };
    grid->goTo(1, 1);
    const QImage without = corner(2, 0);
    grid->goTo(2, 0);
    grid->clearSelection();
    const QImage with = corner(2, 0);
    EXPECT_NE(with, without);
}

TEST_F(GridChoices, escapeClosesTheListFirstThenTheEditor)
{
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isListOpen());
    EXPECT_TRUE(grid->isEditing());
    press(Qt::Key_Escape);
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(focus(), "cell");
    EXPECT_EQ(table.cells[0][0], "[LAMP]");
    EXPECT_EQ(taken, "");
}

TEST_F(GridChoices, wheelChangesNothing)
{
    press(Qt::Key_F2);
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(box(), &wheel);
    EXPECT_EQ(box()->currentText(), "[LAMP]");
    press(Qt::Key_Return);
    EXPECT_EQ(taken, "");
}

TEST_F(GridChoices, typedTextStaysAsTypedWhenTheCaseDiffers)
{
    type("[more]");
    press(Qt::Key_Return);
    EXPECT_EQ(table.cells[0][0], "[more]");
}

TEST_F(GridChoices, droppedWhileItsListIsOpen)
{
    press(Qt::Key_Down, Qt::AltModifier);
    grid->dropEdit();
    EXPECT_FALSE(isListOpen());
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(focus(), "cell");
}

}  // namespace
}  // namespace penwright::test
