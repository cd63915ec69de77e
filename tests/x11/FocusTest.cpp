#include <QMessageBox>

#include "platform/x11/X11Window.h"

#include "x11/EmbeddedWizard.h"

namespace penwright::test {
namespace {

const MessageBox kQuestion{.text = "Lose <b>all</b>?", .flags = kYesNo + kExclamation, .title = "A && title"};

class Focus : public EmbeddedWizard {
protected:
    /// Typed with the pointer far away, so that only the focus can lead the keys to the wizard.
    void typeAndExpect(QLineEdit &box, const std::string &text)
    {
        movePointerAway();
        xdotool({"type", text});
        EXPECT_TRUE(spinUntil([&] { return box.text().toStdString() == text; })) << box.text().toStdString();
    }

    void giveFocusToHost()
    {
        host.obey("takefocus");
        ASSERT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
    }

    /// As the help window is: of this program, a top-level window of its own, and at work.
    void openAnotherWindow()
    {
        another.resize(300, 200);
        another.move(900, 600);
        another.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&another));
        another.activateWindow();
        x11::focus(static_cast<std::uint32_t>(another.winId()));
        ASSERT_TRUE(spinUntil([this] { return another.isActiveWindow() && display.focus() == another.winId(); }));
    }

    QWidget another;
};

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

class NestedHost : public EmbeddedWizard {
protected:
    NestedHost() : EmbeddedWizard(HostProcess::Shape::Nested) {}
};

class WithManager : public EmbeddedWizard {
protected:
    /// Where a top-level window's frame stands among all frames; greater is higher.
    long stackingOf(std::uint32_t inFrame) const
    {
        std::uint32_t frame = inFrame;
        while (display.parentOf(frame) != display.root())
            frame = display.parentOf(frame);
        const auto frames = display.childrenOf(display.root());
        return std::find(frames.begin(), frames.end(), frame) - frames.begin();
    }
};

std::uint32_t idOf(const QWidget &widget)
{
    return static_cast<std::uint32_t>(widget.winId());
}

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

TEST_F(Focus, staysWithADialogWhileTheHostIsPressed)
{
    embedAndShow();
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow() && display.focus() == idOf(box); }));
        box.move(900, 600);
        clickBeside();
        settle();
        EXPECT_TRUE(spinUntil([&] { return display.focus() == idOf(box); }));
        box.reject();
    });
    dialogs.show(kQuestion);
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

TEST_F(Focus, ofAnotherWindowIsLeftAtTheEnd)
{
    embedAndShow();
    openAnotherWindow();
    embedding.giveBack(0);
    settle();
    EXPECT_EQ(display.focus(), idOf(another));
}

TEST_F(Focus, comesBackAfterAMessageBox)
{
    embedAndShow();
    first->setFocus();
    whenDialogIsUp([](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow(); }));
        xdotool({"key", "n"});
    });
    EXPECT_EQ(dialogs.show(kQuestion), Answer::No);
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id(); }));
    typeAndExpect(*first, "abc");
}

// So does a window manager that sees the end of the dialog late.
TEST_F(Focus, isTakenBackFromAHostThatTakesItAsADialogEnds)
{
    embedAndShow();
    first->setFocus();
    whenDialogIsUp([](QDialog &box) { box.reject(); });
    dialogs.show(kQuestion);
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id() && window->isActiveWindow(); }));
    host.obey("takefocus");
    ASSERT_EQ(display.focus(), host.topWindow());
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id(); }));
    typeAndExpect(*first, "abc");
}

TEST_F(Focus, isTakenBackFromAHostThatTakesItAsAnotherWindowCloses)
{
    embedAndShow();
    openAnotherWindow();
    another.close();
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id() && window->isActiveWindow(); }));
    host.obey("takefocus");
    ASSERT_EQ(display.focus(), host.topWindow());
    EXPECT_TRUE(spinUntil([this] { return display.focus() == id(); }));
}

TEST_F(Focus, isLeftToAHostThatIsClickedAsADialogEnds)
{
    embedAndShow();
    whenDialogIsUp([](QDialog &box) { box.reject(); });
    dialogs.show(kQuestion);
    ASSERT_TRUE(spinUntil([this] { return display.focus() == id() && window->isActiveWindow(); }));
    movePointerAway();
    xdotool({"mousedown", "1"});
    host.obey("takefocus");
    ASSERT_TRUE(spinUntil([this] { return !window->isActiveWindow(); }));
    EXPECT_EQ(display.focus(), host.topWindow());
    xdotool({"mouseup", "1"});
}

TEST_F(Focus, goesToTheSaveDialogsNameBox)
{
    embedAndShow();
    whenDialogIsUp([&](QDialog &dialog) {
        ASSERT_TRUE(spinUntil([&] { return dialog.isActiveWindow(); }));
        xdotool({"type", "fresh"});
        auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
        EXPECT_TRUE(spinUntil([&] { return name->text() == "fresh"; }));
        xdotool({"key", "Return"});
    });
    const auto chosen =
        dialogs.chooseSaveName({.title = "Save", .filter = "IES files (*.ies)|*.ies;*.IES", .defaultSuffix = "ies"});
    EXPECT_EQ(chosen, std::string(std::getenv("HOME")) + "/fresh.ies");
}

TEST_F(Focus, isNotTakenFromADialog)
{
    embedAndShow();
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow() && display.focus() == idOf(box); }));
        embedding.takeFocus();
        settle();
        EXPECT_EQ(display.focus(), idOf(box));
        box.reject();
    });
    dialogs.show(kQuestion);
}

