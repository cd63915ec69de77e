#include "support/SpinUntil.h"
#include "widgets/WizardTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {
namespace {

class Warning : public WizardTest {
protected:
    void SetUp() override { startWizard(); }

    /// Shows the dialog and does something with it once it is open; false when it stays open for long.
    bool showAnd(const std::function<void(WarningDialog &)> &act)
    {
        bool ended = true;
        QTimer::singleShot(0, window.get(), [&] {
            QApplication::setActiveWindow(&window->dlgWarn());
            act(window->dlgWarn());
        });
        QTimer bound;
        QObject::connect(&bound, &QTimer::timeout, [&] {
            ended = false;
            window->dlgWarn().reject();
        });
        bound.start(10000);
        window->dlgWarn().showModal();
        return ended;
    }

    /// Adds the line of a number, with the number as its place.
    void addAt(int row)
    {
        window->dlgWarn().list().lookAt({.row = row});
        window->dlgWarn().Add("line " + std::to_string(row));
    }

    /// The place that the dialog answers once it was closed by `act`.
    std::optional<FaultPlace> placeAfter(const std::function<void()> &act)
    {
        QTimer::singleShot(0, window.get(), [&] {
            QApplication::setActiveWindow(&window->dlgWarn());
            act();
            EXPECT_FALSE(window->dlgWarn().isVisible());
            window->dlgWarn().reject();
        });
        return window->dlgWarn().showModal();
    }

    QPlainTextEdit *text() { return find<QPlainTextEdit>("Text1"); }

    /// The text of the line at the top of the list.
    QString firstVisibleLine()
    {
        QTextCursor cursor = text()->cursorForPosition(QPoint(6, 6));
        cursor.movePosition(QTextCursor::StartOfLine);
        cursor.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
        return cursor.selectedText();
    }
};

TEST_F(Warning, isNamedAndShowsTheWholeListAtOnce)
{
    WarningDialog &dialog = window->dlgWarn();
    EXPECT_TRUE(dialog.Clean());
    dialog.Add("Watts is empty.");
    dialog.Add("Width is not a number.");
    EXPECT_FALSE(dialog.Clean());
    EXPECT_TRUE(showAnd([&](WarningDialog &open) {
        EXPECT_EQ(QApplication::activeModalWidget(), &open);
        EXPECT_EQ(open.objectName(), "dlgWarn");
        EXPECT_EQ(open.windowTitle(), "Data incomplete!");
        EXPECT_EQ(text()->toPlainText(), "Watts is empty.\nWidth is not a number.\n");
        EXPECT_TRUE(text()->isReadOnly());
        QTest::mouseClick(find("OKButton"), Qt::LeftButton);
    }));
    EXPECT_EQ(dialog.list().text(), "Watts is empty.\r\nWidth is not a number.\r\n");
    dialog.Clear();
    EXPECT_TRUE(dialog.Clean());
}

TEST_F(Warning, enterAndEscapeCloseItWhereverTheFocusIs)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        for (const std::string focus : {"OKButton", "Text1"})
            EXPECT_TRUE(showAnd([&](WarningDialog &) {
                find(focus)->setFocus();
                QTest::keyClick(find(focus), key);
            })) << focus
                << key;
}

TEST_F(Warning, beginsWithTheButtonFocusedAndTheFirstLineInSight)
{
    for (int i = 1; i <= 500; ++i)
        window->dlgWarn().Add("line " + std::to_string(i));
    EXPECT_TRUE(showAnd([&](WarningDialog &open) {
        EXPECT_EQ(focusName(), "OKButton");
        EXPECT_EQ(firstVisibleLine(), "line 1");
        EXPECT_TRUE(text()->verticalScrollBar()->isVisible());
        open.accept();
    }));
}

TEST_F(Warning, canBeCopiedFromByKeyboardAlone)
{
    window->dlgWarn().Add("Watts is empty.");
    window->dlgWarn().Add("Width is empty.");
    EXPECT_TRUE(showAnd([&](WarningDialog &open) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(focusName(), "Text1");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
        open.accept();
    }));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Watts is empty.\nWidth is empty.\n");
}

