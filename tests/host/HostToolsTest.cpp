// The real tool in the host's window, on a display of its own.
#include <gtest/gtest.h>

#include <memory>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>

#include "hostbench/HostKeyboard.h"
#include "hostbench/HostWindow.h"
#include "hostbench/LuminaireTyper.h"
#include "hostbench/SampleLuminaire.h"
#include "hostbench/XDisplay.h"
#include "support/DialogDriver.h"
#include "support/Process.h"
#include "support/ReadBackFolder.h"
#include "support/Xvfb.h"

namespace penwright {
namespace {

const QString kFirstPage = "New Photometric file: (1 of 6) General Info";
const QString kWarnings = "Data incomplete!";
const QString kLastPage = "New Photometric file: (6 of 6) Complete!";

class HostToolsTest : public testing::Test {
protected:
    HostToolsTest()
    {
        qputenv("XDG_STATE_HOME", m_state.path().c_str());  // no draft of another test is offered
        m_window.show();
        m_window.activateWindow();
    }

    static bool waitFor(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 20'000); }

    /// The wizard's window in a tab, 0 while there is none.
    std::uint32_t wizardIn(ToolTab *tab) const
    {
        const auto children = m_display.children(tab->area().windowNumber());
        return children.empty() ? 0 : children.front();
    }

    bool shows(ToolTab *tab, const QString &caption) const { return m_display.title(wizardIn(tab)) == caption; }

    ToolTab *startAndShow()
    {
        ToolTab *tab = m_window.startTool();
        EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == kFirstPage && shows(tab, kFirstPage); }));
        return tab;
    }

    /// Clicks as a user does, through the display.
    static void clickAt(const QWidget &widget, const QPoint &place)
    {
        const QPoint point = (QPointF(widget.mapToGlobal(place)) * widget.devicePixelRatioF()).toPoint();
        test::Process click(
            {"xdotool", "mousemove", std::to_string(point.x()), std::to_string(point.y()), "click", "1"});
        EXPECT_TRUE(waitFor([&] { return click.hasEnded(); }));
    }

    /// On the host's own ground, left of all that it shows.
    void clickOnTheHost() { clickAt(*m_window.centralWidget(), {4, m_window.centralWidget()->height() / 2}); }

    void clickOnTab(int place)
    {
        const QTabBar &bar = *m_window.findChild<QTabWidget *>("tabs")->tabBar();
        clickAt(bar, bar.tabRect(place).center());
    }

    void clickOnTheLastTab() { clickOnTab(m_window.findChild<QTabWidget *>("tabs")->count() - 1); }

    /// Gives page 1 of the wizard that has the focus values that pass its checks; its first shape is a point.
    void typeGeneralInfo()
    {
        for (int field = 0; field < 5; ++field) {
            m_display.pressKey('1');
            m_display.pressKey(kKeyTab);
        }
        m_display.pressKey(kKeyDown);
    }

    /// Alt+N until the last page of the wizard that has the focus.
    bool walkToLastPage()
    {
        for (const int page : {1, 3, 4, 5, 6}) {  // tilt information is not included
            const QString before = m_display.focusedTitle();
            if (before == kLastPage)
                return true;
            if (before == kFirstPage)
                typeGeneralInfo();
            LuminaireTyper typer(m_display, m_luminaire);
            if (page == 4)
                typer.typeDistribution();
            if (page == 5) {
                QGuiApplication::clipboard()->setText(LuminaireTyper::candelaTable(m_luminaire));
                typer.pasteCandelas();
            }
            m_display.pressKey('n', kKeyAlt);
            if (!waitFor([&] { return m_display.focusedTitle() != before; }))
                return false;
        }
        return false;
    }

    bool waitForToolCount(int count)
    {
        return waitFor([&] { return m_window.toolCount() == count; });
    }

    const test::ReadBackFolder m_state;
    HostStore m_store;
    HostWindow m_window{m_store, PENWRIGHT};
    XDisplay m_display;
    const PhotometricRecord m_luminaire = sampleLuminaire();
};

