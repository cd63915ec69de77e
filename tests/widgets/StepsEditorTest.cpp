#include "widgets/StepsTest.h"

namespace penwright::test {
namespace {

TEST_F(StepsTest, keepWhatIsBeingTypedAndABlockPastedOverItApart)
{
    window->ShowPage(kTiltPage);
    fillPageTwo();
    const PageText before = texts();
    grid("lmpGridTiltMultiplier").goTo(1, 0);
    typeText("0.25");
    paste("7\t8\n9\t10\n");
    EXPECT_EQ(undoName(), "Undo Paste");
    undo();
    EXPECT_EQ(shown("lmpGridTiltMultiplier", 1, 0), "0.25");
    undo();
    EXPECT_EQ(texts(), before);
    EXPECT_EQ(cell("lmpGridTiltMultiplier"), "1,0");
}

TEST_F(StepsTest, bringBackTheCellOverWhichABlockTookTheRoomOfAHalfTypedText)
{
    openTable();
    const PageText before = texts();
    typeText("-");
    paste("9\n8\n7\n6\n5\n4\n3\n2\n1\n0\n");
    EXPECT_EQ(dialogs.transcript, "");
    undo();
    EXPECT_EQ(texts(), before);
}

TEST_F(StepsTest, keepWhatIsBeingTypedAndATablePastedOverItApart)
{
    openTable();
    const PageText before = texts();
    typeText("77");
    paste("9\n8\n7\n6\n5\n4\n3\n2\n1\n0\n");
    EXPECT_EQ(undoName(), "Undo Paste");
    undo();
    EXPECT_EQ(shown("cdaGridCd", 1, 1), "77");
    EXPECT_EQ(undoName(), "Undo Typing");
    undo();
    EXPECT_EQ(texts(), before);
    redo();
    redo();
    EXPECT_EQ(shown("cdaGridCd", 1, 1), "9");
}

TEST_F(StepsTest, leaveWhatIsBeingTypedOpenWhereATableIsRefused)
{
    openTable();
    typeText("77");
    paste("1\t2\n");
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript.find("values read; need") != std::string::npos, true) << dialogs.transcript;
    EXPECT_TRUE(grid("cdaGridCd").isEditing());
    typeText("5");
    press(Qt::Key_Return);
    EXPECT_EQ(shown("cdaGridCd", 1, 1), "775");
}

TEST_F(StepsTest, bringBackTheTextThatEscapeHasGivenUp)
{
    window->ShowPage(kKeywordPage);
    typeCell("keyGrid", 2, 1, "No. 7");
    grid("keyGrid").goTo(3, 1);
    typeText("Night Lab");
    press(Qt::Key_Escape);
    EXPECT_EQ(undoName(), "Undo Escape");
    undo();
    ASSERT_TRUE(grid("keyGrid").isEditing());
    typeText("s");
    undo();
    EXPECT_EQ(grid("keyGrid").halfTyped().value().text, "Night Lab") << "in the editor the key is the editor's";
    typeText("s");
    press(Qt::Key_Return);
    EXPECT_EQ(shown("keyGrid", 3, 1), "Night Labs");
}

TEST_F(StepsTest, goBackOverATextThatWasGivenUpAndComeToItAgain)
{
    window->ShowPage(kKeywordPage);
    typeCell("keyGrid", 2, 1, "No. 7");
    const PageText typed = texts();
    grid("keyGrid").goTo(3, 1);
    typeText("Night");
    press(Qt::Key_Escape);
    undo();
    typeText(" Lab");
    press(Qt::Key_Escape);
    EXPECT_EQ(redoName(), "Redo") << "the longer text takes the place of the shorter one";
    undo();
    undo();
    EXPECT_FALSE(grid("keyGrid").isEditing());
    EXPECT_EQ(shown("keyGrid", 2, 1), "");
    redo();
    EXPECT_EQ(texts(), typed);
    redo();
    undo();
    EXPECT_EQ(grid("keyGrid").halfTyped().value().text, "Night Lab");
}

TEST_F(StepsTest, areNotLostForATextThatIsGivenUpAfterUndo)
{
    window->ShowPage(kKeywordPage);
    typeCell("keyGrid", 2, 1, "No. 7");
    undo();
    grid("keyGrid").goTo(3, 1);
    typeText("x");
    press(Qt::Key_Escape);
    EXPECT_EQ(redoName(), "Redo Typing");
    redo();
    EXPECT_EQ(shown("keyGrid", 2, 1), "No. 7");
}

TEST_F(StepsTest, areNoneForAnEditorThatIsLeftAsItWasOpened)
{
    window->ShowPage(kKeywordPage);
    typeCell("keyGrid", 2, 1, "No. 7");
    grid("keyGrid").goTo(2, 1);
    press(Qt::Key_F2);
    press(Qt::Key_Escape);
    EXPECT_EQ(undoName(), "Undo Typing");
}

TEST_F(StepsTest, takeWhatIsBeingTypedWhenTheWizardStartsAgain)
{
    window->ShowPage(kKeywordPage);
    grid("keyGrid").goTo(2, 1);
    typeText("No. 7");
    window->StartWizard();
    EXPECT_EQ(shown("keyGrid", 2, 1), "No. 7");
}

TEST_F(StepsTest, takeAWordForACountAsOneGoOfTyping)
{
    window->ShowPage(kDistributionPage);
    click("rdoC");
    find("phoCmbVert")->setFocus();
    typeText("4");
    const PageText before = texts();
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("hello");
    EXPECT_EQ(texts().at("phoCmbVert"), "1");
    undo();
    EXPECT_EQ(texts(), before);
}

}  // namespace
}  // namespace penwright::test
