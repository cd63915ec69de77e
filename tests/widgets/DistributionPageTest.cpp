#include "widgets/DistributionPageTest.h"

namespace penwright::test {
namespace {

TEST_F(DistributionPageTest, hasItsControlsWithTheirCaptions)
{
    EXPECT_EQ(find<QGroupBox>("fraType")->title(), "Photometric Type");
    EXPECT_EQ(find<QRadioButton>("rdoC")->text(), "IESNA Type C       [Indoor, Roadway]");
    EXPECT_EQ(find<QRadioButton>("rdoB")->text(), "IESNA Type B       [Floodlighting]");
    EXPECT_EQ(find<QLabel>("phoLabVert")->text(), "Number Of Vertical Angles");
    EXPECT_EQ(find<QLabel>("phoLabVert")->buddy(), vertical());
    EXPECT_EQ(find<QLabel>("phoLabHorz")->text(), "Number Of Horizontal Angles");
    EXPECT_EQ(find<QLabel>("phoLabHorz")->buddy(), horizontal());
    for (QComboBox *list : {vertical(), horizontal()}) {
        EXPECT_TRUE(find("fraAngles")->isAncestorOf(list));
        EXPECT_EQ(list->currentText(), kPrompt);
        EXPECT_EQ(list->count(), 0);
    }
    for (const char *button : {"rdoC", "rdoB"})
        EXPECT_TRUE(find("fraType")->isAncestorOf(find(button)));
}

TEST_F(DistributionPageTest, beginsWithNoTypeAndHiddenLists)
{
    EXPECT_FALSE(find<QRadioButton>("rdoC")->isChecked());
    EXPECT_FALSE(find<QRadioButton>("rdoB")->isChecked());
    EXPECT_TRUE(find("fraAngles")->isHidden());
    EXPECT_EQ(focusName(), "rdoC");
}

TEST_F(DistributionPageTest, beginsWithTheChosenTypeAtLaterVisits)
{
    click("rdoB");
    window->ShowPage(kKeywordPage);
    window->ShowPage(kDistributionPage);
    EXPECT_EQ(focusName(), "rdoB");
    EXPECT_FALSE(find("fraAngles")->isHidden());
}

TEST_F(DistributionPageTest, choosingATypeMovesNothing)
{
    QCoreApplication::processEvents();
    const QRect before = find("fraType")->geometry();
    const QSize size = window->size();
    click("rdoC");
    QCoreApplication::processEvents();
    EXPECT_EQ(find("fraType")->geometry(), before);
    EXPECT_EQ(window->size(), size);
}

TEST_F(DistributionPageTest, eachTypeOffersItsEntriesUnderThePromptSelectedWhole)
{
    struct {
        const char *type;
        int vertical, horizontal;
        const char *firstVertical, *lastHorizontal;
    } const kTypes[]{
        {"rdoC", 9, 12, "10, Downlight 0 to 90, 10 degree increments",
         "73, Asymmetric distribution 0 to 360, 5 degree increments"},
        {"rdoB", 6, 6, "10, 0 to 90, 10 degree increments", "73, -90 to 90, 2.5 degree increments"},
        {"rdoC", 9, 12, "10, Downlight 0 to 90, 10 degree increments",
         "73, Asymmetric distribution 0 to 360, 5 degree increments"},
    };
    for (const auto &type : kTypes) {
        click(type.type);
        EXPECT_TRUE(find("fraAngles")->isVisible());
        EXPECT_EQ(vertical()->count(), type.vertical);
        EXPECT_EQ(horizontal()->count(), type.horizontal);
        EXPECT_EQ(vertical()->itemText(0), type.firstVertical);
        EXPECT_EQ(horizontal()->itemText(type.horizontal - 1), type.lastHorizontal);
        for (const QComboBox *list : {vertical(), horizontal()})
            EXPECT_EQ(list->lineEdit()->selectedText(), kPrompt);
    }
}

TEST_F(DistributionPageTest, changeOfTypeLeavesTheAngles)
{
    click("rdoC");
    pick(vertical(), "10, Indirect 90 to 180, 10 degree increments");
    typeInto(horizontal(), "2");
    typeAngles(horizontalGrid(), {"0", "45"});
    for (const char *type : {"rdoB", "rdoB", "rdoC"}) {
        click(type);
        EXPECT_EQ(cells(verticalGrid()), "90|100|110|120|130|140|150|160|170|180");
        EXPECT_EQ(cells(horizontalGrid()), "0|45");
        EXPECT_EQ(vertical()->currentText(), kPrompt);
    }
}

TEST_F(DistributionPageTest, oneRowOfNumberedColumnsFortyWide)
{
    click("rdoC");
    typeInto(vertical(), "12");
    EXPECT_EQ(cells(verticalGrid()), " | | | | | | | | | | | ");
    EXPECT_EQ(verticalGrid()->model()->rowCount(), 1);
    for (int column = 0; column < 12; ++column) {
        EXPECT_EQ(verticalGrid()->model()->headerData(column, Qt::Horizontal).toInt(), column + 1);
        EXPECT_EQ(verticalGrid()->columnWidth(column), 40);
    }
}

TEST_F(DistributionPageTest, columnsGrowForAValueAndNeverShrink)
{
    click("rdoC");
    typeInto(vertical(), "3");
    typeAngles(verticalGrid(), {"0", "123456789.25"});
    const int grown = verticalGrid()->columnWidth(1);
    EXPECT_GE(grown, verticalGrid()->fontMetrics().horizontalAdvance("123456789.25") + 4);
    EXPECT_EQ(verticalGrid()->columnWidth(0), 40);
    typeAngles(verticalGrid(), {"0", "1"});
    EXPECT_EQ(verticalGrid()->columnWidth(1), grown);
    typeInto(vertical(), "3");
    EXPECT_EQ(verticalGrid()->columnWidth(1), 40);
}

TEST_F(DistributionPageTest, everyPredefinedValueIsShownWhole)
{
    click("rdoC");
    QFont large = window->font();
    large.setPointSize(20);
    verticalGrid()->setFont(large);
    pick(vertical(), "73, Direct-Indirect 0 to 180, 2.5 degree increments");
    for (int column = 0; column < 73; ++column) {
        const QString text = verticalGrid()->model()->index(0, column).data().toString();
        EXPECT_GT(verticalGrid()->columnWidth(column), QFontMetrics(large).horizontalAdvance(text)) << column;
    }
}

TEST_F(DistributionPageTest, thousandAnglesAreTypedAcross)
{
    click("rdoC");
    typeInto(horizontal(), "1000");
    ASSERT_EQ(columns(horizontalGrid()), 1000);
    horizontalGrid()->goTo(1, 999);
    EXPECT_GT(horizontalGrid()->horizontalScrollBar()->value(), 0);
    typeText("360");
    press(Qt::Key_Tab);
    EXPECT_EQ(horizontalGrid()->model()->index(0, 999).data(), "360");
    EXPECT_FALSE(horizontalGrid()->hasFocus());
    typeInto(horizontal(), "500");
    EXPECT_EQ(horizontalGrid()->horizontalScrollBar()->value(), 0);
    EXPECT_EQ(columns(horizontalGrid()), 500);
}

TEST_F(DistributionPageTest, tabWalksTheRowAndOutAtItsEnd)
{
    click("rdoC");
    typeInto(vertical(), "3");
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "phoGridVert");
    EXPECT_EQ(verticalGrid()->currentColumn(), 0);
    typeText("0");
    press(Qt::Key_Tab);
    typeText("45");
    press(Qt::Key_Tab);
    typeText("90");
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "phoCmbHorz");
    EXPECT_EQ(cells(verticalGrid()), "0|45|90");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusName(), "phoGridVert");
}