TEST_F(Warning, aDoubleClickClosesItWithThePlaceOfItsLineHoweverLongTheList)
{
    for (const int lines : {20, 20'000}) {
        window->dlgWarn().Clear();
        for (int i = 1; i <= lines; ++i)
            addAt(i);
        const auto place = placeAfter([&] {
            text()->verticalScrollBar()->setValue(lines > 20 ? 12'344 : 0);
            const QString line = firstVisibleLine();
            EXPECT_EQ(line, lines > 20 ? "line 12345" : "line 1");
            QTest::mouseDClick(text()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));
            QTest::mouseRelease(text()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));
        });
        EXPECT_EQ(place, (FaultPlace{.row = lines > 20 ? 12'345 : 1}));
    }
}

TEST_F(Warning, enterInTheListClosesItWithThePlaceOfTheCursorsLine)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        window->dlgWarn().Clear();
        for (int i = 1; i <= 5; ++i)
            addAt(i);
        const auto place = placeAfter([&] {
            text()->setFocus();
            for (int down = 0; down < 3; ++down)
                QTest::keyClick(text(), Qt::Key_Down);
            QTest::keyClick(text(), key);
        });
        EXPECT_EQ(place, (FaultPlace{.row = 4}));
    }
}

TEST_F(Warning, allOtherWaysToCloseItLeadToTheFirstPlace)
{
    addAt(7);
    addAt(8);
    EXPECT_EQ(placeAfter([&] { QTest::mouseClick(find("OKButton"), Qt::LeftButton); }), (FaultPlace{.row = 7}));
    EXPECT_EQ(placeAfter([&] {
                  QTest::keyClick(text(), Qt::Key_End, Qt::ControlModifier);
                  QTest::keyClick(text(), Qt::Key_Escape);
              }),
              (FaultPlace{.row = 7}));
    // Behind the last line.
    EXPECT_EQ(placeAfter([&] {
                  QTest::keyClick(text(), Qt::Key_End, Qt::ControlModifier);
                  QTest::keyClick(text(), Qt::Key_Return);
              }),
              (FaultPlace{.row = 7}));
}

TEST_F(Warning, longListIsTheSameTextAndScrollsToItsVeryEnd)
{
    std::string expected;
    for (int i = 1; i <= 123456; ++i) {
        const std::string line = "Vert: cell " + std::to_string(i) + " is empty or not a number";
        window->dlgWarn().Add(line);
        expected += line + "\n";
    }
    EXPECT_TRUE(showAnd([&](WarningDialog &open) {
        EXPECT_EQ(text()->toPlainText().toStdString(), expected);
        QScrollBar *bar = text()->verticalScrollBar();
        for (const QSize size : {open.size(), QSize(700, 500)}) {
            open.resize(size);
            QCoreApplication::processEvents();
            bar->setValue(61727);
            EXPECT_EQ(firstVisibleLine(), "Vert: cell 61728 is empty or not a number");
            QTest::keyClick(text(), Qt::Key_End, Qt::ControlModifier);
            EXPECT_TRUE(text()->viewport()->rect().contains(text()->cursorRect().center()));
            const int linesInSight = text()->viewport()->height() / text()->fontMetrics().lineSpacing();
            EXPECT_NEAR(bar->maximum(), 123457 - linesInSight, 2);
        }
        open.accept();
    }));
}

TEST_F(Warning, shortListAfterALongOneIsShownAsEver)
{
    for (int i = 1; i <= 10001; ++i)
        window->dlgWarn().Add("x");
    EXPECT_TRUE(showAnd([](WarningDialog &open) { open.accept(); }));
    window->dlgWarn().Clear();
    window->dlgWarn().Add("Watts is empty.");
    EXPECT_TRUE(showAnd([&](WarningDialog &open) {
        EXPECT_EQ(text()->toPlainText(), "Watts is empty.\n");
        EXPECT_TRUE(spinUntil([&] { return !text()->verticalScrollBar()->isVisible(); }));
        open.accept();
    }));
}

TEST_F(Warning, canBeResized)
{
    window->dlgWarn().resize(700, 500);
    EXPECT_EQ(window->dlgWarn().size(), QSize(700, 500));
    EXPECT_TRUE(window->dlgWarn().isSizeGripEnabled());
}

TEST_F(Warning, unloadingDismissesItAndShowsItNoMore)
{
    EXPECT_TRUE(showAnd([&](WarningDialog &) { closing.begin(); }));
    bool wasShown = false;
    QTimer::singleShot(0, window.get(), [&] { wasShown = window->dlgWarn().isVisible(); });
    window->dlgWarn().showModal();
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasShown);
}

}  // namespace
}  // namespace penwright::test
