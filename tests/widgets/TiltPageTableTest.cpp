#include "widgets/TiltPageTest.h"

namespace penwright::test {
namespace {

TEST_F(TiltPageTest, countSizesTheGridWithZeros)
{
    typeCount("3");
    EXPECT_EQ(cells(), "0|0 / 0|0 / 0|0");
    typeColumn(0, {"0", "45", "90"});
    typeColumn(1, {"1", ".95", "0.9"});
    EXPECT_EQ(cells(), "0|1 / 45|0.95 / 90|0.9");
    count()->setFocus();
    count()->end(false);
    type("2");
    EXPECT_EQ(grid()->model()->rowCount(), 32);
    EXPECT_TRUE(cells().starts_with("0|0 / 0|0 / 0|0"));
}

TEST_F(TiltPageTest, countTypedAnewKeepsTheTable)
{
    typeCount("3");
    typeColumn(0, {"0", "45", "90"});
    typeCount("3");
    EXPECT_EQ(cells(), "0|0 / 45|0 / 90|0");
    press(Qt::Key_Backspace);
    type("3");
    EXPECT_EQ(cells(), "0|0 / 45|0 / 90|0");
    typeCount("6");
    EXPECT_EQ(cells(), "0|0 / 0|0 / 0|0 / 0|0 / 0|0 / 0|0");
}

TEST_F(TiltPageTest, countOfTwoDigitsTypedAnewKeepsTheTable)
{
    typeCount("12");
    grid()->goTo(12, 0);
    type("90");
    press(Qt::Key_Return);
    const std::string filled = cells();
    typeCount("1");
    EXPECT_EQ(cells(), "0|0");
    type("2");
    EXPECT_EQ(cells(), filled);
}

TEST_F(TiltPageTest, anyOtherCountLeavesTheGridAndTellsNothing)
{
    fill({"0", "90"});
    typeColumn(1, {"1", "0.5"});
    for (const char *text : {"0", "-3", "abc", "40000"}) {
        count()->setText(text);
        EXPECT_EQ(cells(), "0|1 / 90|0.5") << text;
    }
    count()->clear();
    EXPECT_EQ(cells(), "0|1 / 90|0.5");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(TiltPageTest, tabWalksDownTheColumnAndOutOfTheGrid)
{
    typeCount("2");
    grid()->goTo(1, 1);
    press(Qt::Key_Tab);
    EXPECT_EQ(currentCell(), "2,1");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(currentCell(), "1,1");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "cmdCancel15");
}

TEST_F(TiltPageTest, escapeInACellAsksOnlyTheSecondTime)
{
    dialogs.answers = {Answer::No};
    typeCount("1");
    grid()->goTo(1, 0);
    type("7");
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(cells(), "0|0");
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(dialogs.transcript,
              "[Canceling New File Wizard|52] Changes will be lost. Are you sure you want to cancel?\n");
}

TEST_F(TiltPageTest, enterBelongsToTheGrid)
{
    fill({"0", "90"});
    grid()->goTo(2, 0);
    press(Qt::Key_Return);
    type("180");
    press(Qt::Key_Return);
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_EQ(cells(), "0|0 / 180|0");
}

TEST_F(TiltPageTest, deleteSetsCellsToZero)
{
    fill({"0", "45", "90"});
    grid()->goTo(2, 0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(cells(), "0|0 / 0|0 / 0|0");
}

TEST_F(TiltPageTest, pastesTwoColumnsFromASpreadsheet)
{
    typeCount("3");
    grid()->goTo(1, 0);
    QApplication::clipboard()->setText("0\t1\n45\t0.95\n90\t0.9\n");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(cells(), "0|1 / 45|0.95 / 90|0.9");
    QApplication::clipboard()->setText("10\t2\n20\ttwo");
    press(Qt::Key_V, Qt::ControlModifier);
    settle();
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kTiltPage] + "|0] Row 2, Factor: \"two\" is not a number.\n");
    EXPECT_EQ(cells(), "0|1 / 45|0.95 / 90|0.9");
}

TEST_F(TiltPageTest, unloadingDropsAHalfTypedCell)
{
    fill({"0", "90"});
    grid()->goTo(2, 0);
    type("abc");
    closing.begin();
    ASSERT_TRUE(runUntilEnd().has_value());
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(cells(), "0|0 / 90|0");
}

TEST_F(TiltPageTest, blockPastedBeforeACountIsToldWhatIsMissing)
{
    QApplication::clipboard()->setText("0\t1\n90\t0.8");
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton);
    press(Qt::Key_V, Qt::ControlModifier);
    auto *hint = find<QLabel>("lmpHintTilt");
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text(), "Type the number of angles first, then paste again.");
    typeCount("2");
    EXPECT_FALSE(hint->isVisible());
}

}  // namespace
}  // namespace penwright::test