TEST_F(DistributionPageTest, tabOrderFollowsTheEye)
{
    click("rdoC");
    find("rdoC")->setFocus();
    std::vector<std::string> walked;
    for (int i = 0; i < 9; ++i) {
        walked.push_back(focusName());
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(walked, (std::vector<std::string>{"rdoC", "phoCmbVert", "phoGridVert", "phoCmbHorz", "phoGridHorz",
                                                "cmdCancel30", "cmdHelp30", "cmdNext30", "cmdBack30"}));
    for (std::size_t i = 1; i < 5; ++i)
        EXPECT_LT(find(walked[i - 1])->mapToGlobal(QPoint()).y(), find(walked[i])->mapToGlobal(QPoint()).y());
}

TEST_F(DistributionPageTest, pastesARowOrAColumnOfASpreadsheetAlongTheRow)
{
    click("rdoC");
    for (const char *block : {"0\t30\t60\t90", "0\n30\n60\n90\n", "0\r\n30\r\n60\r\n90", "0\t30\n60\t90\n"}) {
        typeInto(vertical(), "5");
        verticalGrid()->goTo(1, 1);
        QApplication::clipboard()->setText(block);
        press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(cells(verticalGrid()), " |0|30|60|90") << block;
    }
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(DistributionPageTest, pastesAColumnIntoAnOpenEditorToo)
{
    click("rdoC");
    typeInto(vertical(), "2");
    verticalGrid()->goTo(1, 0);
    typeText("7");
    QApplication::clipboard()->setText("0\n90\n");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(cells(verticalGrid()), "0|90");
}

TEST_F(DistributionPageTest, pastesNothingOfABlockThatDoesNotFit)
{
    click("rdoC");
    typeInto(vertical(), "3");
    verticalGrid()->goTo(1, 1);
    QApplication::clipboard()->setText("0\n45\n90\n");
    press(Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kDistributionPage] +
                                      "|0] The copied block has 3 angles. From here on there is room for 2.\n");
    EXPECT_EQ(cells(verticalGrid()), " | | ");
    EXPECT_EQ(focusName(), "phoGridVert");
}

TEST_F(DistributionPageTest, pastedThousandAnglesAreStored)
{
    click("rdoC");
    pick(vertical(), "19, Downlight 0 to 90, 5 degree increments");
    typeInto(horizontal(), "1000");
    std::string block;
    for (int i = 0; i < 1000; ++i)
        block += std::to_string(i == 999 ? 360.0 : i * 0.36) + "\n";
    horizontalGrid()->goTo(1, 0);
    QApplication::clipboard()->setText(QString::fromStdString(block));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().NumHorzAngles, 1000);
    EXPECT_EQ(record().HorAngles(500), 179.64F);
    EXPECT_EQ(record().HorAngles(1000), 360);
}