TEST_F(HostToolsTest, theWizardFillsItsPlaceToThePixel)
{
    ToolTab *tab = startAndShow();
    const auto place = [&] { return m_display.size(tab->area().windowNumber()); };
    const auto fills = [&] { return m_display.size(wizardIn(tab)) == place(); };
    EXPECT_TRUE(waitFor(fills));
    const QSize before = place();
    for (int step = 1; step <= 7; step += 2) {
        m_window.resize(m_window.size() - QSize(step, step));
        EXPECT_TRUE(waitFor(fills));
    }
    EXPECT_NE(place(), before);
}

TEST_F(HostToolsTest, twoToolsRunSideBySideAndEndByThemselves)
{
    ToolTab *one = startAndShow();
    ToolTab *two = startAndShow();
    EXPECT_TRUE(shows(one, kFirstPage));
    EXPECT_NE(one->run().tool().processId(), two->run().tool().processId());
    typeGeneralInfo();
    m_display.pressKey('n', kKeyAlt);
    EXPECT_TRUE(waitFor([&] { return !shows(two, kFirstPage); }));
    EXPECT_TRUE(shows(one, kFirstPage));
    m_window.findChild<QPushButton *>("sendClose")->click();
    EXPECT_TRUE(waitForToolCount(1));
    EXPECT_TRUE(shows(one, kFirstPage));
    one->run().tool().sendClose();
    EXPECT_TRUE(waitForToolCount(0));
}

TEST_F(HostToolsTest, aPressOnItsOwnControlsTakesTheKeyboard)
{
    startAndShow();
    clickOnTheHost();
    EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == m_window.windowTitle(); }));
}

TEST_F(HostToolsTest, aClickOnAToolsTabGivesItsWizardTheKeyboard)
{
    startAndShow();
    clickOnTheHost();
    ASSERT_TRUE(waitFor([&] { return m_display.focusedTitle() == m_window.windowTitle(); }));
    clickOnTheLastTab();
    EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == kFirstPage; }));
}

TEST_F(HostToolsTest, aClickOnAnotherToolsTabGivesThatOnesWizardTheKeyboard)
{
    ToolTab *one = startAndShow();
    startAndShow();
    typeGeneralInfo();
    m_display.pressKey('n', kKeyAlt);
    ASSERT_TRUE(waitFor([&] { return m_display.focusedTitle() != kFirstPage; }));
    const auto hasIt = [&] { return m_display.focusedTitle() == kFirstPage; };
    clickOnTab(1);
    if (!waitFor(hasIt))
        clickOnTab(1);  // a wizard that was shown just now takes the keyboard back from a busy machine's manager
    EXPECT_TRUE(waitFor(hasIt));
    EXPECT_TRUE(shows(one, kFirstPage));
}

TEST_F(HostToolsTest, tabGoesRoundInTheEmbeddedWizard)
{
    startAndShow();
    m_display.pressKey(kKeyTab, kKeyShift);
    m_display.pressKey(kKeySpace);  // a blank in the first field, the press of a button
    EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == kWarnings; }));
    m_display.pressKey(kKeyReturn);
    ASSERT_TRUE(waitFor([&] { return m_display.focusedTitle() == kFirstPage; }));
    m_display.pressKey(kKeyTab, kKeyShift);
    m_display.pressKey(kKeyTab);
    m_display.pressKey('7');
    m_display.pressKey('n', kKeyAlt);
    EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == kWarnings; }));
}

TEST_F(HostToolsTest, theKeyboardComesBackWhenAToolEndsAsked)
{
    ToolTab *tab = startAndShow();
    tab->run().tool().sendClose();
    ASSERT_TRUE(waitFor([&] { return m_window.toolCount() == 0; }));
    EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == m_window.windowTitle(); }));
}

