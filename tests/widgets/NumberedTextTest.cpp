#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "controls/NumberedText.h"
#include "support/SpinUntil.h"

namespace penwright::test {
namespace {

std::string linesUpTo(int count)
{
    std::string text;
    for (int line = 1; line <= count; ++line)
        text += "line " + std::to_string(line) + "\r\n";
    return text;
}

class Numbered : public testing::Test {
protected:
    void show(const std::string &text)
    {
        box.showText(text);
        box.resize(300, 200);
        box.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&box, 60'000));
        QApplication::setActiveWindow(&box);
        box.setFocus();
    }

    std::string shown() const { return box.toPlainText().toStdString(); }
    int margin() const { return box.viewport()->x() - box.frameWidth(); }

    /// Whether anything is written into the margin at the height of a block.
    bool hasNumber(int block)
    {
        const QTextCursor cursor(box.document()->findBlockByNumber(block));
        const QRect line = box.cursorRect(cursor);
        const QImage image = box.grab().toImage();
        const int middle = line.center().y() + box.viewport()->y();
        const QColor ground = image.pixelColor(box.frameWidth() + 2, middle);
        for (int y = middle - 4; y <= middle + 4; ++y)
            for (int x = box.frameWidth() + 2; x < box.viewport()->x() - 2; ++x)
                if (image.pixelColor(x, y) != ground)
                    return true;
        return false;
    }

