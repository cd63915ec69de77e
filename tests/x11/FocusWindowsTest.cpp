#include "x11/FocusTest.h"

namespace penwright::test {
namespace {

/// Another program's window and the host's, between which a window manager's keys go to and fro.
class AnotherProgram : public EmbeddedWizard {
protected:
    void SetUp() override
    {
        EmbeddedWizard::SetUp();
        other = std::make_unique<HostProcess>();
        waitUntilShown(*other);
        turnTo(host);
    }

    /// Some window managers give the focus back to the program that they turned to last, so they are asked to turn.
    static void give(HostProcess &process) { hasManager() ? activate(process) : process.obey("takefocus"); }

    void turnTo(HostProcess &process)
    {
        give(process);
        ASSERT_TRUE(spinUntil([&] { return display.focus() == process.topWindow(); }));
        settle();
    }

    /// As a key of the window manager does, which also tells it the time: what it asks for with the time of something
    /// that was earlier than the wizard's last wish is ignored.
    static void activate(const HostProcess &process)
    {
        const std::string top = std::to_string(process.topWindow());
        xdotool({"set_window", "--name", "Pressed", top, "windowactivate", "--sync", top});
    }

    void goAndComeBack()
    {
        turnTo(*other);
        activate(host);
    }

    std::unique_ptr<HostProcess> other;
};

class WithManagerAndAnotherProgram : public AnotherProgram {};

TEST_F(Focus, ofAnotherWindowIsLeftAtTheEnd)
{
    embedAndShow();
    openAnotherWindow();
    embedding.giveBack(0);
    settle();
    EXPECT_EQ(display.focus(), idOf(another));
}

TEST_F(Focus, isTakenBackFromAHostThatTakesItAsAnotherWindowCloses)
{
    embedAndShow();
    EXPECT_TRUE(isTakenBackAfter([this] {
        openAnotherWindow();
        another.close();
    }));
}

// As a window manager does that is ignored, and leaves the keyboard where it is.
TEST_F(Focus, goesToAnotherWindowThatNobodyGivesItTo)
{
    embedAndShow();
    another.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&another, 60'000));
    x11::focus(id());
    EXPECT_TRUE(spinUntil([this] { return display.focus() == idOf(another); }));
    x11::focus(id());
    another.raise();
    EXPECT_TRUE(spinUntil([this] { return display.focus() == idOf(another); }));
}

// A window that has just opened gets the keyboard after a while where no window manager gives it.
TEST_F(Focus, isLeftToAWizardThatIsPressedAsAnotherWindowOpens)
{
    embedAndShow();
    openAnotherWindow();
    clickAt(*first);
    QTest::qWait(400);
    EXPECT_TRUE(spinUntil([this] { return display.focus() == id(); }));
    typeAndExpect(*first, "8");
}

TEST_F(WithManagerAndAnotherProgram, theFocusComesBackToTheWizardThatHadIt)
{
    embedAndShow();
    for (int turn = 1; turn <= 2; ++turn) {
        goAndComeBack();
        EXPECT_TRUE(spinUntil([this] { return display.focus() == id(); })) << turn;
    }
    movePointerAway();
    first->setFocus();
    xdotool({"type", "17"});
    EXPECT_TRUE(spinUntil([this] { return first->text() == "17"; }));
}

TEST_F(WithManagerAndAnotherProgram, theFocusStaysWithAHostThatHadIt)
{
    embedAndShow();
    host.obey("takefocus");
    ASSERT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
    settle();
    goAndComeBack();
    ASSERT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
    settle();
    EXPECT_EQ(display.focus(), host.topWindow());
}

// As window managers do that let go of another program's window before they turn to the host's.
TEST_F(AnotherProgram, theFocusComesBackThoughThePointerIsOverTheHost)
{
    embedAndShow();
    other->obey("move 700 720");
    pointBeside();
    turnTo(*other);
    ASSERT_TRUE(spinUntil([this] { return !window->isActiveWindow(); }));
    other->obey("leavefocus");
    settle();
    if (display.focus() == other->topWindow())  // a manager has undone what it was not asked for
        give(host);
    else
        host.obey("takefocus");
    EXPECT_TRUE(spinUntil([this] { return display.focus() == id(); }));
}

// As window managers do that take it elsewhere before the wizard has heard that it got it.
TEST_F(AnotherProgram, theFocusComesBackToAWizardThatHadItForAMoment)
{
    embedAndShow();
    host.obey("takefocus");
    settle();
    embedding.takeFocus();
    other->obey("takefocus");
    ASSERT_TRUE(hasManager() || display.focus() == other->topWindow());
    settle();
    if (display.focus() == other->topWindow())  // else a manager has undone what it was not asked for
        give(host);
    EXPECT_TRUE(spinUntil([this] { return display.focus() == id(); }));
}

TEST_F(WithManagerAndAnotherProgram, theEndOfADialogTakesNothingFromAnotherProgram)
{
    embedAndShow();
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow() && display.focus() == idOf(box); }));
        activate(*other);
        ASSERT_TRUE(spinUntil([this] { return display.focus() == other->topWindow(); }));
        box.reject();
    });
    dialogs.show(kQuestion);
    settle();
    EXPECT_EQ(display.focus(), other->topWindow());
}

TEST_F(Focus, comesBackWhenAnotherWindowOfTheProgramIsClosed)
{
    embedAndShow();
    openAnotherWindow();
    another.close();
    // A window manager hands the focus on as it lets go of the window; a key in between would go to the host.
    ASSERT_TRUE(spinUntil([&] { return display.parentOf(idOf(another)) == display.root(); }));
    settle();
    EXPECT_TRUE(spinUntil([this] { return display.focus() == id(); }));
    typeAndExpect(*first, "42");
}

}  // namespace
}  // namespace penwright::test
