#include "x11/FocusTest.h"

namespace penwright::test {
namespace {

/// When a widget was pressed last, in the display's time.
class PressTime : public QObject {
public:
    explicit PressTime(QWidget &widget) { widget.installEventFilter(this); }
    quint64 time() const { return m_time; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            m_time = static_cast<QMouseEvent *>(event)->timestamp();
        return false;
    }

private:
    quint64 m_time = 0;
};

TEST_F(Focus, theFirstShowingTakesIt)
{
    embedAndShow();
    first->setFocus();
    typeAndExpect(*first, "abc");
}

TEST_F(Focus, aClickTakesIt)
{
    embedAndShow();
    giveFocusToHost();
    clickAt(*second);
    typeAndExpect(*second, "xyz");
}

TEST_F(Focus, isTakenWhenAsked)
{
    embedAndShow();
    first->setFocus();
    giveFocusToHost();
    embedding.takeFocus();
    typeAndExpect(*first, "abc");
}

TEST_F(Focus, isTakenAgainAfterHidingAndShowing)
{
    embedAndShow();
    first->setFocus();
    ASSERT_TRUE(spinUntil([this] { return first->hasFocus(); }));
    window->hide();
    ASSERT_TRUE(spinUntil([this] { return display.focus() != id(); }));
    show();
    typeAndExpect(*first, "abc");
}

TEST_F(Focus, isTakenOnceTheHostIsOnTheScreen)
{
    embed();
    embedding.MoveWindow(0, 0, {700, 400});
    host.obey("unmap");
    window->show();
    first->setFocus();
    embedding.takeFocus();
    settle();
    EXPECT_NE(display.focus(), id());
    host.obey("map");
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id(); }));
    typeAndExpect(*first, "abc");
}

// So does a window manager that turns late to a window that comes back.
TEST_F(Focus, isTakenBackFromAHostThatTakesItAsItComesBack)
{
    embed();
    EXPECT_TRUE(isTakenBackAfter([this] {
        host.obey("unmap");
        window->show();
        embedding.takeFocus();
        host.obey("map");
    }));
}

// So does a window manager that is busy, and turns late to the host that it sees pressed.
TEST_F(Focus, isTakenBackFromAHostThatTakesItAsTheWizardIsPressed)
{
    embedAndShow();
    EXPECT_TRUE(isTakenBackAfter([this] {
        giveFocusToHost();
        clickAt(*second);
    }));
}

// Whoever takes it again and again would have keys go here and there.
TEST_F(Focus, isLeftToAHostThatInsists)
{
    embedAndShow();
    giveFocusToHost();
    clickAt(*second);
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id() && window->isActiveWindow(); }));
    int taken = 0;
    do {
        host.obey("takefocus");
        ++taken;
    } while (QTest::qWaitFor([this] { return display.focus() == id() && window->isActiveWindow(); }, 2500));
    EXPECT_LE(taken, 4);
}

TEST_F(Focus, isLetGoWhenTheRestOfTheHostIsPressed)
{
    embedAndShow();
    clickBeside();
    ASSERT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
    movePointerAway();
    xdotool({"type", "7"});
    settle();
    EXPECT_EQ(first->text().toStdString(), "");
    clickAt(*first);
    typeAndExpect(*first, "12");
}

// A host whose tab is clicked gives it at the release, which may come before the wizard has heard of the press.
TEST_F(Focus, isKeptWhenTheHostHasGivenItSinceThePress)
{
    embedAndShow();
    giveFocusToHost();
    pointBeside();
    Process click({"xdotool", "click", "1"});
    ASSERT_EQ(click.waitForEnd(), 0);
    x11::focus(id());
    ASSERT_EQ(display.focus(), id());
    settle();
    EXPECT_EQ(display.focus(), id());
}

TEST_F(NestedHost, isLetGoWhenTheRestOfTheTopLevelWindowIsPressed)
{
    embedAndShow();
    clickBeside();
    EXPECT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
}

TEST_F(Focus, isKeptWhenTheDesktopIsPressed)
{
    embedAndShow();
    movePointerAway();
    if (!hasManager())  // which takes the keyboard to itself
        xdotool({"click", "1"});
    settle();
    EXPECT_EQ(display.focus(), id());
}

TEST_F(Focus, goesToTheHostAtTheEnd)
{
    embedAndShow();
    embedding.giveBack(0);
    EXPECT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
}

TEST_F(NestedHost, theFocusGoesToTheTopLevelWindowAtTheEnd)
{
    embedAndShow();
    embedding.giveBack(0);
    EXPECT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
}

TEST_F(WithManager, aClickOnTheHostTakesTheFocusAway)
{
    embedAndShow();
    clickBeside();
    EXPECT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
}

// What a window manager does about a press, with the time of that press, is not ignored as older.
TEST_F(Focus, isTakenAtTheTimeOfThePress)
{
    embedAndShow();
    giveFocusToHost();
    PressTime pressed(*second);
    clickAt(*second);
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id(); }));
    host.obey("takefocus " + std::to_string(pressed.time()));
    EXPECT_EQ(display.focus(), host.topWindow());
}

/// The host tells when its user pressed something last, as what opened the wizard did.
class UserTime : public Focus, public testing::WithParamInterface<const char *> {};

INSTANTIATE_TEST_SUITE_P(Places, UserTime, testing::Values("usertime ", "usertimeapart "));

// The display ignores what is asked for with an earlier time than that of the last change of the focus.
TEST_P(UserTime, isThatAtWhichTheFocusIsTaken)
{
    embedAndShow();
    giveFocusToHost();
    const x11::Time pressed = displayTime();
    host.obey(GetParam() + std::to_string(pressed));
    ASSERT_TRUE(spinUntil([&] { return displayTime() > pressed; }));
    embedding.takeFocus();
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id(); }));
    host.obey("takefocus " + std::to_string(pressed));
    EXPECT_EQ(display.focus(), host.topWindow());
}

}  // namespace
}  // namespace penwright::test
