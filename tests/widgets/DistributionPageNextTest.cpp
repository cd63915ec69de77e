// What Next and Back of page 4 do.
#include "widgets/DistributionPageTest.h"

namespace penwright::test {
namespace {

class DistributionNext : public DistributionPageTest {
protected:
    static constexpr const char *kMissing =
        "Vertical and Horizontal values needed before Next screen.\r\nAll fields not complete.\r\n";

    void fill(const std::vector<std::string> &verticalAngles, const std::vector<std::string> &horizontalAngles)
    {
        typeInto(vertical(), std::to_string(verticalAngles.size()));
        typeAngles(verticalGrid(), verticalAngles);
        typeInto(horizontal(), std::to_string(horizontalAngles.size()));
        typeAngles(horizontalGrid(), horizontalAngles);
    }
};

TEST_F(DistributionNext, acceptedAnglesAreStoredAndThePageTurned)
{
    click("rdoC");
    pick(vertical(), "10, Downlight 0 to 90, 10 degree increments");
    pick(horizontal(), "05, Quad Symmetric 0 to 90, 22.5 degree increment");
    EXPECT_EQ(warningsOfNext(), "");
    PhotometricRecord expected;
    expected.PhotometricType = 1;
    expected.NumVertAngles = 10;
    expected.VertAngles = {0, 10, 20, 30, 40, 50, 60, 70, 80, 90};
    expected.NumHorzAngles = 5;
    expected.HorAngles = {0, 22.5, 45, 67.5, 90};
    EXPECT_EQ(record(), expected);
    EXPECT_EQ(shownPage(), kCandelaPage);
}

TEST_F(DistributionNext, replacesTheAnglesOfTheRecordWholesale)
{
    record().NumVertAngles = 5;
    record().VertAngles = {1, 2, 3, 4, 5};
    click("rdoB");
    fill({"-90", "90"}, {"0", "2e1", "90"});
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().PhotometricType, 2);
    EXPECT_EQ(record().NumVertAngles, 2);
    EXPECT_EQ(record().VertAngles, (OneBased<float>{-90, 90}));
    EXPECT_EQ(record().HorAngles, (OneBased<float>{0, 20, 90}));
}

TEST_F(DistributionNext, isFilledInAndLeftByKeyboardAlone)
{
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    ASSERT_TRUE(find<QRadioButton>("rdoB")->isChecked());
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab, Qt::ControlModifier);
    ASSERT_EQ(focusName(), "phoCmbHorz");
    typeText("2");
    press(Qt::Key_Tab);
    typeText("0");
    press(Qt::Key_Tab);
    typeText("90");
    EXPECT_EQ(warningsOf([] { press(Qt::Key_N, Qt::AltModifier); }), "");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(record().PhotometricType, 2);
    EXPECT_EQ(record().NumVertAngles, 10);
    EXPECT_EQ(record().HorAngles, (OneBased<float>{0, 90}));
}

TEST_F(DistributionNext, withoutATypeItGetsTheFocusButNoChoice)
{
    EXPECT_EQ(warningsOfNext(), kMissing);
    EXPECT_EQ(focusName(), "rdoC");
    EXPECT_FALSE(find<QRadioButton>("rdoC")->isChecked());
    EXPECT_EQ(shownPage(), kDistributionPage);
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(DistributionNext, listWithoutAnglesGetsTheFocus)
{
    click("rdoC");
    EXPECT_EQ(warningsOfNext(), kMissing);
    EXPECT_EQ(focusName(), "phoCmbVert");
    typeInto(vertical(), "2");
    EXPECT_EQ(warningsOfNext(), kMissing);
    EXPECT_EQ(focusName(), "phoCmbHorz");
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(DistributionNext, everyFaultIsToldInOrderAndTheFirstCellGetsTheFocus)
{
    click("rdoC");
    fill({"0", "90", "60", "x"}, {"45", "270"});
    EXPECT_EQ(warningsOfNext(),
              "Vertical angles must end at 90 or 180\r\n"
              "Vert: Angles not in ascending order, 2 > 3\r\n"
              "Vert: cell 4 is empty or not a number\r\n"
              "Horizontal angles must start at 0 or 90\r\n"
              "Horizontal angles must end at 0, 90, 180 or 360\r\n");
    EXPECT_EQ(focusName(), "phoGridVert");
    EXPECT_EQ(verticalGrid()->currentColumn(), 3);
    EXPECT_EQ(cells(verticalGrid()), "0|90|60|x");
    EXPECT_EQ(shownPage(), kDistributionPage);
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(DistributionNext, correctedCellsPass)
{
    click("rdoC");
    fill({"0", "90"}, {"0", "45", "30", "90"});
    EXPECT_EQ(warningsOfNext(), "Horz: Angles not in ascending order, 2 > 3\r\n");
    EXPECT_EQ(focusName(), "phoGridHorz");
    EXPECT_EQ(horizontalGrid()->currentColumn(), 2);
    typeText("60");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().HorAngles, (OneBased<float>{0, 45, 60, 90}));
}

TEST_F(DistributionNext, typeDecidesAtTheMomentOfNext)
{
    click("rdoC");
    fill({"0", "180"}, {"0", "90"});
    click("rdoB");
    EXPECT_EQ(warningsOfNext(), "Vertical angles must end at 90\r\n");
    click("rdoC");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().PhotometricType, 1);
}

TEST_F(DistributionNext, angleBeyondASingleIsOverflow)
{
    click("rdoC");
    fill({"0", "45", "1e39", "90"}, {"0"});
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kDistributionPage] + "|0] Vert: cell 3: Overflow\n");
    EXPECT_EQ(focusName(), "phoGridVert");
    EXPECT_EQ(verticalGrid()->currentColumn(), 2);
    EXPECT_EQ(shownPage(), kDistributionPage);
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(DistributionNext, clearedCellIsEmpty)
{
    click("rdoC");
    fill({"0", "45", "90"}, {"0"});
    verticalGrid()->goTo(1, 1);
    press(Qt::Key_Delete);
    EXPECT_EQ(warningsOfNext(), "Vert: cell 2 is empty or not a number\r\nVert: cell 3 is empty or not a number\r\n");
}

