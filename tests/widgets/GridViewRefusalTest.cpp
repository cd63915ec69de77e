#include "widgets/GridViewTest.h"

namespace penwright::test {
namespace {

const std::string kRefused = "[PenwrightPE|0] no x1 in A2\n";

/// A grid whose cell A2 is edited to a text that is refused.
class Refusal : public GridTest {
protected:
    void SetUp() override
    {
        table.cells = {{"A1", "B1"}, {"A2", "B2"}, {"A3", "B3"}};
        show();
        grid->goTo(2, 0);
        type("x1");
    }

    void expectCellHasAttention()
    {
        EXPECT_EQ(current(), "A2");
        EXPECT_EQ(focus(), "cell");
        EXPECT_EQ(shown(2, 0), "A2");
        EXPECT_EQ(taken, "");
    }

    TextTable &table = ownTable(3, 2);
};

TEST_F(Refusal, isToldOnceAfterTheKeyThatCommitted)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down, Qt::Key_PageUp}) {
        dialogs.transcript.clear();
        if (!grid->isEditing())
            type("x1");
        press(key);
        EXPECT_EQ(dialogs.transcript, "") << key;
        settle();
        EXPECT_EQ(dialogs.transcript, kRefused) << key;
        settle();
        EXPECT_EQ(dialogs.transcript, kRefused) << key;
        expectCellHasAttention();
    }
}

TEST_F(Refusal, waitsForTheReleaseOfTheMouse)
{
    QTest::mousePress(before, Qt::LeftButton);
    settle();
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(focus(), "before");
    QTest::mouseRelease(before, Qt::LeftButton);
    settle();
    EXPECT_EQ(dialogs.transcript, kRefused);
    expectCellHasAttention();
}

TEST_F(Refusal, clickOnAnotherCellComesBack)
{
    clickCell(3, 1);
    settle();
    EXPECT_EQ(dialogs.transcript, kRefused);
    expectCellHasAttention();
}

TEST_F(Refusal, focusChangeByProgramTellsIt)
{
    before->setFocus();
    settle();
    EXPECT_EQ(dialogs.transcript, kRefused);
    expectCellHasAttention();
}

TEST_F(Refusal, commitAnswersFalseAndTellsOnce)
{
    EXPECT_FALSE(grid->commitEdit());
    EXPECT_FALSE(grid->isEditing());
    EXPECT_EQ(dialogs.transcript, "");
    settle();
    EXPECT_EQ(dialogs.transcript, kRefused);
    EXPECT_TRUE(grid->commitEdit());
}

TEST_F(Refusal, buttonPressedByMouseSeesIt)
{
    std::string seen;
    QObject::connect(after, &QPushButton::clicked, [&] { seen += grid->commitEdit() ? "taken " : "refused "; });
    QTest::mouseClick(after, Qt::LeftButton);
    EXPECT_EQ(seen, "refused ");
    EXPECT_EQ(dialogs.transcript, "");
    settle();
    EXPECT_EQ(dialogs.transcript, kRefused);
    expectCellHasAttention();
    QTest::mouseClick(after, Qt::LeftButton);
    EXPECT_EQ(seen, "refused taken ");
    EXPECT_EQ(dialogs.transcript, kRefused);
}

TEST_F(Refusal, isForgottenWhereOnlyValidTextIsTaken)
{
    QObject::connect(after, &QPushButton::clicked, [&] { grid->commitEditIfValid(); });
    QTest::mouseClick(after, Qt::LeftButton);
    settle();
    grid->setFocus();
    type("x2");
    grid->commitEditIfValid();
    settle();
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(shown(2, 0), "A2");
    type("5");
    grid->commitEditIfValid();
    EXPECT_EQ(shown(2, 0), "5");
}

TEST_F(Refusal, waitsForTheDialogThatTheButtonOpened)
{
    QDialog question(&window);
    std::string whileOpen = "(never)";
    QObject::connect(after, &QPushButton::clicked, [&] { question.exec(); });
    QTimer::singleShot(0, &question, [&] {
        settle();
        whileOpen = dialogs.transcript;
        question.reject();
    });
    QTest::mouseClick(after, Qt::LeftButton);
    settle();
    EXPECT_EQ(whileOpen, "");
    EXPECT_EQ(dialogs.transcript, kRefused);
}

TEST_F(Refusal, whileUnloadingNothingMoves)
{
    dialogs.answers = {Answer::Dismissed};
    press(Qt::Key_Return);
    after->setFocus();
    settle();
    EXPECT_EQ(focus(), "after");
}

TEST_F(Refusal, hidingThePageForgetsIt)
{
    press(Qt::Key_Return);
    grid->hide();
    settle();
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(Refusal, theNextTextIsTaken)
{
    press(Qt::Key_Return);
    settle();
    type("5");
    press(Qt::Key_Return);
    EXPECT_EQ(shown(2, 0), "5");
    EXPECT_EQ(current(), "A3");
}

}  // namespace
}  // namespace penwright::test