TEST_F(HostToolsTest, theKeyboardComesBackWhenAToolIsKilled)
{
    ToolTab *tab = startAndShow();
    tab->run().kill();
    ASSERT_TRUE(waitFor([&] { return m_window.toolCount() == 0; }));
    EXPECT_TRUE(waitFor([&] { return m_display.focusedTitle() == m_window.windowTitle(); }));
}

TEST_F(HostToolsTest, anUnnamedFileComesBackAndIsHeld)
{
    ToolTab *tab = startAndShow();
    m_window.addFile({m_luminaire, false, {}});
    m_window.sendDataChanged();
    ASSERT_TRUE(waitFor([&] { return tab->run().tool().isAllTaken(); }));
    ASSERT_TRUE(walkToLastPage());
    m_display.pressKey(kKeySpace);
    ASSERT_TRUE(waitForToolCount(0));
    ASSERT_EQ(m_window.files().count(), 2);
    const PhotometricRecord &back = m_window.files().at(1).record;
    EXPECT_EQ(back.Filename, "new_file_1");
    EXPECT_EQ(back.OptionalData, m_luminaire.OptionalData);
    EXPECT_EQ(back.HorAngles, m_luminaire.HorAngles);
    EXPECT_FALSE(m_window.files().at(1).isSaved);
}

TEST_F(HostToolsTest, theHostIsNotActiveWhileTheWizardHasTheKeyboard)
{
    ToolTab *tab = startAndShow();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitFor([&] { return other.isActiveWindow(); }));
    ASSERT_TRUE(waitFor([&] {  // the manager may still be turning to the other window
        HostKeyboard::giveToWizardIn(tab->area().windowNumber());
        return !other.isActiveWindow();
    }));
    EXPECT_EQ(m_display.focusedTitle(), kFirstPage);
    EXPECT_FALSE(m_window.isActiveWindow());

    QWidget *button = m_window.findChild<QAbstractButton *>();
    button->setToolTip("why not");
    QHelpEvent hover(QEvent::ToolTip, {1, 1}, button->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(button, &hover);
    EXPECT_TRUE(waitFor([] { return QToolTip::text() == "why not"; }));
}

TEST_F(HostToolsTest, withTwentyFiveFilesTheToolRefuses)
{
    for (int i = 0; i < 25; ++i)
        m_window.addFile({sampleLuminaire(), false, {}});
    m_window.startTool();
    ASSERT_TRUE(waitFor([&] { return m_display.focusedTitle() == "PenwrightPE"; }));
    m_display.pressKey(kKeyReturn);
    EXPECT_TRUE(waitForToolCount(0));
    const auto *log = m_window.findChild<QTreeWidget *>("linkLog");
    EXPECT_EQ(log->findItems("ReturnClose,PenwrightPE,1", Qt::MatchExactly, 3).size(), 1);
    EXPECT_EQ(log->findItems("Ended with status 1", Qt::MatchExactly, 3).size(), 1);
    EXPECT_EQ(m_window.files().count(), 25);
}

TEST_F(HostToolsTest, closingTheWindowEndsTheTools)
{
    startAndShow();
    startAndShow();
    test::whenDialogIsUp([](QDialog &dialog) {
        for (QAbstractButton *button : dynamic_cast<QMessageBox &>(dialog).buttons())
            if (button->text().remove('&') == "Close Without Saving")
                QTest::mouseClick(button, Qt::LeftButton);
    });
    m_window.close();
    EXPECT_TRUE(waitFor([&] { return !m_window.isVisible(); }));
    const auto *log = m_window.findChild<QTreeWidget *>("linkLog");
    EXPECT_EQ(log->findItems("Ended with status 0", Qt::MatchExactly, 3).size(), 2);
}

}  // namespace
}  // namespace penwright

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const penwright::test::Xvfb display(penwright::test::managerAskedFor());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("LSAN_OPTIONS", "print_suppressions=0:suppressions=" LEAK_SUPPRESSIONS);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
