#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

struct Turn {
    int from;
    std::string button;
    bool tiltIncluded;
    int to;
};

void PrintTo(const Turn &turn, std::ostream *out)
{
    *out << turn.button << (turn.tiltIncluded ? " with tilt" : " without tilt");
}

class Navigation : public WizardTest, public testing::WithParamInterface<Turn> {
protected:
    void SetUp() override
    {
        startWizard();
        fillPageOne();
        goTo(GetParam().from);
        state.PhotFiles(1).TiltIncl = GetParam().tiltIncluded;
        find<QAbstractButton>("chkIncludeTilt")->setChecked(GetParam().tiltIncluded);
    }

    /// Shows a page with values that pass its checks.
    void goTo(int page)
    {
        window->ShowPage(page == kCandelaPage ? kDistributionPage : page);
        if (page == kTiltPage)
            fillPageTwo();
        if (page == kDistributionPage || page == kCandelaPage)
            fillPageFour();
        if (page == kCandelaPage) {
            click("cmdNext30");
            fillPageFive();
        }
        ASSERT_EQ(shownPage(), page);
    }
};

INSTANTIATE_TEST_SUITE_P(Table, Navigation,
                         testing::Values(Turn{0, "cmdBack10", false, 0}, Turn{0, "cmdNext10", true, 1},
                                         Turn{0, "cmdNext10", false, 2}, Turn{1, "cmdBack15", true, 0},
                                         Turn{1, "cmdNext15", true, 2}, Turn{2, "cmdBack20", true, 1},
                                         Turn{2, "cmdBack20", false, 0}, Turn{2, "cmdNext20", false, 3},
                                         Turn{3, "cmdBack30", false, 2}, Turn{3, "cmdNext30", false, 4},
                                         Turn{4, "cmdBack50", false, 3}, Turn{4, "cmdNext50", false, 5},
                                         Turn{5, "cmdBack80", false, 4}, Turn{5, "cmdNext80", false, 5}));

TEST_P(Navigation, byTheMouse)
{
    click(GetParam().button);
    EXPECT_EQ(shownPage(), GetParam().to);
}

TEST_P(Navigation, byAltAndLetter)
{
    const bool isNext = GetParam().button.rfind("cmdNext", 0) == 0;
    QTest::keyClick(QApplication::focusWidget(), isNext ? Qt::Key_N : Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(shownPage(), GetParam().to);
}

TEST_P(Navigation, byEnterOnTheFocusedButton)
{
    auto *button = find<QPushButton>(GetParam().button);
    button->setFocus();
    ASSERT_EQ(button->hasFocus(), button->isEnabled());
    if (button->isEnabled())
        QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(shownPage(), GetParam().to);
}

class Wizard : public WizardTest {};

TEST_F(Wizard, nextOnPageOneSetsWhetherTiltIsIncluded)
{
    startWizard();
    fillPageOne();
    QTest::keyClick(find("chkIncludeTilt"), Qt::Key_Space);
    click("cmdNext10");
    EXPECT_TRUE(state.PhotFiles(1).TiltIncl);
    click("cmdBack15");
    QTest::keyClick(find("chkIncludeTilt"), Qt::Key_Space);
    click("cmdNext10");
    EXPECT_FALSE(state.PhotFiles(1).TiltIncl);
}

TEST_F(Wizard, errorInAHandlerIsOneMessageUnderTheCaption)
{
    startWizard();
    fillPageOne();
    state.PhotFiles.clear();
    click("cmdNext10");
    EXPECT_EQ(dialogs.transcript, "[New Photometric file: (1 of 6) General Info|0] Subscript out of range\n");
    EXPECT_EQ(shownPage(), kLampPage);
}

/// A check box that Enter ticks, as some desktops have it.
struct EnterCheckBox : QCheckBox {
    using QCheckBox::QCheckBox;
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return)
            click();
        else
            QCheckBox::keyPressEvent(event);
    }
};

/// A page with a text box, as the pages that are typed into have them, and a box to tick.
struct TextPage : PageFrame {
    explicit TextPage(const PageContext &context) : PageFrame(kCandelaPage, context)
    {
        box = new QLineEdit(formArea());
        tick = new EnterCheckBox(formArea());
        addButtons([this] { ++nextCount; }, {});
    }
    QLineEdit *box;
    EnterCheckBox *tick;
    int nextCount = 0;
};

TEST_F(Wizard, enterPressesNextWhereTheDesktopWouldTickABoxWithIt)
{
    loadWindow();
    TextPage page(window->pageContext());
    page.show();
    page.tick->setFocus();
    QTest::keyClick(page.tick, Qt::Key_Return);
    EXPECT_EQ(page.nextCount, 1);
    EXPECT_FALSE(page.tick->isChecked());
    QTest::keyClick(page.tick, Qt::Key_Space);
    EXPECT_TRUE(page.tick->isChecked());
}

TEST_F(Wizard, enterInATextBoxPressesNext)
{
    loadWindow();
    TextPage page(window->pageContext());
    page.show();
    page.box->setFocus();
    QTest::keyClick(page.box, Qt::Key_Return);
    QTest::keyClick(page.box, Qt::Key_Enter);
    EXPECT_EQ(page.nextCount, 2);
}

TEST_F(Wizard, enterPressesNextFromEveryFieldOfAForm)
{
    startWizard();
    fillPageOne();
    for (const char *field : {"txtNumLamps", "txtHeight", "lmpCmbShape", "rdoFeet", "chkIncludeTilt"}) {
        window->ShowPage(kLampPage);
        find(field)->setFocus();
        press(Qt::Key_Return);
        EXPECT_EQ(shownPage(), kKeywordPage) << field;
    }
    EXPECT_FALSE(find<QAbstractButton>("chkIncludeTilt")->isChecked());
}

TEST_F(Wizard, enterOnAnotherButtonPressesThatOne)
{
    startWizard();
    fillPageOne();
    find("cmdHelp10")->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(help.topics.size(), 1u);
}

TEST_F(Wizard, enterInAGridBelongsToTheGrid)
{
    startWizard();
    window->ShowPage(kTiltPage);
    fillPageTwo();
    find<GridView>("lmpGridTiltMultiplier")->goTo(1, 0);
    press(Qt::Key_Return);
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_EQ(find<GridView>("lmpGridTiltMultiplier")->currentRow(), 2);
}

TEST_F(Wizard, buttonsAreRefusedWhileAPostWaits)
{
    startWizard();
    fillPageOne();
    // What a screen reader presses comes past the filter that holds keys and clicks off.
    const auto press = [this] { return find<QPushButton>("cmdNext10")->click(), true; };
    EXPECT_EQ(wait.until(press, std::chrono::seconds(10)), WaitEnd::Done);
    EXPECT_EQ(shownPage(), kLampPage);
    press();
    EXPECT_EQ(shownPage(), kKeywordPage);
}

TEST_F(Wizard, buttonsAreRefusedWhileADialogIsOpen)
{
    startWizard();
    fillPageOne();
    QDialog dialog(window.get());
    dialog.setModal(true);
    dialog.show();
    find<QPushButton>("cmdNext10")->click();
    find<QPushButton>("cmdCancel")->click();
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(dialogs.transcript, "");
    dialog.hide();
    find<QPushButton>("cmdNext10")->click();
    EXPECT_EQ(shownPage(), kKeywordPage);
}

TEST_F(Wizard, buttonsAreRefusedWhileUnloading)
{
    startWizard();
    fillPageOne();
    closing.begin();
    find<QPushButton>("cmdNext10")->click();
    EXPECT_EQ(shownPage(), kLampPage);
}

}  // namespace
}  // namespace penwright::test
