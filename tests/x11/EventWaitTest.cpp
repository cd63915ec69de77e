#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <stdexcept>

#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventWait.h"
#include "support/DialogDriver.h"

namespace penwright::test {
namespace {

using namespace std::chrono_literals;

/// A window whose controls count what reaches them.
class Wait : public testing::Test {
protected:
    Wait()
    {
        box = new QLineEdit;
        button = new QPushButton("&Next >");
        list = new QComboBox;
        list->addItems({"one", "two"});
        auto *layout = new QVBoxLayout(&window);
        for (QWidget *widget :
             {static_cast<QWidget *>(box), static_cast<QWidget *>(button), static_cast<QWidget *>(list)})
            layout->addWidget(widget);
        QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
        QObject::connect(new QShortcut(Qt::CTRL | Qt::Key_D, &window), &QShortcut::activated, [this] { ++clicks; });
        owner.widget = &window;
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Runs `act` in the middle of a wait, which ends after it.
    template <typename Act>
    void during(Act act)
    {
        bool acted = false;
        QTimer::singleShot(0, &window, [&] {
            act();
            acted = true;
        });
        EXPECT_EQ(wait.until([&] { return acted; }, 20s), WaitEnd::Done);
    }

    Closing closing;
    OwnerWindow owner;
    QtEventWait wait{closing, owner};
    QWidget window;
    QLineEdit *box = nullptr;
    QPushButton *button = nullptr;
    QComboBox *list = nullptr;
    int clicks = 0;
};

TEST_F(Wait, endsWhenDone)
{
    int asked = 0;
    EXPECT_EQ(wait.until([&] { return ++asked == 3; }, 20s), WaitEnd::Done);
    EXPECT_EQ(asked, 3);
}

TEST_F(Wait, asksOnceEvenWithoutTime)
{
    int asked = 0;
    EXPECT_EQ(wait.until([&] { return ++asked > 0; }, 0ms), WaitEnd::Done);
    EXPECT_EQ(wait.until([] { return false; }, 0ms), WaitEnd::TimedOut);
}

TEST_F(Wait, takesItsTimeBeforeItGivesUp)
{
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(wait.until([] { return false; }, 60ms), WaitEnd::TimedOut);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 60ms);
}

TEST_F(Wait, letsTimersAndPaintingRun)
{
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(1);
    EXPECT_EQ(wait.until([&] { return ticks > 3; }, 20s), WaitEnd::Done);
}

TEST_F(Wait, holdsOffKeysAndClicks)
{
    during([this] {
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        QTest::keyClicks(box, "abc");
        QTest::keyClick(window.windowHandle(), Qt::Key_N, Qt::AltModifier);
        QTest::keyClick(window.windowHandle(), Qt::Key_D, Qt::ControlModifier);
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(list, &wheel);
        EXPECT_TRUE(wait.isWaiting());
    });
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(box->text(), "");
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_FALSE(wait.isWaiting());
}

TEST_F(Wait, letsThemThroughAfterwards)
{
    during([] {});
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
    QTest::keyClick(window.windowHandle(), Qt::Key_D, Qt::ControlModifier);
    QTest::keyClicks(box, "abc");
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(box->text(), "abc");
}

TEST_F(Wait, holdsOffAListThatIsOpen)
{
    list->showPopup();
    QWidget *popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    during([&] {
        auto *view = list->view();
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Return);
    });
    EXPECT_EQ(list->currentIndex(), 0);
    list->hidePopup();
}

TEST_F(Wait, doesNotCloseTheWindow)
{
    during([this] { EXPECT_FALSE(window.windowHandle()->close()); });
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.windowHandle()->close());
}

TEST_F(Wait, leavesNoButtonDownWhoseReleaseItSwallowed)
{
    QTest::mousePress(button, Qt::LeftButton);
    ASSERT_TRUE(button->isDown());
    during([this] { QTest::mouseRelease(button, Qt::LeftButton); });
    EXPECT_FALSE(button->isDown());
    EXPECT_EQ(clicks, 0);
}

TEST_F(Wait, leavesDialogsOverTheWindowUsable)
{
    QtDialogs dialogs(closing, owner);
    during([&] {
        whenDialogIsUp([](QDialog &dialog) {
            QTest::mouseClick(dynamic_cast<QMessageBox &>(dialog).button(QMessageBox::No), Qt::LeftButton);
        });
        EXPECT_EQ(dialogs.show({.text = "Really?", .flags = kYesNo}), Answer::No);
    });
}

TEST_F(Wait, showsTheWaitCursorOnlyMeanwhile)
{
    during([] {
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Wait, canBeWaitedInside)
{
    during([this] {
        EXPECT_EQ(wait.until([] { return false; }, 20ms), WaitEnd::TimedOut);
        EXPECT_TRUE(wait.isWaiting());
        QTest::keyClicks(box, "abc");
    });
    EXPECT_EQ(box->text(), "");
}

TEST_F(Wait, isCancelledWhenClosingBegins)
{
    QTimer::singleShot(0, &closing, &Closing::begin);
    EXPECT_EQ(wait.until([] { return false; }, 20s), WaitEnd::Cancelled);
    EXPECT_EQ(wait.until([] { return true; }, 20s), WaitEnd::Cancelled);
}

TEST_F(Wait, isCancelledWhenTheHostVanishes)
{
    QTimer::singleShot(0, &closing, &Closing::hostVanished);
    EXPECT_EQ(wait.until([] { return false; }, 20s), WaitEnd::Cancelled);
}

TEST_F(Wait, runsForTheUnloadingItselfUntilTheHostVanishes)
{
    closing.begin();
    ASSERT_TRUE(spinUntil([this] { return closing.mayWait(); }));
    EXPECT_EQ(wait.until([] { return true; }, 20s), WaitEnd::Done);
    QTimer::singleShot(0, &closing, &Closing::hostVanished);
    EXPECT_EQ(wait.until([] { return false; }, 20s), WaitEnd::Cancelled);
    EXPECT_EQ(wait.until([] { return true; }, 20s), WaitEnd::Cancelled);
}

TEST_F(Wait, carriesAnErrorPastTheEventLoop)
{
    const auto fail = []() -> bool { throw std::runtime_error("broken"); };
    EXPECT_THROW(wait.until(fail, 20s), std::runtime_error);
    EXPECT_FALSE(wait.isWaiting());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(ClosingFlag, isSetOnceAndUnwindsOnce)
{
    Closing closing;
    std::string transcript;
    QObject::connect(&closing, &Closing::begun, [&] { transcript += "begun "; });
    QObject::connect(&closing, &Closing::unwound, [&] { transcript += "unwound "; });
    EXPECT_FALSE(closing.isClosing());
    closing.begin();
    EXPECT_TRUE(closing.isClosing());
    EXPECT_FALSE(closing.isHostGone());
    closing.begin();
    ASSERT_TRUE(spinUntil([&] { return transcript == "begun unwound "; }));
    closing.begin();
    closing.hostVanished();
    EXPECT_TRUE(closing.isHostGone());
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++turns; });
    timer.start(10);
    ASSERT_TRUE(spinUntil([&] { return turns > 3; }));
    EXPECT_EQ(transcript, "begun unwound ");
}

}  // namespace
}  // namespace penwright::test