TEST_F(DistributionNext, backTakesTheOpenEditorAndChecksNothing)
{
    click("rdoC");
    typeInto(vertical(), "2");
    verticalGrid()->goTo(1, 1);
    typeText("90");
    click("cmdBack30");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(cells(verticalGrid()), " |90");
    EXPECT_EQ(record(), PhotometricRecord());
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(DistributionNext, unloadingDropsAHalfTypedCell)
{
    click("rdoC");
    typeInto(vertical(), "2");
    verticalGrid()->goTo(1, 0);
    typeText("45");
    closing.begin();
    ASSERT_TRUE(runUntilEnd().has_value());
    EXPECT_EQ(cells(verticalGrid()), " | ");
}

/// What two picks leave: each is a change of the text and a pick, and each of these makes the list anew.
const std::string kRedone = "redo\nredo\nredo\nredo\n";

/// A page of its own, whose turns and builds are noted in their order.
class DistributionBuild : public WizardTest, public Navigator {
protected:
    void ShowPage(int index) override { noted += "page " + std::to_string(index) + "\n"; }
    void ConfirmCancel() override {}
    void ShowHelp(int) override {}
    void showHelpAt(const std::string &) override {}
    void goToPlace(const RecordPlace &) override {}
    bool ReDo() override { return noted += "redo\n", false; }
    bool isBusy() const override { return false; }

    std::string noted;
};

TEST_F(DistributionBuild, everyAcceptedNextBuildsThePageThatFollows)
{
    startWizard();
    DistributionPage page({state, dialogs, *this, window->dlgWarn()},
                          [this] { noted += "build " + std::to_string(state.PhotFiles(1).NumVertAngles) + "\n"; });
    page.show();
    QTest::mouseClick(page.findChild<QRadioButton *>("rdoC"), Qt::LeftButton);
    for (const char *name : {"phoCmbVert", "phoCmbHorz"})
        QTest::keyClick(page.findChild<QComboBox *>(name), Qt::Key_Down);
    for (int i = 0; i < 2; ++i)
        QTest::mouseClick(page.findChild<QPushButton *>("cmdNext30"), Qt::LeftButton);
    EXPECT_EQ(noted, kRedone + "build 10\npage 4\nbuild 10\npage 4\n");
}

TEST_F(DistributionBuild, failedBuildLeavesThePage)
{
    startWizard();
    DistributionPage page({state, dialogs, *this, window->dlgWarn()}, [] { throw overflow(); });
    page.show();
    QTest::mouseClick(page.findChild<QRadioButton *>("rdoC"), Qt::LeftButton);
    for (const char *name : {"phoCmbVert", "phoCmbHorz"})
        QTest::keyClick(page.findChild<QComboBox *>(name), Qt::Key_Down);
    QTest::mouseClick(page.findChild<QPushButton *>("cmdNext30"), Qt::LeftButton);
    EXPECT_EQ(noted, kRedone);
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kDistributionPage] + "|0] Overflow\n");
}

}  // namespace
}  // namespace penwright::test
