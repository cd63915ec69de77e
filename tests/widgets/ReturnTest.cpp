// Where the focus goes when a page is shown, and what the next key does there.
#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

class Return : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        fillPageOne();
    }

    static void next() { press(Qt::Key_N, Qt::AltModifier); }
    static void back() { press(Qt::Key_B, Qt::AltModifier); }

    /// The selected text of the box or list that has the focus.
    static std::string selected()
    {
        auto *list = qobject_cast<QComboBox *>(QApplication::focusWidget());
        auto *box = list ? list->lineEdit() : qobject_cast<QLineEdit *>(QApplication::focusWidget());
        return box ? box->selectedText().toStdString() : "no box";
    }

    int angles() { return find<GridView>("lmpGridTiltMultiplier")->model()->rowCount(); }
};

TEST_F(Return, toABoxHasItsWholeTextSelected)
{
    find("txtWatt")->setFocus();
    press(Qt::Key_End);
    next();
    back();
    EXPECT_EQ(focusName(), "txtWatt");
    typeText("4");
    EXPECT_EQ(text("txtWatt"), "4");
}

TEST_F(Return, goesToTheFieldAlsoWhenAButtonTurnedThePage)
{
    find("txtHeight")->setFocus();
    click("cmdNext10");
    click("cmdBack20");
    EXPECT_EQ(focusName(), "txtHeight");
    EXPECT_EQ(selected(), "1");
}

TEST_F(Return, goesToTheFirstFieldWhenTheOneLeftTakesNoFocus)
{
    find("txtHeight")->setFocus();
    next();
    find("txtHeight")->setEnabled(false);
    back();
    EXPECT_EQ(focusName(), "txtNumLamps");
    EXPECT_EQ(selected(), "1");
}

TEST_F(Return, byNextBeginsAtTheFirstFieldWithItsTextSelected)
{
    window->ShowPage(kTiltPage);
    fillPageTwo();
    back();
    find<QAbstractButton>("chkIncludeTilt")->setChecked(true);
    next();
    EXPECT_EQ(focusName(), "lmpTxtNumAngles");
    EXPECT_EQ(selected(), "2");
}

TEST_F(Return, neverLeadsToTheCountOfATiltTable)
{
    find<QAbstractButton>("chkIncludeTilt")->setChecked(true);
    next();
    fillPageTwo();
    find("lmpTxtNumAngles")->setFocus();
    next();
    ASSERT_EQ(shownPage(), kKeywordPage);
    back();
    EXPECT_EQ(focusName(), "lmpGridTiltMultiplier");
    typeText("5");
    EXPECT_EQ(angles(), 2);
}

TEST_F(Return, leadsToTheCountOfAnEmptyTiltTable)
{
    window->ShowPage(kTiltPage);
    window->ShowPage(kKeywordPage);
    state.PhotFiles(1).TiltIncl = true;
    back();
    EXPECT_EQ(focusName(), "lmpTxtNumAngles");
}

TEST_F(Return, overTheTiltPageOfANewRecordTicksItsBox)
{
    next();
    state.PhotFiles(1).TiltIncl = true;  // as the host's "DATACHANGED" does
    back();
    ASSERT_EQ(shownPage(), kTiltPage);
    back();
    EXPECT_TRUE(find<QAbstractButton>("chkIncludeTilt")->isChecked());
    next();
    EXPECT_EQ(shownPage(), kTiltPage);
}

TEST_F(Return, pastTheTiltPageForANewRecordClearsItsBox)
{
    find<QAbstractButton>("chkIncludeTilt")->setChecked(true);
    next();
    fillPageTwo();
    next();
    state.PhotFiles(1).TiltIncl = false;
    back();
    ASSERT_EQ(shownPage(), kLampPage);
    EXPECT_FALSE(find<QAbstractButton>("chkIncludeTilt")->isChecked());
}

TEST_F(Return, leadsToTheCellThatWasLeft)
{
    window->ShowPage(kTiltPage);
    fillPageTwo();
    auto *grid = find<GridView>("lmpGridTiltMultiplier");
    grid->goTo(2, 1);
    typeText("0.5");  // the editor is open still
    click("cmdNext15");
    ASSERT_EQ(shownPage(), kKeywordPage);
    back();
    EXPECT_EQ(focusName(), "lmpGridTiltMultiplier");
    EXPECT_EQ(grid->currentRow(), 2);
    EXPECT_EQ(grid->currentColumn(), 1);
}

TEST_F(Return, toAListOfAnglesHasItsWholeTextSelected)
{
    window->ShowPage(kDistributionPage);
    fillPageFour();
    find("phoCmbVert")->setFocus();
    find<QComboBox>("phoCmbVert")->lineEdit()->deselect();
    next();
    ASSERT_EQ(shownPage(), kCandelaPage);
    back();
    EXPECT_EQ(focusName(), "phoCmbVert");
    EXPECT_EQ(selected(), find<QComboBox>("phoCmbVert")->currentText().toStdString());
}

TEST_F(Return, byAnotherStartBeginsAtTheFirstFieldWithItsTextSelected)
{
    find("txtWatt")->setFocus();
    next();
    window->StartWizard();
    EXPECT_EQ(focusName(), "txtNumLamps");
    EXPECT_EQ(selected(), "1");
}

}  // namespace
}  // namespace penwright::test