TEST_F(Focus, staysWithADialogThatTheWizardIsClickedUnder)
{
    embedAndShow();
    bool pressed = false;
    QObject::connect(button, &QPushButton::pressed, [&] { pressed = true; });
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow(); }));
        box.move(0, 600);
        clickAt(*button);
        movePointerAway();
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow(); }));
        xdotool({"key", "Escape"});
    });
    EXPECT_EQ(dialogs.show(kQuestion), Answer::No);
    EXPECT_FALSE(pressed);
}

TEST_F(Focus, dialogsBelongToTheHostsWindowWithoutARemark)
{
    embedAndShow();
    testing::internal::CaptureStderr();
    whenDialogIsUp([this](QDialog &box) {
        EXPECT_EQ(display.transientFor(idOf(box)), host.topWindow());
        box.reject();
    });
    dialogs.show(kQuestion);
    whenDialogIsUp([this](QDialog &dialog) {
        EXPECT_EQ(display.transientFor(idOf(dialog)), host.topWindow());
        dialog.reject();
    });
    dialogs.chooseSaveName({.title = "Save", .filter = "All|*", .defaultSuffix = ""});
    EXPECT_EQ(withoutForeignLines(testing::internal::GetCapturedStderr()), "");
}

TEST_F(Focus, dialogsBlockTheWizardAndNoOtherWindow)
{
    embedAndShow();
    QWidget help;
    auto *search = new QLineEdit(&help);
    help.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&help));
    whenDialogIsUp([&](QDialog &box) {
        search->setFocus();
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        QTest::mouseClick(help.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
        QTest::keyClick(help.windowHandle(), Qt::Key_H);
        EXPECT_TRUE(spinUntil([&] { return search->text() == "h"; }));
        box.reject();
    });
    bool pressed = false;
    QObject::connect(button, &QPushButton::pressed, [&] { pressed = true; });
    dialogs.show(kQuestion);
    EXPECT_FALSE(pressed);
}

TEST_F(NestedHost, dialogsBelongToTheTopLevelWindowAndBlockTheWizard)
{
    embedAndShow();
    bool pressed = false;
    QObject::connect(button, &QPushButton::pressed, [&] { pressed = true; });
    whenDialogIsUp([this](QDialog &box) {
        EXPECT_EQ(display.transientFor(idOf(box)), host.topWindow());
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        box.reject();
    });
    dialogs.show(kQuestion);
    EXPECT_FALSE(pressed);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, button->geometry().center());
    EXPECT_TRUE(pressed);
}

TEST_F(WithManager, aDialogStaysAboveAClickedHost)
{
    embedAndShow();
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow(); }));
        clickBeside();
        ASSERT_TRUE(spinUntil([&] { return display.focus() == idOf(box); }));
        EXPECT_GT(stackingOf(idOf(box)), stackingOf(host.topWindow()));
        box.reject();
    });
    dialogs.show(kQuestion);
}

TEST_F(WithManager, aClickOnTheHostTakesTheFocusAway)
{
    embedAndShow();
    clickBeside();
    EXPECT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
}

/// Another program's window and the host's, between which a window manager's keys go to and fro.
class AnotherProgram : public EmbeddedWizard {
protected:
    void activate(const HostProcess &process)
    {
        xdotool({"windowactivate", "--sync", std::to_string(process.topWindow())});
    }

    void goAndComeBack()
    {
        activate(other);
        ASSERT_TRUE(spinUntil([this] { return display.focus() == other.topWindow(); }));
        settle();
        activate(host);
    }

    HostProcess other;
};

class WithManagerAndAnotherProgram : public AnotherProgram {};

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
    other.obey("move 700 720");
    pointBeside();
    other.obey("takefocus");
    ASSERT_TRUE(spinUntil([this] { return !window->isActiveWindow(); }));
    other.obey("leavefocus");
    settle();
    host.obey("takefocus");
    EXPECT_TRUE(spinUntil([this] { return display.focus() == id(); }));
}

TEST_F(WithManagerAndAnotherProgram, theEndOfADialogTakesNothingFromAnotherProgram)
{
    embedAndShow();
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow() && display.focus() == idOf(box); }));
        activate(other);
        ASSERT_TRUE(spinUntil([this] { return display.focus() == other.topWindow(); }));
        box.reject();
    });
    dialogs.show(kQuestion);
    settle();
    EXPECT_EQ(display.focus(), other.topWindow());
}

// As a window manager does that is ignored, and leaves the keyboard where it is.
TEST_F(Focus, goesToADialogThatNobodyGivesItTo)
{
    embedAndShow();
    whenDialogIsUp([this](QDialog &box) {
        x11::focus(id());
        EXPECT_TRUE(spinUntil([&] { return display.focus() == idOf(box); }));
        box.reject();
    });
    dialogs.show(kQuestion);
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

TEST_F(WithManager, aDialogOfAWizardWithoutAHostKeepsTheKeyboardWhenTheWizardIsClicked)
{
    window->move(100, 100);
    show();
    ASSERT_TRUE(spinUntil([this] { return window->isActiveWindow(); }));
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow() && display.focus() == idOf(box); }));
        box.move(800, 600);
        settle();
        clickAt(*first);
        settle();
        EXPECT_TRUE(spinUntil([&] { return display.focus() == idOf(box); }));
        xdotool({"key", "Escape"});
    });
    EXPECT_EQ(dialogs.show(kQuestion), Answer::No);
}

}  // namespace
}  // namespace penwright::test
