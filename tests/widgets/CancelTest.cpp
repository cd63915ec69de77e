#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

const std::string kQuestion = "[Canceling New File Wizard|52] Changes will be lost. Are you sure you want to cancel?\n";
const std::string kCloseRemove = "CloseRemove,PenwrightPE,7";

class Cancel : public WizardTest {
protected:
    /// Asks from the running event loop, as a click does, and runs it to the end of the program.
    std::optional<int> askAndRun(Answer answer)
    {
        dialogs.answers = {answer};
        QTimer::singleShot(0, window.get(), [this] { click("cmdCancel"); });
        return runUntilEnd();
    }
};

TEST_F(Cancel, yesTellsTheHostGivesTheWindowBackAndEnds)
{
    startWizard();
    EXPECT_EQ(askAndRun(Answer::Yes), 0);
    EXPECT_EQ(taken, std::vector{kCloseRemove});
    EXPECT_EQ(embedding.transcript, "parent 123\nfocus\ngive back 4711\n");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Cancel, windowIsGivenBackOnceTheHostHasTakenTheLastWord)
{
    startWizard();
    std::vector<std::vector<std::string>> takenBefore;
    embedding.onGiveBack = [&] { takenBefore.push_back(taken); };
    EXPECT_EQ(askAndRun(Answer::Yes), 0);
    ASSERT_EQ(takenBefore.size(), 1U);
    EXPECT_EQ(takenBefore[0], std::vector{kCloseRemove});
}

TEST_F(Cancel, yesOfAToolThatIsNotEmbeddedTellsTheHostAndEnds)
{
    state.start.EmbedInHost = false;
    startWizard();
    EXPECT_EQ(askAndRun(Answer::Yes), 0);
    EXPECT_EQ(taken, std::vector{kCloseRemove});
    EXPECT_EQ(embedding.transcript, "focus\n");
}

TEST_F(Cancel, noStaysWhereItIs)
{
    startWizard();
    window->ShowPage(kKeywordPage);
    dialogs.answers = {Answer::No};
    click("cmdCancel20");
    EXPECT_EQ(dialogs.transcript, kQuestion);
    EXPECT_FALSE(closing.isClosing());
    EXPECT_EQ(shownPage(), kKeywordPage);
}

// Kept on purpose: the answer changes only whether the host is told.
TEST_F(Cancel, noOfAToolThatIsNotEmbeddedEndsItUntold)
{
    state.start.EmbedInHost = false;
    startWizard();
    EXPECT_EQ(askAndRun(Answer::No), 0);
    EXPECT_TRUE(taken.empty());
    EXPECT_EQ(hostInbox(), "");
}

TEST_F(Cancel, escapeAsksFromEveryControlOfAPage)
{
    startWizard();
    for (const std::string name :
         {"txtNumLamps", "lmpCmbShape", "rdoFeet", "chkIncludeTilt", "cmdHelp10", "cmdNext10"}) {
        dialogs.transcript.clear();
        dialogs.answers = {Answer::No};
        find(name)->setFocus();
        QTest::keyClick(find(name), Qt::Key_Escape);
        QCoreApplication::processEvents();
        EXPECT_EQ(dialogs.transcript, kQuestion) << name;
    }
}

TEST_F(Cancel, escapeInAnOpenListOnlyClosesTheList)
{
    startWizard();
    auto *shapes = find<QComboBox>("lmpCmbShape");
    shapes->showPopup();
    QWidget *popup = QApplication::activePopupWidget();
    ASSERT_TRUE(popup);
    QTest::keyClick(popup, Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_EQ(dialogs.transcript, "");
    dialogs.answers = {Answer::No};
    QTest::keyClick(shapes, Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript, kQuestion);
}

TEST_F(Cancel, closeButtonOfAWindowOfItsOwnAsks)
{
    startWizard();
    dialogs.answers = {Answer::No};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript, kQuestion);
}

/// The question as it is on the screen.
class CancelBox : public WizardTest {
protected:
    void SetUp() override
    {
        useRealDialogs();
        startWizard();
    }

    /// Asks by Escape and does something with the box once it is open.
    std::optional<int> whileAsked(const std::function<void(QMessageBox &)> &act)
    {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box && box->isActiveWindow()) {  // a letter's shortcut goes to the active window alone
                look.stop();
                act(*box);
            }
        });
        look.start(5);
        QTest::keyClick(find("lmpCmbShape"), Qt::Key_Escape);
        return runUntilEnd();
    }
};

TEST_F(CancelBox, showsTitleTextAndButtonsAndTheYKeyUnloads)
{
    EXPECT_EQ(whileAsked([](QMessageBox &box) {
                  EXPECT_EQ(box.windowTitle(), "Canceling New File Wizard");
                  EXPECT_EQ(box.text(), "Changes will be lost. Are you sure you want to cancel?");
                  EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
                  EXPECT_EQ(box.icon(), QMessageBox::Warning);
                  QTest::keyClick(&box, Qt::Key_Y, Qt::AltModifier);
              }),
              0);
    EXPECT_EQ(taken, std::vector{kCloseRemove});
}

TEST_F(CancelBox, closeOfTheHostDismissesItAndUnloads)
{
    EXPECT_EQ(whileAsked([this](QMessageBox &) { sendCommand("CLOSE"); }), 0);
    EXPECT_EQ(taken, std::vector{kCloseRemove});
}

TEST_F(CancelBox, secondEscapeIsNoAndAsksNoSecondTime)
{
    int boxes = 0;
    whileAsked([&](QMessageBox &box) {
        ++boxes;
        QTest::keyClick(&box, Qt::Key_Escape);
        QTimer::singleShot(0, window.get(), [&] {
            boxes += QApplication::activeModalWidget() ? 1 : 0;
            QCoreApplication::exit(0);
        });
    });
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(closing.isClosing());
}

}  // namespace
}  // namespace penwright::test
