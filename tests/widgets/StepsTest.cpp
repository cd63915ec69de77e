#include "widgets/StepsTest.h"

namespace penwright::test {
namespace {

TEST_F(StepsTest, haveNothingToUndoOnAPageThatHasJustBeenStarted)
{
    for (const int index : {kLampPage, kTiltPage, kKeywordPage, kDistributionPage}) {
        window->ShowPage(index);
        EXPECT_EQ(undoName(), "Undo") << index;
        EXPECT_EQ(redoName(), "Redo") << index;
        const PageText before = texts();
        undo();
        redo();
        EXPECT_EQ(texts(), before) << index;
    }
    openTable();
    EXPECT_EQ(undoName(), "Undo");
}

TEST_F(StepsTest, stayWhenTheWizardStartsAgain)
{
    typeText("4");
    window->StartWizard();
    EXPECT_EQ(undoName(), "Undo Typing");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "");
}

TEST_F(StepsTest, stayWhenThePageIsLeftAndComeBackTo)
{
    fillPageOne();
    find("txtWatt")->setFocus();
    typeText("250");
    click("cmdNext10");
    ASSERT_EQ(shownPage(), kKeywordPage);
    click("cmdBack20");
    EXPECT_EQ(undoName(), "Undo Typing");
    undo();
    EXPECT_EQ(text("txtWatt"), "1");
    EXPECT_EQ(focusName(), "txtWatt");
}

TEST_F(StepsTest, keepWhatIsTypedInOneGoAsOne)
{
    typeText("12");
    press(Qt::Key_Tab);
    typeText("340");
    press(Qt::Key_Backspace);
    undo();
    EXPECT_EQ(text("txtNumLamps") + "|" + text("txtLumPerLamp"), "12|");
    EXPECT_EQ(focusName(), "txtLumPerLamp");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "");
    EXPECT_EQ(focusName(), "txtNumLamps");
    redo();
    EXPECT_EQ(text("txtNumLamps"), "12");
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text("txtLumPerLamp"), "34");
}

TEST_F(StepsTest, endAGoWhereTheBoxIsClickedOrSomethingIsUndone)
{
    typeText("12");
    QTest::mouseClick(find("txtNumLamps"), Qt::LeftButton);
    typeText("3");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "12");
    typeText("4");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "12");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "");
}

TEST_F(StepsTest, areNoneWhereWhatWasTypedIsGoneAgain)
{
    typeText("1");
    press(Qt::Key_Backspace);
    EXPECT_EQ(undoName(), "Undo");
}

TEST_F(StepsTest, bringBackATypedTextThatWasTakenAwayAtOnce)
{
    const std::function<void()> ways[]{[] {
                                           press(Qt::Key_A, Qt::ControlModifier);
                                           press(Qt::Key_Delete);
                                       },
                                       [] {
                                           press(Qt::Key_A, Qt::ControlModifier);
                                           press(Qt::Key_X, Qt::ControlModifier);
                                       },
                                       [] {
                                           press(Qt::Key_A, Qt::ControlModifier);
                                           typeText("7");
                                       }};
    for (const auto &takeAway : ways) {
        typeText("12345");
        takeAway();
        EXPECT_NE(text("txtNumLamps"), "12345");
        undo();
        EXPECT_EQ(text("txtNumLamps"), "12345");
        undo();
        EXPECT_EQ(text("txtNumLamps"), "");
    }
}

TEST_F(StepsTest, bringBackWhatOneKeyHeldOnHasDeleted)
{
    typeText("12345");
    for (int key = 0; key < 5; ++key)
        press(Qt::Key_Backspace);
    EXPECT_EQ(text("txtNumLamps"), "");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "1234") << "the first one mends a slip";
    undo();
    EXPECT_EQ(text("txtNumLamps"), "");
}

TEST_F(StepsTest, ofAPasteIntoABoxAreNotThoseOfTheTypingAroundIt)
{
    typeText("12");
    paste("34");
    typeText("5");
    EXPECT_EQ(text("txtNumLamps"), "12345");
    EXPECT_EQ(undoName(), "Undo Typing");
    undo();
    EXPECT_EQ(undoName(), "Undo Paste");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "12");
}

TEST_F(StepsTest, selectWhatHasComeBackSoThatAKeyReplacesIt)
{
    typeText("12");
    press(Qt::Key_Tab);
    typeText("3");
    undo();
    undo();
    redo();
    typeText("5");
    EXPECT_EQ(text("txtNumLamps"), "5");
    EXPECT_EQ(redoName(), "Redo");
}

TEST_F(StepsTest, bringBackTheTextsThatAShapeHasReplaced)
{
    fillPageOne();
    auto *shape = find<QComboBox>("lmpCmbShape");
    shape->setFocus();
    press(Qt::Key_Down);
    const PageText first = texts();
    press(Qt::Key_Down);
    EXPECT_EQ(undoName(), "Undo Luminous shape");
    undo();
    EXPECT_EQ(texts(), first);
    undo();
    EXPECT_EQ(text("txtWidth") + text("txtLength") + text("txtHeight"), "111");
    EXPECT_EQ(shape->currentIndex(), -1);
    EXPECT_EQ(find<QLabel>("lmpLabWidth")->text(), "Width:");
    EXPECT_TRUE(find("txtWidth")->isEnabled());
    EXPECT_EQ(focusName(), "lmpCmbShape");
    redo();
    EXPECT_EQ(texts(), first);
    EXPECT_NE(find<QLabel>("lmpLabWidth")->text(), "Width:");
}

TEST_F(StepsTest, bringBackOptionsAndCheckBoxes)
{
    click("rdoMeters");
    EXPECT_EQ(undoName(), "Undo Units");
    find("chkIncludeTilt")->setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(undoName(), "Undo Include Luminaire Tilt Information");
    undo();
    EXPECT_FALSE(find<QAbstractButton>("chkIncludeTilt")->isChecked());
    EXPECT_EQ(focusName(), "chkIncludeTilt");
    undo();
    EXPECT_TRUE(find<QAbstractButton>("rdoFeet")->isChecked());
    EXPECT_FALSE(find<QAbstractButton>("rdoMeters")->isChecked());
    EXPECT_EQ(find("txtWidth")->accessibleDescription(), "Feet");
    redo();
    EXPECT_TRUE(find<QAbstractButton>("rdoMeters")->isChecked());
    EXPECT_EQ(find("txtWidth")->accessibleDescription(), "Meters");
}

TEST_F(StepsTest, bringBackNoOptionWhereNoneWasChosen)
{
    window->ShowPage(kTiltPage);
    click("l2lg1");
    EXPECT_EQ(undoName(), "Undo Lamp To Luminaire Geometry");
    undo();
    for (const char *option : {"l2lg0", "l2lg1", "l2lg2"})
        EXPECT_FALSE(find<QAbstractButton>(option)->isChecked()) << option;
    click("l2lg0");
    EXPECT_TRUE(find<QAbstractButton>("l2lg0")->isChecked());
    click("l2lg2");
    EXPECT_FALSE(find<QAbstractButton>("l2lg0")->isChecked());
}

}  // namespace
}  // namespace penwright::test
