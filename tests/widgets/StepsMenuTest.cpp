#include "support/DialogDriver.h"
#include "widgets/StepsTest.h"

namespace penwright::test {
namespace {

/// The menus in which steps are offered, and when they are not.
class StepsMenuTest : public StepsTest {
protected:
    static void askForMenu(QWidget *widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Keyboard)
    {
        QContextMenuEvent event(reason, QPoint(4, 4), widget->mapToGlobal(QPoint(4, 4)));
        QApplication::sendEvent(widget, &event);
    }

    static QMenu *menu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

    /// The entries of the open menu up to a number, "-" for a line, in brackets those that are off.
    static std::string entries(int most)
    {
        std::string text;
        for (const QAction *entry : menu()->actions().mid(0, most)) {
            const std::string name = entry->text().section('\t', 0, 0).remove('&').toStdString();
            text += entry->isSeparator() ? "-\n" : entry->isEnabled() ? name + "\n" : "(" + name + ")\n";
        }
        return text;
    }
};

TEST_F(StepsMenuTest, boxOffersThePagesStepsInThePlaceOfItsOwn)
{
    typeText("12");
    press(Qt::Key_Tab);
    typeText("3");
    askForMenu(find("txtNumLamps"));
    ASSERT_TRUE(menu());
    EXPECT_EQ(entries(4), "Undo Typing\n(Redo)\n-\n(Cut)\n");
    QTest::keyClick(menu(), Qt::Key_N);
    EXPECT_EQ(text("txtNumLamps") + "|" + text("txtLumPerLamp"), "12|");
    askForMenu(find("txtNumLamps"));
    QTest::keyClick(menu(), Qt::Key_R);
    EXPECT_EQ(text("txtLumPerLamp"), "3");
}

TEST_F(StepsMenuTest, listThatIsTypedIntoOffersThemToo)
{
    window->ShowPage(kDistributionPage);
    click("rdoC");
    auto *list = find<QComboBox>("phoCmbVert");
    list->setFocus();
    typeText("7");
    for (QWidget *widget : {static_cast<QWidget *>(list), static_cast<QWidget *>(list->lineEdit())}) {
        askForMenu(widget);
        ASSERT_TRUE(menu());
        EXPECT_EQ(entries(3), "Undo New Count\n(Redo)\n-\n");
        menu()->close();
    }
}

TEST_F(StepsMenuTest, gridOffersThemAndCopiesAndPastes)
{
    window->ShowPage(kTiltPage);
    fillPageTwo();
    grid("lmpGridTiltMultiplier").goTo(1, 1);
    paste("0.5");
    askForMenu(find("lmpGridTiltMultiplier"));
    ASSERT_TRUE(menu());
    EXPECT_EQ(menu()->objectName(), "mnuGrid");
    EXPECT_EQ(entries(9), "Undo Paste\n(Redo)\n-\nCopy\nPaste\n");
    QTest::keyClick(menu(), Qt::Key_N);
    EXPECT_EQ(shown("lmpGridTiltMultiplier", 1, 1), "0");
    askForMenu(grid("lmpGridTiltMultiplier").viewport(), QContextMenuEvent::Mouse);
    EXPECT_EQ(entries(2), "Undo Typing\nRedo Paste\n");
    QTest::keyClick(menu(), Qt::Key_P);
    EXPECT_EQ(shown("lmpGridTiltMultiplier", 1, 1), "0.5");
    QGuiApplication::clipboard()->clear();
    askForMenu(find("lmpGridTiltMultiplier"));
    QTest::keyClick(menu(), Qt::Key_C);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "0.5");
}

TEST_F(StepsMenuTest, keywordGridOffersThemBehindItsRows)
{
    window->ShowPage(kKeywordPage);
    grid("keyGrid").goTo(2, 1);
    press(Qt::Key_Plus, Qt::ControlModifier);
    askForMenu(find("keyGrid"));
    ASSERT_TRUE(menu());
    EXPECT_EQ(menu()->objectName(), "mnuRows");
    EXPECT_EQ(entries(9), "Insert Row Above\nDelete Row\n-\nMove Row Up\nMove Row Down\n-\nUndo Insert Row\n(Redo)\n");
}

TEST_F(StepsMenuTest, keysWorkFromTheButtonsOfThePageToo)
{
    typeText("4");
    find("cmdNext10")->setFocus();
    undo();
    EXPECT_EQ(text("txtNumLamps"), "");
}

TEST_F(StepsMenuTest, nothingIsUndoneWhileADialogIsOpen)
{
    typeText("4");
    page().steps().endAct();
    bool wasOpen = false;
    whenDialogIsUp([&](QDialog &dialog) {
        wasOpen = true;
        QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
        page().steps().undo();
        EXPECT_EQ(text("txtNumLamps"), "4");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    press(Qt::Key_Return);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(undoName(), "Undo Typing");
}

TEST_F(StepsMenuTest, nothingIsUndoneWhileAPostWaits)
{
    typeText("4");
    page().steps().endAct();
    const auto undoMeanwhile = [this] {
        undo();
        page().steps().undo();
        return true;
    };
    wait.until(undoMeanwhile, std::chrono::seconds(1));
    EXPECT_EQ(text("txtNumLamps"), "4");
}

}  // namespace
}  // namespace penwright::test
