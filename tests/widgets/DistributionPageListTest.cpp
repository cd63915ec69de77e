// How the drop-down lists of page 4 are typed into and picked from.
#include "support/SpinUntil.h"
#include "widgets/DistributionPageTest.h"

namespace penwright::test {
namespace {

class DistributionList : public DistributionPageTest {
protected:
    void SetUp() override
    {
        DistributionPageTest::SetUp();
        click("rdoC");
    }

    /// Runs the change routine for a text that comes as a whole, from the clipboard.
    void paste(QComboBox *list, const std::string &text)
    {
        list->setFocus();
        list->lineEdit()->selectAll();
        QApplication::clipboard()->setText(QString::fromStdString(text));
        press(Qt::Key_V, Qt::ControlModifier);
    }
};

TEST_F(DistributionList, everyKeystrokeSizesTheGrid)
{
    vertical()->setFocus();
    vertical()->lineEdit()->selectAll();
    typeText("1");
    EXPECT_EQ(columns(verticalGrid()), 1);
    typeText("2");
    EXPECT_EQ(columns(verticalGrid()), 12);
    press(Qt::Key_Backspace);
    EXPECT_EQ(columns(verticalGrid()), 1);
    EXPECT_EQ(columns(horizontalGrid()), 0);
}

TEST_F(DistributionList, typingReplacesThePromptAfterATab)
{
    find("rdoC")->setFocus();
    press(Qt::Key_Tab);
    typeText("7");
    EXPECT_EQ(vertical()->currentText(), "7");
    EXPECT_EQ(columns(verticalGrid()), 7);
}

TEST_F(DistributionList, typingReplacesThePromptAfterAClick)
{
    QLineEdit *edit = vertical()->lineEdit();
    QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(60, edit->height() / 2));
    QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(90, edit->height() / 2));
    EXPECT_EQ(edit->selectedText(), kPrompt);
    typeText("7");
    EXPECT_EQ(columns(verticalGrid()), 7);
}

TEST_F(DistributionList, secondClickIntoACountPlacesTheCursor)
{
    typeInto(vertical(), "12");
    find("rdoC")->setFocus();
    QLineEdit *edit = vertical()->lineEdit();
    QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(60, edit->height() / 2));
    EXPECT_EQ(edit->selectedText(), "12");
    // Far enough away not to be the second half of a double click.
    QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(160, edit->height() / 2));
    EXPECT_EQ(edit->selectedText(), "");
    typeText("3");
    EXPECT_EQ(columns(verticalGrid()), 123);
}

