#include "grid/GridView.h"
#include "widgets/WizardTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {
namespace {

class TiltPageTest : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        window->ShowPage(kTiltPage);
    }

    QLineEdit *count() { return find<QLineEdit>("lmpTxtNumAngles"); }
    GridView *grid() { return find<GridView>("lmpGridTiltMultiplier"); }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// Sends each character to what has the focus by then: the first one may open an editor.
    static void type(const std::string &text)
    {
        for (const char character : text)
            QTest::keyClick(QApplication::focusWidget(), character);
    }
    static void settle() { QCoreApplication::processEvents(); }

    void typeCount(const std::string &text)
    {
        count()->setFocus();
        count()->selectAll();
        type(text);
    }

    /// Types one column's values from its first cell on, each ended by Tab.
    void typeColumn(int column, const std::vector<std::string> &texts)
    {
        grid()->goTo(1, column);
        for (const std::string &text : texts) {
            type(text);
            press(Qt::Key_Tab);
        }
    }

    /// Fills the page by typing: count, angles, and the first geometry.
    void fill(const std::vector<std::string> &angles)
    {
        typeCount(std::to_string(angles.size()));
        typeColumn(0, angles);
        click("l2lg0");
    }

    /// What the grid shows: "angle|factor / ...".
    std::string cells()
    {
        std::string text;
        const QAbstractItemModel &model = *grid()->model();
        for (int row = 0; row < model.rowCount(); ++row)
            text += (row ? " / " : "") + model.index(row, 0).data().toString().toStdString() + "|" +
                    model.index(row, 1).data().toString().toStdString();
        return text;
    }
    std::string currentCell()
    {
        return std::to_string(grid()->currentRow()) + "," + std::to_string(grid()->currentColumn());
    }

    std::string warningsOfNext()
    {
        return warningsOf([this] { click("cmdNext15"); });
    }

    PhotometricRecord &record() { return state.PhotFiles(1); }
};

TEST_F(TiltPageTest, hasItsControlsWithTheirCaptions)
{
    EXPECT_EQ(find<QGroupBox>("lmpFraTlt")->title(), "Tilt Information");
    EXPECT_EQ(find<QLabel>("lmpLabNumTiltAngles")->text(), "Number Of Angles");
    EXPECT_EQ(find<QLabel>("lmpLabNumTiltAngles")->buddy(), count());
    EXPECT_EQ(find<QLabel>("lmpLabTltLampToLum")->text(), "Lamp To Luminaire Geometry:");
    EXPECT_EQ(find<QLabel>("lmpLabTltLampToLum")->buddy(), find("l2lg0"));
    EXPECT_EQ(find<QRadioButton>("l2lg0")->text(), "Vertical");
    EXPECT_EQ(find<QRadioButton>("l2lg1")->text(), "Horizontal Along The 90-degree Plane");
    EXPECT_EQ(find<QRadioButton>("l2lg2")->text(), "Horizontal Along The 0-degree Plane");
    EXPECT_EQ(find<QLabel>("Label1")->text(),
              "Tilt information is for HID fixtures whose lamps change output in relation to their orientation and "
              "tilt");
    EXPECT_EQ(grid()->model()->headerData(0, Qt::Horizontal).toString(), "Angle");
    EXPECT_EQ(grid()->model()->headerData(1, Qt::Horizontal).toString(), "Factor");
}

TEST_F(TiltPageTest, beginsEmptyWithTheCountAndNoGeometry)
{
    EXPECT_EQ(focusName(), "lmpTxtNumAngles");
    EXPECT_EQ(count()->text(), "");
    EXPECT_EQ(cells(), "");
    for (const char *button : {"l2lg0", "l2lg1", "l2lg2"})
        EXPECT_FALSE(find<QRadioButton>(button)->isChecked());
}

TEST_F(TiltPageTest, clickIntoTheCountSelectsAll)
{
    typeCount("12");
    QTest::mouseClick(count(), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(count()->selectedText(), "12");
}

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

TEST_F(TiltPageTest, tabOrderFollowsTheEye)
{
    fill({"0", "90"});
    count()->setFocus();
    std::vector<std::string> walked;
    for (int i = 0; i < 7; ++i) {
        walked.push_back(focusName());
        press(Qt::Key_Tab, focusName() == "lmpGridTiltMultiplier" ? Qt::ControlModifier : Qt::NoModifier);
    }
    EXPECT_EQ(walked, (std::vector<std::string>{"lmpTxtNumAngles", "l2lg0", "lmpGridTiltMultiplier", "cmdCancel15",
                                                "cmdHelp15", "cmdNext15", "cmdBack15"}));
}

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
