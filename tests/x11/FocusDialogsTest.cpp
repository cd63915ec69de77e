#include "x11/FocusTest.h"

namespace penwright::test {
namespace {

TEST_F(Focus, staysWithADialogWhileTheHostIsPressed)
{
    embedAndShow();
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow() && display.focus() == idOf(box); }));
        box.move(900, 600);
        clickBeside();
        settle();
        EXPECT_TRUE(spinUntil([&] { return isWithDialog(box); }));
        box.reject();
    });
    dialogs.show(kQuestion);
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
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&help, 60'000));
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
        ASSERT_TRUE(spinUntil([&] { return isWithDialog(box); }));
        EXPECT_GT(stackingOf(idOf(box)), stackingOf(host.topWindow()));
        box.reject();
    });
    dialogs.show(kQuestion);
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

TEST_F(WithManager, aDialogOfAWizardWithoutAHostKeepsTheKeyboardWhenTheWizardIsClicked)
{
    window->move(100, 100);
    show();
    ASSERT_TRUE(spinUntil([this] { return window->isActiveWindow(); }));
    whenDialogIsUp([this](QDialog &box) {
        ASSERT_TRUE(spinUntil([&] { return box.isActiveWindow() && display.focus() == idOf(box); }));
        box.move(800, 600);
        const Rectangle wizard = display.onScreen(id());
        ASSERT_TRUE(spinUntil([&] { return display.onScreen(idOf(box)).y > wizard.y + wizard.height; }));
        clickAt(*first);
        settle();
        EXPECT_TRUE(spinUntil([&] { return display.focus() == idOf(box); }));
        xdotool({"key", "Escape"});
    });
    EXPECT_EQ(dialogs.show(kQuestion), Answer::No);
}

}  // namespace
}  // namespace penwright::test