TEST_F(DistributionList, refusedTextsBecomeOneWithoutAMessage)
{
    for (const char *text : {"word", "0", "-4", "1001", "32767", "40000", "12 foo", "  ", "1,5"}) {
        paste(vertical(), "5");
        EXPECT_EQ(columns(verticalGrid()), 5);
        paste(vertical(), text);
        EXPECT_EQ(vertical()->currentText(), "1") << text;
        EXPECT_EQ(vertical()->lineEdit()->selectedText(), "1") << text;
        EXPECT_EQ(cells(verticalGrid()), " ") << text;
    }
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(DistributionList, acceptedTextsStayAsTheyAre)
{
    const std::pair<std::string, int> kTexts[]{{"999", 999}, {"1000", 1000}, {"  12", 12}, {"12.5", 12}, {"1e3", 1000}};
    for (const auto &[text, count] : kTexts) {
        paste(horizontal(), text);
        EXPECT_EQ(horizontal()->currentText().toStdString(), text);
        EXPECT_EQ(columns(horizontalGrid()), count);
        EXPECT_FALSE(horizontal()->lineEdit()->hasSelectedText());
    }
}

TEST_F(DistributionList, nextDigitReplacesTheOneOfARefusedText)
{
    typeInto(vertical(), "x");
    EXPECT_EQ(vertical()->currentText(), "1");
    typeText("25");
    EXPECT_EQ(vertical()->currentText(), "25");
    EXPECT_EQ(columns(verticalGrid()), 25);
    typeInto(vertical(), "1001");
    EXPECT_EQ(vertical()->currentText(), "1");
    typeText("9");
    EXPECT_EQ(columns(verticalGrid()), 9);
}

TEST_F(DistributionList, digitsTypedBehindALoneSignAreRefusedWithIt)
{
    for (const char *text : {"-4", "-12", "-.5"}) {
        typeInto(vertical(), "5");
        vertical()->lineEdit()->selectAll();
        typeText(text);
        EXPECT_EQ(vertical()->currentText(), "1") << text;
        EXPECT_EQ(cells(verticalGrid()), " ") << text;
        press(Qt::Key_Backspace);
        typeText("7");
        EXPECT_EQ(columns(verticalGrid()), 7) << text;
    }
}

TEST_F(DistributionList, aPendingSignIsSaidBesideItsBoxUntilItIsGone)
{
    const auto hints = [this] {
        return find<QLabel>("labVertSign")->text().toStdString() + "|" +
               find<QLabel>("labHorzSign")->text().toStdString();
    };
    const std::string said = "After \"-\" a digit is refused and 1 stays. Backspace takes the \"-\" back.";
    typeInto(vertical(), "3");
    EXPECT_EQ(hints(), "|");
    typeInto(vertical(), "-");
    EXPECT_EQ(hints(), said + "|");
    EXPECT_EQ(vertical()->lineEdit()->accessibleDescription().toStdString(), said);
    typeText("4");
    EXPECT_EQ(hints(), said + "|");
    press(Qt::Key_Backspace);
    EXPECT_EQ(hints(), "|");
    typeText("7");
    EXPECT_EQ(columns(verticalGrid()), 7);
    typeInto(horizontal(), "-");
    EXPECT_EQ(hints(), "|" + said);
    press(Qt::Key_Tab);
    EXPECT_EQ(hints(), "|");
}

TEST_F(DistributionList, aRefusedSignIsForgottenOnceTheFieldIsLeftOrAnEntryPicked)
{
    typeInto(vertical(), "-");
    typeInto(horizontal(), "3");
    typeInto(vertical(), "6");
    EXPECT_EQ(columns(verticalGrid()), 6);
    typeInto(vertical(), "-");
    pick(vertical(), "19, Downlight 0 to 90, 5 degree increments");
    EXPECT_EQ(columns(verticalGrid()), 19);
    typeInto(vertical(), "-");
    QTest::mouseDClick(vertical()->lineEdit(), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseRelease(vertical()->lineEdit(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(vertical()->lineEdit()->selectedText(), "1");
    typeText("8");
    EXPECT_EQ(columns(verticalGrid()), 8);
}

TEST_F(DistributionList, typingReplacesAPickedEntry)
{
    pick(vertical(), "10, Downlight 0 to 90, 10 degree increments");
    EXPECT_EQ(columns(verticalGrid()), 10);
    typeText("3");
    EXPECT_EQ(vertical()->currentText(), "3");
    EXPECT_EQ(columns(verticalGrid()), 3);
}

TEST_F(DistributionList, emptiedTextBecomesOne)
{
    typeInto(vertical(), "5");
    press(Qt::Key_Backspace);
    EXPECT_EQ(vertical()->currentText(), "1");
    EXPECT_EQ(columns(verticalGrid()), 1);
}

struct Pick {
    std::string type;
    bool isVertical;
};

class EveryEntry : public DistributionPageTest, public testing::WithParamInterface<Pick> {};

INSTANTIATE_TEST_SUITE_P(All, EveryEntry,
                         testing::Values(Pick{"rdoC", true}, Pick{"rdoC", false}, Pick{"rdoB", true},
                                         Pick{"rdoB", false}));

TEST_P(EveryEntry, isPickedByTheMouseAndFillsItsGrid)
{
    click(GetParam().type);
    QComboBox *list = GetParam().isVertical ? vertical() : horizontal();
    const GridView *grid = GetParam().isVertical ? verticalGrid() : horizontalGrid();
    for (int row = 0; row < list->count(); ++row) {
        const QString entry = list->itemText(row);
        pick(list, entry.toStdString());
        EXPECT_EQ(list->currentText(), entry);
        // "17, ... 0 to 360, 22.5 degree increments": count, first and last angle as the entry says them.
        const QRegularExpression pattern("^0?(\\d+), .*?(-?\\d+) to (\\d+), ");
        const auto match = pattern.match(entry);
        const int count = match.hasMatch() ? match.captured(1).toInt() : 1;
        ASSERT_EQ(columns(grid), count) << entry.toStdString();
        EXPECT_EQ(grid->model()->index(0, 0).data(), match.hasMatch() ? match.captured(2) : "0");
        EXPECT_EQ(grid->model()->index(0, count - 1).data(), match.hasMatch() ? match.captured(3) : "0");
    }
}

TEST_F(DistributionList, pickingTheSameEntryFillsItsCellsAgain)
{
    const std::string entry = "05, Quad Symmetric 0 to 90, 22.5 degree increment";
    pick(horizontal(), entry);
    typeAngles(horizontalGrid(), {"1", "2"});
    EXPECT_EQ(cells(horizontalGrid()), "1|2|45|67.5|90");
    pick(horizontal(), entry);
    EXPECT_EQ(cells(horizontalGrid()), "0|22.5|45|67.5|90");
    typeInto(horizontal(), "2");
    pick(horizontal(), entry);
    EXPECT_EQ(horizontal()->currentText().toStdString(), entry);
    EXPECT_EQ(cells(horizontalGrid()), "0|22.5|45|67.5|90");
}

TEST_F(DistributionList, isPickedFromByKeys)
{
    vertical()->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(columns(verticalGrid()), 10);
    press(Qt::Key_Down);
    EXPECT_EQ(columns(verticalGrid()), 19);
    press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(spinUntil([&] { return vertical()->view()->isVisible(); }));
    QTest::keyClick(vertical()->view(), Qt::Key_Down);
    QTest::keyClick(vertical()->view(), Qt::Key_Return);
    EXPECT_EQ(vertical()->currentText(), "37, Downlight 0 to 90, 2.5 degree increments");
    EXPECT_EQ(columns(verticalGrid()), 37);
    EXPECT_EQ(shownPage(), kDistributionPage);
}

TEST_F(DistributionList, selectedPartAloneCountsWhenTheSameEntryIsPicked)
{
    pick(vertical(), "19, Downlight 0 to 90, 5 degree increments");
    vertical()->setFocus();
    press(Qt::Key_Home);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    ASSERT_EQ(vertical()->lineEdit()->selectedText(), "19");
    EXPECT_EQ(verticalGrid()->model()->index(0, 18).data(), "90");
    press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(spinUntil([&] { return vertical()->view()->isVisible(); }));
    QTest::keyClick(vertical()->view(), Qt::Key_Return);
    EXPECT_EQ(columns(verticalGrid()), 19);
    EXPECT_EQ(verticalGrid()->model()->index(0, 18).data(), " ");
    EXPECT_EQ(vertical()->currentText(), "19, Downlight 0 to 90, 5 degree increments");
}

TEST_F(DistributionList, pickAfterAPartialSelectionTakesTheWholeNewEntry)
{
    typeInto(vertical(), "12");
    press(Qt::Key_Left, Qt::ShiftModifier);
    ASSERT_EQ(vertical()->lineEdit()->selectedText(), "2");
    pick(vertical(), "10, Indirect 90 to 180, 10 degree increments");
    EXPECT_EQ(cells(verticalGrid()), "90|100|110|120|130|140|150|160|170|180");
}

TEST_F(DistributionList, typedTextEntersNoListAndPicksNoEqualEntry)
{
    const std::string entry = "05, Quad Symmetric 0 to 90, 22.5 degree increment";
    paste(horizontal(), entry);
    typeAngles(horizontalGrid(), {"1"});
    horizontal()->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(cells(horizontalGrid()), "1|22.5|45|67.5|90");
    EXPECT_EQ(horizontal()->currentIndex(), -1);
    typeInto(horizontal(), "14");
    press(Qt::Key_Tab);
    EXPECT_EQ(horizontal()->count(), 12);
}

TEST_F(DistributionList, typingCompletesNothing)
{
    for (const char *text : {"1", "10", "19", "37"}) {
        typeInto(horizontal(), text);
        EXPECT_EQ(horizontal()->currentText(), text);
        EXPECT_FALSE(horizontal()->lineEdit()->hasSelectedText());
    }
}

TEST_F(DistributionList, enterPressesNext)
{
    typeInto(vertical(), "2");
    const std::string lines = warningsOf([] { press(Qt::Key_Return); });
    EXPECT_EQ(lines, "Vertical and Horizontal values needed before Next screen.\r\nAll fields not complete.\r\n");
    EXPECT_EQ(columns(verticalGrid()), 2);
    EXPECT_EQ(focusName(), "phoCmbHorz");
}

TEST_F(DistributionList, escapeAsksTheCancelQuestionOnceTheListIsClosed)
{
    dialogs.answers = {Answer::No};
    vertical()->setFocus();
    press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(spinUntil([&] { return vertical()->view()->isVisible(); }));
    QTest::keyClick(vertical()->view(), Qt::Key_Escape);
    ASSERT_TRUE(spinUntil([&] { return !vertical()->view()->isVisible(); }));
    EXPECT_EQ(dialogs.transcript, "");
    QTest::keyClick(vertical(), Qt::Key_Escape);
    EXPECT_TRUE(spinUntil([&] { return !dialogs.transcript.empty(); }));
}

TEST_F(DistributionList, wheelChangesNoClosedList)
{
    pick(vertical(), "10, Indirect 90 to 180, 10 degree increments");
    vertical()->setFocus();
    const QPoint middle = vertical()->rect().center();
    QWheelEvent wheel(middle, vertical()->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(vertical(), &wheel);
    EXPECT_EQ(vertical()->currentText(), "10, Indirect 90 to 180, 10 degree increments");
}

TEST_F(DistributionList, popupShowsEveryEntryUncut)
{
    window->resize(300, 400);
    for (QComboBox *list : {vertical(), horizontal()}) {
        list->setFocus();
        list->showPopup();
        EXPECT_GE(list->view()->viewport()->width(), list->view()->sizeHintForColumn(0));
        EXPECT_FALSE(list->view()->verticalScrollBar()->isVisible());
        list->hidePopup();
    }
}

TEST_F(DistributionList, anOpenCellEndsWhenTheListIsTypedInto)
{
    typeInto(vertical(), "2");
    verticalGrid()->goTo(1, 0);
    typeText("45");
    QTest::mouseClick(vertical()->lineEdit(), Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_EQ(cells(verticalGrid()), "45| ");
    typeText("3");
    EXPECT_EQ(cells(verticalGrid()), " | | ");
    EXPECT_FALSE(verticalGrid()->isEditing());
}

}  // namespace
}  // namespace penwright::test
