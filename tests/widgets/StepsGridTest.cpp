#include "support/Process.h"
#include "widgets/StepsTest.h"

namespace penwright::test {
namespace {

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
    buildOtherTable();
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

TEST_F(StepsTest, bringBackTheTableThatASecondStartHasEmptied)
{
    openTable();
    fillPageFive();
    typeCell("cdaGridCd", 2, 1, "5");
    const PageText filled = texts();
    const PhotometricRecord before = state.CandelaWorkRecord(1);
    window->StartWizard();
    window->ShowPage(kDistributionPage);
    click("cmdNext30");
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(shown("cdaGridCd", 2, 1), " ");
    EXPECT_EQ(state.CandelaWorkRecord(1).Candela(1, 2), 0);
    const PageText blank = texts();
    undo();
    EXPECT_EQ(texts(), filled);
    EXPECT_EQ(state.CandelaWorkRecord(1), before);
    undo();
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "8");
    redo();
    redo();
    EXPECT_EQ(texts(), blank);
    EXPECT_EQ(state.CandelaWorkRecord(1).Candela(1, 2), 0);
}

TEST_F(StepsTest, goOverATableThatWasBuiltAnewOnTheWay)
{
    openTable();
    fillPageFive();
    typeCell("cdaGridCd", 2, 1, "5");
    click("cmdBack50");
    click("cmdNext30");
    undo();
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "8");
    click("cmdBack50");
    click("cmdNext30");
    redo();
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "5") << "the pages were only turned";
}

TEST_F(StepsTest, bringBackTheBlanksThatATurnOfThePageHasFilled)
{
    openTable();
    typeCell("cdaGridCd", 1, 1, "9");
    const PageText typed = texts();
    click("cmdBack50");
    click("cmdNext30");
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "0");
    undo();
    EXPECT_EQ(texts(), typed);
    click("cmdBack50");
    click("cmdNext30");
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "0");
    redo();
    EXPECT_EQ(redoName(), "Redo") << "the redone table is the latest";
    undo();
    undo();
    click("cmdBack50");
    click("cmdNext30");
    redo();
    EXPECT_EQ(shown("cdaGridCd", 1, 1), "9") << "what was undone can be redone";
}

TEST_F(StepsTest, sayNothingOfDefaultsThatTheStoreDoesNotTakeBack)
{
    window->ShowPage(kKeywordPage);
    typeCell("keyGrid", 2, 1, "No. 7");
    click("cmdSaveDefaults");
    Process({"sqlite3", folder.file("settings.sqlite3"),
             "CREATE TRIGGER refusal BEFORE DELETE ON setting BEGIN SELECT RAISE(ABORT, 'refused'); END"})
        .waitForEnd();
    undo();
    EXPECT_EQ(find<QLabel>("note2")->text().toStdString(), "");
}

TEST_F(StepsTest, bringBackTheDefaultsThatWereSavedOverWithALineOfIt)
{
    const auto saved = [this] { return store.read("Lumentor32", "Tool_DefaultKeywords", "B[TEST]", "(none)"); };
    const auto note = [this] { return find<QLabel>("note2")->text().toStdString(); };
    window->ShowPage(kKeywordPage);
    typeCell("keyGrid", 2, 1, "No. 7");
    click("cmdSaveDefaults");
    typeCell("keyGrid", 2, 1, "No. 8");
    click("cmdSaveDefaults");
    EXPECT_EQ(undoName(), "Undo Save As Defaults");
    EXPECT_EQ(saved(), "No. 8");
    undo();
    EXPECT_EQ(saved(), "No. 7");
    EXPECT_EQ(note(), "The former defaults are back.");
    redo();
    EXPECT_EQ(saved(), "No. 8");
    EXPECT_EQ(note(), "");
    for (int step = 0; step < 3; ++step)
        undo();
    EXPECT_EQ(saved(), "(none)");
    EXPECT_EQ(shown("keyGrid", 2, 1), "No. 7");
}

}  // namespace
}  // namespace penwright::test