    NumberedText box;
};

TEST_F(Numbered, showsAShortTextWhole)
{
    show("IESNA91\r\n[TEST] \xc3\xa4\nTILT=NONE");
    EXPECT_EQ(shown(), "IESNA91\n[TEST] \xc3\xa4\nTILT=NONE");
    EXPECT_TRUE(box.isReadOnly());
    EXPECT_TRUE(QFontInfo(box.font()).fixedPitch());
}

TEST_F(Numbered, beginsNoLineBehindTheLastEndAndKeepsEmptyOnes)
{
    show("a\r\n\r\nb\r\n");
    EXPECT_EQ(shown(), "a\n\nb");
    show("");
    EXPECT_EQ(shown(), "");
}

TEST_F(Numbered, showsTwoThousandLinesAtOnceAndTheRestOnScrolling)
{
    show(linesUpTo(9000));
    EXPECT_EQ(box.blockCount(), 2000);
    EXPECT_TRUE(shown().ends_with("line 2000"));
    box.verticalScrollBar()->setValue(1000);
    EXPECT_EQ(box.blockCount(), 2000);
    while (box.verticalScrollBar()->value() < box.verticalScrollBar()->maximum())
        box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
    std::string all = linesUpTo(9000);
    std::erase(all, '\r');
    EXPECT_EQ(shown() + "\n", all);
}

TEST_F(Numbered, growsNoMoreThanTheScrollingAsksFor)
{
    show(linesUpTo(9000));
    box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
    EXPECT_EQ(box.blockCount(), 4000);
}

TEST_F(Numbered, comesWholeWithTheKeysForItsEndAndForAllOfIt)
{
    for (const auto key : {QKeySequence::MoveToEndOfDocument, QKeySequence::SelectAll}) {
        show(linesUpTo(9000));
        QTest::keySequence(&box, QKeySequence(key));
        EXPECT_EQ(box.blockCount(), 9000);
    }
    QTest::keySequence(&box, QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 8999);
}

TEST_F(Numbered, comesWholeWithTheMenusSelectAll)
{
    show(linesUpTo(9000));
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(20, 20), box.mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(box.viewport(), &asked);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(box.blockCount(), 2000);
    QTest::keyClick(menu, Qt::Key_Up);  // Select All is the last one
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_TRUE(box.textCursor().selectedText().endsWith("line 9000"));
}

TEST_F(Numbered, beginsAtItsFirstLineEachTime)
{
    show(linesUpTo(9000));
    QTest::keySequence(&box, QKeySequence(QKeySequence::MoveToEndOfDocument));
    box.showText(linesUpTo(3000));
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
    EXPECT_EQ(box.textCursor().position(), 0);
    EXPECT_EQ(box.blockCount(), 2000);
}

TEST_F(Numbered, leavesRoomForTheNumberOfTheLastLineThatIsThere)
{
    const auto widthOf = [this](const char *digits) { return box.fontMetrics().horizontalAdvance(digits); };
    show("a\n");
    const int one = margin();
    EXPECT_GT(one, widthOf("1"));
    show(linesUpTo(12000));
    EXPECT_EQ(margin() - one, widthOf("0000") - widthOf("0"));
    EXPECT_TRUE(hasNumber(0));
    QTest::keySequence(&box, QKeySequence(QKeySequence::MoveToEndOfDocument));
    EXPECT_TRUE(spinUntil([this] { return box.blockCount() == 12000; }));
    EXPECT_EQ(margin() - one, widthOf("00000") - widthOf("0"));
}

TEST_F(Numbered, showsASentenceWithoutNumbers)
{
    show("a\n");
    box.showSentence("Subscript out of range");
    EXPECT_EQ(shown(), "Subscript out of range");
    EXPECT_EQ(margin(), 0);
}

TEST_F(Numbered, breaksALineThatIsLongerThanAnyReaderTakesUnderOneNumber)
{
    const std::string line(10'000, 'x');
    show("a\n" + line + "\nb\n");
    EXPECT_EQ(box.blockCount(), 5);
    std::string joined = shown();
    std::erase(joined, '\n');
    EXPECT_EQ(joined, "a" + line + "b");
    EXPECT_TRUE(hasNumber(1));
    EXPECT_FALSE(hasNumber(2));
    EXPECT_FALSE(hasNumber(3));
    EXPECT_TRUE(hasNumber(4));
}

TEST_F(Numbered, breaksNoCharacterInTwo)
{
    std::string line(4095, 'x');
    line += "\xf0\x9f\x92\xa1";  // two units of the toolkit's text
    show(line + "yy\n");
    EXPECT_EQ(shown(), line.substr(0, 4095) + "\n\xf0\x9f\x92\xa1yy");
}

TEST_F(Numbered, takesEachLineEndForOneAndNoOtherCharacter)
{
    show(
        "a\rb\n\rc\r\nd\xe2\x80\xa9"
        "e\x0b"
        "f\r");
    EXPECT_EQ(box.blockCount(), 5);
    EXPECT_EQ(shown().substr(0, 8), "a\nb\n\nc\nd");
    EXPECT_TRUE(hasNumber(4));
}

TEST_F(Numbered, showsTheBeginningOfAnEndlessLineAtOnce)
{
    const std::string line(10'000'000, 'x');
    show(line);
    EXPECT_EQ(box.blockCount(), NumberedText::kFirstLines);
    EXPECT_TRUE(hasNumber(0));
    box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
    EXPECT_GT(box.blockCount(), NumberedText::kFirstLines);
}

TEST_F(Numbered, comesBitByBitWhereItsRestIsLong)
{
    show(linesUpTo(100'000));
    QTest::keySequence(&box, QKeySequence(QKeySequence::MoveToEndOfDocument));
    EXPECT_LT(box.blockCount(), 100'000);
    EXPECT_TRUE(spinUntil([this] { return box.blockCount() == 100'000; }));
    EXPECT_TRUE(box.textCursor().atEnd());
    show(linesUpTo(100'000));
    QTest::keySequence(&box, QKeySequence(QKeySequence::SelectAll));
    QTest::keySequence(&box, QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 99'999);
}

TEST_F(Numbered, copiesWholeByTheMenuWhileTheRestIsOnItsWay)
{
    show(linesUpTo(100'000));
    QTest::keySequence(&box, QKeySequence(QKeySequence::SelectAll));
    QTest::mousePress(box.viewport(), Qt::RightButton, {}, QPoint(20, 20));
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(20, 20), box.mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(box.viewport(), &asked);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    menu->findChild<QAction *>("edit-copy")->trigger();
    menu->close();
    QTest::mouseRelease(box.viewport(), Qt::RightButton, {}, QPoint(20, 20));
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 99'999);
}

TEST_F(Numbered, letsTabLeaveIt)
{
    QWidget window;
    QHBoxLayout layout(&window);
    auto *text = new NumberedText;
    auto *next = new QPushButton;
    layout.addWidget(text);
    layout.addWidget(next);
    window.show();
    QApplication::setActiveWindow(&window);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
}

}  // namespace
}  // namespace penwright::test
