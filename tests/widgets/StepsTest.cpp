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

TEST_F(StepsTest, areForgottenWhenTheWizardStartsAgain)
{
    typeText("4");
    window->StartWizard();
    EXPECT_EQ(undoName(), "Undo");
    undo();
    EXPECT_EQ(text("txtNumLamps"), "4");
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

TEST_F(StepsTest, bringBackTheTableThatACountHasEmptied)
{
    window->ShowPage(kTiltPage);
    fillPageTwo();
    const PageText filled = texts();
    find("lmpTxtNumAngles")->setFocus();
    find<QLineEdit>("lmpTxtNumAngles")->selectAll();
    typeText("35");
    EXPECT_EQ(grid("lmpGridTiltMultiplier").model()->rowCount(), 35);
    EXPECT_EQ(undoName(), "Undo New Count");
    undo();
    EXPECT_EQ(texts(), filled);
    EXPECT_EQ(focusName(), "lmpTxtNumAngles");
    redo();
    EXPECT_EQ(grid("lmpGridTiltMultiplier").model()->rowCount(), 35);
    undo();
    // What is typed then begins at what has come back.
    typeText("12");
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    typeText("2");
    EXPECT_EQ(shown("lmpGridTiltMultiplier", 2, 0), "90");
}

TEST_F(StepsTest, bringBackTypedCellsDeletedOnesAndBlocks)
{
    const std::string name = "lmpGridTiltMultiplier";
    window->ShowPage(kTiltPage);
    fillPageTwo();
    std::vector<PageText> states{texts()};
    typeCell(name, 1, 1, "0.5");
    states.push_back(texts());
    EXPECT_EQ(undoName(), "Undo Typing");
    grid(name).goTo(2, 0);
    press(Qt::Key_Delete);
    states.push_back(texts());
    EXPECT_EQ(undoName(), "Undo Clear");
    grid(name).goTo(1, 0);
    paste("7\t8\n9\t10\n");
    states.push_back(texts());
    EXPECT_EQ(undoName(), "Undo Paste");
    for (int at = 2; at >= 0; --at) {
        undo();
        EXPECT_EQ(texts(), states[at]) << at;
    }
    EXPECT_EQ(cell(name), "1,1");
    EXPECT_EQ(focusName(), name);
    for (int at = 1; at <= 3; ++at) {
        redo();
        EXPECT_EQ(texts(), states[at]) << at;
    }
    EXPECT_EQ(cell(name), "1,0");
}

TEST_F(StepsTest, takeAppendedRowsAwayAgain)
{
    window->ShowPage(kKeywordPage);
    const PageText before = texts();
    const int rows = grid("keyGrid").model()->rowCount();
    typeCell("keyGrid", rows, 0, "[OTHER]");
    EXPECT_EQ(grid("keyGrid").model()->rowCount(), rows + 1);
    paste("a\tb\nc\td\ne\tf\n");
    const PageText pasted = texts();
    undo();
    EXPECT_EQ(grid("keyGrid").model()->rowCount(), rows + 1);
    undo();
    EXPECT_EQ(grid("keyGrid").model()->rowCount(), rows);
    EXPECT_EQ(texts(), before);
    EXPECT_EQ(cell("keyGrid"), std::to_string(rows) + ",0");
    redo();
    redo();
    EXPECT_EQ(texts(), pasted);
}

TEST_F(StepsTest, bringBackRowsAndTheDefaultsThatWentOverThem)
{
    window->ShowPage(kKeywordPage);
    std::vector<PageText> states{texts()};
    grid("keyGrid").goTo(3, 1);
    for (const auto &[key, modifiers, name] : {std::tuple(Qt::Key_Plus, Qt::ControlModifier, "Insert Row"),
                                               std::tuple(Qt::Key_Down, Qt::AltModifier, "Move Row Down"),
                                               std::tuple(Qt::Key_Up, Qt::AltModifier, "Move Row Up"),
                                               std::tuple(Qt::Key_Minus, Qt::ControlModifier, "Delete Row")}) {
        press(key, modifiers);
        states.push_back(texts());
        EXPECT_EQ(undoName(), std::string("Undo ") + name);
    }
    typeCell("keyGrid", 2, 1, "No. 7");
    states.push_back(texts());
    click("cmdDefaultLoad");
    EXPECT_EQ(undoName(), "Undo Load Defaults");
    for (auto at = states.rbegin(); at != states.rend(); ++at) {
        undo();
        EXPECT_EQ(texts(), *at);
    }
    EXPECT_EQ(undoName(), "Undo");
}

TEST_F(StepsTest, showWhatIsSaidOfTheLineThatHasComeBack)
{
    window->ShowPage(kKeywordPage);
    typeCell("keyGrid", 2, 1, "No. 7");
    grid("keyGrid").goTo(2, 1);
    EXPECT_EQ(find<QLabel>("labCharacters")->text(), "11 of 254 characters");
    undo();
    EXPECT_EQ(find<QLabel>("labCharacters")->text(), "6 of 254 characters");
}

TEST_F(StepsTest, bringBackTypeCountsAndAngles)
{
    window->ShowPage(kDistributionPage);
    std::vector<PageText> states{texts()};
    click("rdoC");
    EXPECT_EQ(undoName(), "Undo Photometric Type");
    states.push_back(texts());
    find("phoCmbVert")->setFocus();
    find<QComboBox>("phoCmbVert")->lineEdit()->selectAll();
    typeText("12");
    EXPECT_EQ(undoName(), "Undo New Count");
    states.push_back(texts());
    typeCell("phoGridVert", 1, 0, "5");
    states.push_back(texts());
    typeCell("phoGridVert", 1, 3, "7.5");
    states.push_back(texts());
    click("rdoB");
    states.push_back(texts());
    const int entries = find<QComboBox>("phoCmbVert")->count();
    for (int at = 4; at >= 0; --at) {
        undo();
        EXPECT_EQ(texts(), states[at]) << at;
        EXPECT_EQ(find("fraAngles")->isHidden(), at == 0);
        EXPECT_EQ(find<QComboBox>("phoCmbVert")->count() == 0, at == 0);
    }
    for (int at = 1; at <= 5; ++at) {
        redo();
        EXPECT_EQ(texts(), states[at]) << at;
    }
    EXPECT_EQ(find<QComboBox>("phoCmbVert")->count(), entries);
}

TEST_F(StepsTest, forgetASignThatWasRefused)
{
    window->ShowPage(kDistributionPage);
    click("rdoC");
    find("phoCmbVert")->setFocus();
    typeText("-");
    EXPECT_FALSE(find<QLabel>("labVertSign")->text().isEmpty());
    undo();
    EXPECT_EQ(find<QLabel>("labVertSign")->text(), "");
    typeText("4");
    EXPECT_EQ(grid("phoGridVert").model()->columnCount(), 4);
}

TEST_F(StepsTest, bringBackPastedCandelaAndTypedOnes)
{
    openTable();
    std::vector<PageText> states{texts()};
    fillPageFive();
    states.push_back(texts());
    EXPECT_EQ(undoName(), "Undo Paste");
    typeCell("cdaGridCd", 3, 1, "77");
    states.push_back(texts());
    EXPECT_EQ(state.CandelaWorkRecord(1).Candela(1, 3), 77);
    undo();
    EXPECT_EQ(texts(), states[1]);
    EXPECT_EQ(cell("cdaGridCd"), "3,1");
    EXPECT_EQ(state.CandelaWorkRecord(1).Candela(1, 3), 7);
    undo();
    EXPECT_EQ(texts(), states[0]);
    EXPECT_EQ(shown("cdaGridCd", 1, 1), " ");
    redo();
    redo();
    EXPECT_EQ(texts(), states[2]);
}

TEST_F(StepsTest, bringBackTheTableOfOtherAnglesWithTheAnglesOfTheRecord)
{
    openTable();
    fillPageFive();
    const PageText filled = texts();
    const PhotometricRecord before = state.PhotFiles(1);
    click("cmdBack50");
    click("rdoB");
    for (const char *list : {"phoCmbVert", "phoCmbHorz"}) {
        find(list)->setFocus();
        press(Qt::Key_Down);
    }
    click("cmdNext30");
    ASSERT_EQ(shownPage(), kCandelaPage);
    const PageText rebuilt = texts();
    EXPECT_NE(rebuilt, filled);
    EXPECT_FALSE(find("rtbHorz")->isVisible());
    EXPECT_EQ(undoName(), "Undo New Table");
    undo();
    EXPECT_EQ(texts(), filled);
    EXPECT_EQ(state.PhotFiles(1), before);
    EXPECT_TRUE(find("rtbHorz")->isVisible());
    EXPECT_EQ(focusName(), "cdaGridCd");
    redo();
    EXPECT_EQ(texts(), rebuilt);
    EXPECT_EQ(state.PhotFiles(1).PhotometricType, kTypeB);
    EXPECT_FALSE(find("rtbHorz")->isVisible());
}

TEST_F(StepsTest, goOverATableThatWasBuiltAnewOnTheWay)
{
    openTable();
    fillPageFive();
    typeCell("cdaGridCd", 2, 1, "5");
    const PageText typed = texts();
    click("cmdBack50");
    click("cmdNext30");
    undo();
    EXPECT_EQ(texts(), typed);
    undo();
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "8");
}

}  // namespace
}  // namespace penwright::test