TEST_F(DistributionPageTest, anglesPastedBeforeACountAreToldWhatIsMissing)
{
    click("rdoC");
    QApplication::clipboard()->setText("0\t45\t90");
    for (const std::string axis : {"Vert", "Horz"}) {
        auto *hint = find<QLabel>("phoHint" + axis);
        auto *grid = find<GridView>("phoGrid" + axis);
        EXPECT_FALSE(hint->isVisible());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton);
        press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_TRUE(hint->isVisible());
        EXPECT_EQ(hint->text(), "Type the number of angles first, then paste again.");
        EXPECT_GE(hint->y(), grid->geometry().bottom());
        EXPECT_EQ(grid->accessibleDescription(),
                  "Degrees, in ascending order. Type the number of angles first, then paste again.");
        typeInto(find<QComboBox>("phoCmb" + axis), "3");
        EXPECT_FALSE(hint->isVisible());
        EXPECT_EQ(grid->accessibleDescription(), "Degrees, in ascending order");
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, QPoint(grid->viewport()->width() - 4, 4));
        press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(hint->text(), "Select a cell first, then paste again.");
        grid->goTo(1, 0);
        press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(cells(grid), "0|45|90");
        EXPECT_FALSE(hint->isVisible());
    }
    EXPECT_EQ(dialogs.transcript, "");
}

}  // namespace
}  // namespace penwright::test
