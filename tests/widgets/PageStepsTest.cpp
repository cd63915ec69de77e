#include "wizard/GivenUpTexts.h"
#include "wizard/PageSteps.h"

#include "widgets/GridViewTest.h"
#include "wizard/PageFields.h"
#include "wizard/StepKeys.h"

namespace penwright::test {
namespace {

/// A form of a box and a grid of texts, whose steps may take so much memory and no more.
class PageStepsTest : public GridTest {
protected:
    static constexpr std::size_t kMost = 100'000;

    void SetUp() override
    {
        before->setObjectName("box");
        show();
        fields = PageFields(window);
        steps = std::make_unique<PageSteps>(
            window, fields, [this] { ++followed; }, [this] { return isBusy; }, kMost);
        keys = std::make_unique<StepKeys>(window, fields, *steps, *new GivenUpTexts(window, fields, *steps));
    }

    /// Puts cells of a text that takes about so much memory into the grid, in an act of its own.
    void fill(char text, std::size_t bytes)
    {
        grid->apply(table.replacedBy({{std::string(1, text) + std::string(bytes, '.')}}));
        steps->endAct();
    }

    void undoAll()
    {
        while (steps->canUndo())
            steps->undo();
    }

    char first() const { return table.cells[0][0].empty() ? ' ' : table.cells[0][0][0]; }

    TextTable &table = ownTable(1, 1);
    PageFields fields;
    std::unique_ptr<PageSteps> steps;
    std::unique_ptr<StepKeys> keys;
    int followed = 0;
    bool isBusy = false;
};

TEST_F(PageStepsTest, giveUpTheOldestWhereTheyTakeTooMuch)
{
    for (const char text : {'a', 'b', 'c', 'd', 'e', 'f'})
        fill(text, 30'000);
    EXPECT_LE(steps->bytes(), kMost);
    undoAll();
    EXPECT_EQ(first(), 'c');
    EXPECT_FALSE(steps->undoAction()->isEnabled());
    EXPECT_EQ(steps->undoAction()->text(), "U&ndo");
    EXPECT_LE(steps->bytes(), kMost);
    while (steps->canRedo())
        steps->redo();
    EXPECT_EQ(first(), 'f');
}

TEST_F(PageStepsTest, giveUpOneThatTakesTooMuchByItself)
{
    fill('a', 10);
    fill('b', 2 * kMost);
    EXPECT_TRUE(steps->canUndo());
    fill('c', 10);
    EXPECT_FALSE(steps->canUndo());
    EXPECT_LE(steps->bytes(), kMost);
    fill('d', 10);
    undoAll();
    EXPECT_EQ(first(), 'c');
}

TEST_F(PageStepsTest, giveUpWhatWasUndoneLast)
{
    fill('a', 60'000);
    fill('b', 60'000);
    fill('c', 60'000);
    undoAll();
    EXPECT_EQ(first(), 'b');
    EXPECT_LE(steps->bytes(), kMost);
    steps->redo();
    EXPECT_EQ(first(), 'c');
}

TEST_F(PageStepsTest, freeTheirMemoryWithTheStepsThatAreGone)
{
    fill('a', 20'000);
    fill('b', 20'000);
    steps->undo();
    EXPECT_GT(steps->bytes(), 20'000U);
    fill('c', 10);
    EXPECT_EQ(steps->count(), 2);
    EXPECT_LT(steps->bytes(), 25'000U);
    steps->forgetAll();
    EXPECT_EQ(steps->bytes(), 0U);
}

TEST_F(PageStepsTest, areOneForAllThatChangesUntilTheEventLoopIsReached)
{
    before->setText("x");
    grid->apply(table.replacedBy({{"1"}}));
    grid->apply(table.replacedBy({{"2"}}));
    settle();
    EXPECT_EQ(steps->count(), 1);
    steps->undo();
    EXPECT_EQ(table.all() + before->text().toStdString(), "");
    EXPECT_EQ(followed, 1);
    steps->redo();
    EXPECT_EQ(table.all() + before->text().toStdString(), "2x");
}

TEST_F(PageStepsTest, areSeveralForSeveralKeysWithoutAnEventLoopBetween)
{
    grid->goTo(1, 0);
    type("1");
    press(Qt::Key_Return);
    type("2");
    press(Qt::Key_Return);
    steps->endAct();
    EXPECT_EQ(steps->count(), 2);
}

TEST_F(PageStepsTest, doNothingWhileTheWizardIsBusy)
{
    fill('a', 10);
    isBusy = true;
    steps->undo();
    EXPECT_EQ(first(), 'a');
    isBusy = false;
    steps->undo();
    EXPECT_EQ(first(), ' ');
    isBusy = true;
    steps->redo();
    EXPECT_EQ(first(), ' ');
}

TEST_F(PageStepsTest, dropAnOpenEditor)
{
    fill('a', 1);
    grid->goTo(1, 0);
    type("5");
    ASSERT_EQ(focus(), "editor");
    steps->undo();
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(first(), ' ');
    EXPECT_EQ(taken, "");
}

TEST_F(PageStepsTest, leaveTheKeysOfAnOpenEditorToIt)
{
    fill('a', 1);
    grid->goTo(1, 0);
    press(Qt::Key_F2);
    type("b");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line()->text(), "a.");
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(line()->text(), "a.b");
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(grid->isEditing());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line()->text(), "a.b");
    EXPECT_EQ(first(), 'a');
    press(Qt::Key_Escape);
    EXPECT_FALSE(grid->isEditing());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line()->text(), "a.b") << "a text that is given up is a step";
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(first(), ' ');
}

TEST_F(PageStepsTest, areMadeByAnInputMethodToo)
{
    before->setFocus();
    for (const char *text : {"4", "2"}) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(before, &event);
    }
    steps->endAct();
    EXPECT_EQ(steps->count(), 1);
    steps->undo();
    EXPECT_EQ(before->text(), "");
}

TEST_F(PageStepsTest, selectTheBlockThatWasChanged)
{
    grid->apply(table.replacedBy({{"a", "b"}, {"c", "d"}, {"e", "f"}}));
    steps->forgetAll();
    grid->goTo(1, 0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    before->setFocus();
    steps->undo();
    EXPECT_EQ(table.all(), "a|b / c|d / e|f");
    EXPECT_EQ(focus(), "cell");
    EXPECT_EQ(grid->selectionModel()->selectedIndexes().size(), 4);
}

}  // namespace
}  // namespace penwright::test
