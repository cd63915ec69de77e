#include "widgets/TiltPageTest.h"

namespace penwright::test {
namespace {

TEST_F(TiltPageTest, acceptedPageIsStoredAndTurned)
{
    fill({"0", "45", "90"});
    typeColumn(1, {"1", ".95", "0.9"});
    click("l2lg1");
    EXPECT_EQ(warningsOfNext(), "");
    PhotometricRecord expected;
    expected.TiltIncl = true;
    expected.LampToLuminaireGeometry = 2;
    expected.NumTiltAngles = 3;
    expected.TiltAngles = {0, 45, 90};
    expected.TiltMultipliers = {1, 0.95F, 0.9F};
    EXPECT_EQ(record(), expected);
    EXPECT_EQ(shownPage(), kKeywordPage);
}

TEST_F(TiltPageTest, isFilledInAndLeftByKeyboardAlone)
{
    type("2");
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    type("0");
    press(Qt::Key_Return);
    type("180");
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    type("1");
    press(Qt::Key_Tab);
    type("0.5");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(record().LampToLuminaireGeometry, 2);
    EXPECT_EQ(record().TiltAngles, (OneBased<float>{0, 180}));
    EXPECT_EQ(record().TiltMultipliers, (OneBased<float>{1, 0.5F}));
}

TEST_F(TiltPageTest, nextTakesTheOpenEditor)
{
    fill({"0", "90"});
    grid()->goTo(2, 1);
    type("0.75");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().TiltMultipliers, (OneBased<float>{0, 0.75F}));
}

TEST_F(TiltPageTest, faultyCountIsToldAloneAndGetsTheFocus)
{
    EXPECT_EQ(warningsOfNext(), "Number of Tilt Angles is empty.\r\n");
    EXPECT_EQ(focusName(), "lmpTxtNumAngles");
    typeCount("-2.5");
    EXPECT_EQ(warningsOfNext(),
              "Number of Tilt Angles must be greater than zero.\r\n"
              "Number of Tilt Angles must be a whole number (1, 2, 3...)\r\n");
    EXPECT_EQ(count()->selectedText(), "-2.5");
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(TiltPageTest, missingGeometryGetsTheFocusButNoSelection)
{
    typeCount("2");
    typeColumn(0, {"0", "90"});
    EXPECT_EQ(warningsOfNext(), "Please select a lamp to luminaire geometry.\r\n");
    EXPECT_EQ(focusName(), "l2lg0");
    EXPECT_FALSE(find<QRadioButton>("l2lg0")->isChecked());
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(TiltPageTest, firstFaultyAngleGetsTheFocus)
{
    fill({"0", "45", "45", "90"});
    EXPECT_EQ(warningsOfNext(), "Angles must be in ascending order, #2 greater than #3\r\n");
    EXPECT_EQ(focusName(), "lmpGridTiltMultiplier");
    EXPECT_EQ(currentCell(), "3,0");
    type("60");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().TiltAngles, (OneBased<float>{0, 45, 60, 90}));
}

TEST_F(TiltPageTest, countBeyondSixteenBitsIsOverflow)
{
    fill({"0", "90"});
    typeCount("40000");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kTiltPage] + "|0] Number of Tilt Angles: Overflow\n");
    EXPECT_EQ(focusName(), "lmpTxtNumAngles");
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(TiltPageTest, refusedCellStopsNext)
{
    fill({"0", "45", "90"});
    grid()->goTo(3, 0);
    type("abc");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_EQ(dialogs.transcript, "");
    settle();
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kTiltPage] + "|0] Row 3, Angle: \"abc\" is not a number.\n");
    EXPECT_EQ(currentCell(), "3,0");
    EXPECT_EQ(focusName(), "lmpGridTiltMultiplier");
    EXPECT_EQ(cells(), "0|0 / 45|0 / 90|0");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(shownPage(), kKeywordPage);
}

TEST_F(TiltPageTest, backTakesAValidEditAndChecksNothing)
{
    fill({"5", "3"});
    grid()->goTo(1, 1);
    type("0.5");
    click("cmdBack15");
    EXPECT_EQ(shownPage(), kLampPage);
    window->ShowPage(kTiltPage);
    EXPECT_EQ(cells(), "5|0.5 / 3|0");
    EXPECT_EQ(record(), PhotometricRecord());
    grid()->goTo(1, 0);
    type("abc");
    click("cmdBack15");
    settle();
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(dialogs.transcript, "");
    window->ShowPage(kTiltPage);
    EXPECT_EQ(cells(), "5|0.5 / 3|0");
}

TEST_F(TiltPageTest, mostAnglesArePossible)
{
    typeCount("32767");
    EXPECT_EQ(grid()->model()->rowCount(), 32767);
    std::string block;
    for (int i = 0; i < 32767; ++i)
        block += std::to_string(i == 32766 ? 90.0 : i / 400.0) + "\t1\n";
    grid()->goTo(1, 0);
    QApplication::clipboard()->setText(QString::fromStdString(block));
    press(Qt::Key_V, Qt::ControlModifier);
    click("l2lg2");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(record().NumTiltAngles, 32767);
    EXPECT_EQ(record().TiltAngles(32767), 90);
    EXPECT_EQ(record().LampToLuminaireGeometry, 3);
}

}  // namespace
}  // namespace penwright::test
