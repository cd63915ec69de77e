#include "widgets/CandelaPageTest.h"

#include "pages/candela/LabelColumn.h"
#include "widgets/PaintNotes.h"

namespace penwright::test {
namespace {

struct KeyCounter : QObject {
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_PageUp)
            ++pageUps;
        return false;
    }
    int pageUps = 0;
};

TEST_F(CandelaPageTest, hasAllItsControlsUnderTheirCaptions)
{
    showTable({0}, {0, 90});
    EXPECT_EQ(find<QLabel>("Label2")->text(),
              "You can Copy (Ctrl+C) and Paste (Ctrl+V) tab delimited values into the candela grid");
    EXPECT_EQ(find<QLabel>("Labe50f")->text(), "Vertical Angles");
    EXPECT_EQ(find<QLabel>("Label50g")->text(), "Horizontal Angles");
    EXPECT_EQ(find<QLabel>("Label50a")->text(), "Horizontal Cone Through Vertical Angle");
    EXPECT_EQ(find<QLabel>("Labe50b")->text(), "Vertical Plane Through Horizontal Angle");
    for (const char *name : {"Frame1", "picCda", "Image1", "rtbHorz", "rtbVert", "cdaGridCd", "cmdCancel50",
                             "cmdHelp50", "cmdNext50", "cmdBack50"})
        EXPECT_TRUE(find(name)->isVisible()) << name;
    EXPECT_TRUE(find<QLineEdit>("rtbHorz")->isReadOnly());
    EXPECT_TRUE(find<QLineEdit>("rtbVert")->isReadOnly());
    EXPECT_EQ(find<QLabel>("Label50a")->buddy(), find("rtbHorz"));
    EXPECT_EQ(find<QLabel>("Labe50b")->buddy(), find("rtbVert"));
}

TEST_F(CandelaPageTest, beginsInTheFirstDataCellWithTheFocusInTheGrid)
{
    showTable({0, 22.5F, 90}, {0, 45, 90});
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(focusName(), "cdaGridCd");
    EXPECT_EQ(planes(), "0 / 0");
    grid().goTo(3, 2);
    EXPECT_EQ(planes(), "22.5 / 90");
    window->ShowPage(kDistributionPage);
    showTable({0, 90}, {0, 10, 90});
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(focusName(), "cdaGridCd");
    EXPECT_EQ(planes(), "0 / 0");
}

TEST_F(CandelaPageTest, showsTheTableWithCaptionsAndLabels)
{
    showTable({0, 22.5F}, {0, 0.1F, 90});
    EXPECT_EQ(grid().model()->rowCount(), 3);
    EXPECT_EQ(grid().model()->columnCount(), 3);
    EXPECT_EQ(grid().model()->headerData(0, Qt::Horizontal).toString(), "  ");
    EXPECT_EQ(grid().model()->headerData(2, Qt::Horizontal).toString(), "22.5");
    EXPECT_EQ(cell(2, 0), "0.1");
    EXPECT_EQ(cell(2, 1), " ");
}

TEST_F(CandelaPageTest, showsTheConeForTypeCAlone)
{
    showTable({-90, 90}, {-90, 90}, kTypeB);
    EXPECT_FALSE(find("rtbHorz")->isVisible());
    EXPECT_FALSE(find("Label50a")->isVisible());
    EXPECT_TRUE(find("rtbVert")->isVisible());
    EXPECT_EQ(text("rtbVert"), "-90");
    showTable({0, 90}, {0, 90}, kTypeC);
    EXPECT_TRUE(find("rtbHorz")->isVisible());
    EXPECT_TRUE(find("Label50a")->isVisible());
}

TEST_F(CandelaPageTest, namesPlaneAndConeInSingleForm)
{
    showTable({0, 0.1F, 33.3F}, {0, 66.7F});
    grid().goTo(2, 3);
    EXPECT_EQ(planes(), "33.3 / 66.7");
    EXPECT_EQ(grid().model()->headerData(2, Qt::Horizontal).toString(), "0.1");
}

TEST_F(CandelaPageTest, showsTheColumnAndRowThatOneIsInWhereTwoHaveTheSameAngle)
{
    showTable({0, 90, 90}, {0, 60, 60});
    const auto largestIn = [this](int row, int column) {
        grid().goTo(row, column);
        std::string numbers;
        for (QString words = QString::fromStdString(drawn()); words.contains("largest ");)
            numbers += (words = words.section("largest ", 1)).section(' ', 0, 0).toStdString() + " ";
        return numbers;
    };
    paste("1\t1\t1\n2\t3\t4\n5\t6\t7");
    EXPECT_EQ(largestIn(2, 2), "6 4 ");
    EXPECT_EQ(largestIn(3, 2), "6 7 ");
    EXPECT_EQ(largestIn(2, 3), "7 4 ");
    EXPECT_EQ(planes(), "90 / 60");
}

TEST_F(CandelaPageTest, keysHaveTheColoursOfTheirCurves)
{
    showTable({0, 90}, {0, 90});
    for (const auto &[key, colour] :
         {std::pair("planeKey", QColor(0, 0, 255)), std::pair("coneKey", QColor(255, 0, 0))}) {
        const QImage image = find(key)->grab().toImage();
        EXPECT_EQ(image.pixelColor(image.rect().center()), colour) << key;
    }
}

TEST_F(CandelaPageTest, columnsGrowToTheirValuesAndNeverShrinkUntilTheNextBuild)
{
    showTable({0, 22.5F, 90}, {0, 90});
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(grid().columnWidth(column), 40) << column;
    enterValue(1, 2, "1234567");
    const int grown = grid().columnWidth(2);
    const int margins = 2 * (grid().style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
    EXPECT_GE(grown, grid().fontMetrics().horizontalAdvance("1234567") + margins);
    EXPECT_LE(grown, grid().fontMetrics().horizontalAdvance("1234567") + margins + 4);
    EXPECT_EQ(grid().columnWidth(1), 40);
    enterValue(1, 2, "1");
    EXPECT_EQ(grid().columnWidth(2), grown);
    paste("1\t2\t0.0001234567\n3\t4\t5");
    EXPECT_EQ(grid().columnWidth(2), grown);
    EXPECT_GE(grid().columnWidth(3), grid().fontMetrics().horizontalAdvance("0.0001234567") + margins);
    paste("1\t2\t3\n3\t4\t5");
    showTable({0, 22.5F, 90}, {0, 90});
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(grid().columnWidth(column), 40) << column;
}

TEST_F(CandelaPageTest, noValueIsWiderThanItsColumn)
{
    const std::vector<std::string> values{"9999998", "123456.7",      "0.1",      "-1",       "-1234567",
                                          "1E+20",   "-1.234567E-20", "99999.88", "1234.567", "77.777",
                                          "0.001",   "100000",        "12.5",     "3E38"};
    showTable(angles(static_cast<int>(values.size()), 1), {0}, kTypeB);
    std::string line;
    for (const std::string &value : values)
        line += (line.empty() ? "" : "\t") + value;
    for (int build = 1; build <= 2; ++build) {
        build == 1 ? paste(line) : showTable(angles(static_cast<int>(values.size()), 1), {0}, kTypeB);
        for (int column = 1; column <= static_cast<int>(values.size()); ++column)
            EXPECT_GE(grid().columnWidth(column), grid().sizeHintForIndex(at(1, column)).width() + 1)
                << build << " " << cell(1, column);
    }
}

TEST_F(CandelaPageTest, labelsAndCaptionsStayInView)
{
    showTable(angles(60, 6), angles(91, 1));
    auto *labels = window->findChild<LabelColumn *>();
    const auto covers = [&] {
        return labels->isVisible() && labels->geometry().left() == grid().viewport()->geometry().left() &&
               labels->geometry().bottom() == grid().viewport()->geometry().bottom() &&
               labels->width() >= grid().columnWidth(0) && labels->y() <= grid().horizontalHeader()->y();
    };
    EXPECT_TRUE(covers());
    grid().goTo(91, 60);
    EXPECT_TRUE(covers());
    EXPECT_GT(grid().horizontalScrollBar()->value(), 0);
    EXPECT_GT(grid().verticalScrollBar()->value(), 0);
    window->resize(900, 700);
    QCoreApplication::processEvents();
    EXPECT_TRUE(covers());
    EXPECT_TRUE(grid().horizontalHeader()->isVisible());
}

TEST_F(CandelaPageTest, noCurrentCellIsHiddenBehindTheLabels)
{
    showTable(angles(60, 6), angles(91, 1));
    grid().goTo(1, 60);
    for (int column = 59; column >= 1; --column) {
        press(Qt::Key_Left);
        ASSERT_EQ(current(), "1," + std::to_string(column));
        ASSERT_GE(rect(1, column).left(), grid().columnWidth(0)) << column;
    }
    press(Qt::Key_Left);
    EXPECT_EQ(current(), "1,1");
    press(Qt::Key_End);
    press(Qt::Key_Home);
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(grid().horizontalScrollBar()->value(), 0);
}

TEST_F(CandelaPageTest, columnThatIsCutAtTheLabelsIsNotSeen)
{
    showTable(angles(60, 6), angles(91, 1));
    auto *labels = window->findChild<LabelColumn *>();
    for (const auto &[scrolled, covered] : {std::pair(0, 40), std::pair(1, 79), std::pair(39, 41), std::pair(40, 40)}) {
        grid().horizontalScrollBar()->setValue(scrolled);
        EXPECT_EQ(labels->width(), covered) << scrolled;
    }
}

TEST_F(CandelaPageTest, pressOnALabelGoesToItsRow)
{
    showTable({0, 90}, {0, 45, 90});
    grid().goTo(1, 2);
    auto *labels = window->findChild<LabelColumn *>();
    const int y = labels->mapFromGlobal(grid().viewport()->mapToGlobal(rect(3, 1).center())).y();
    QTest::mouseClick(labels, Qt::LeftButton, Qt::NoModifier, QPoint(10, y));
    EXPECT_EQ(current(), "3,2");
    QTest::mouseClick(labels, Qt::LeftButton, Qt::NoModifier, QPoint(10, 3));
    EXPECT_EQ(current(), "3,2");
}

TEST_F(CandelaPageTest, labelsShowTheAngleOfEachRowInView)
{
    showTable({0}, angles(91, 1));
    auto *labels = window->findChild<LabelColumn *>();
    const QImage top = labels->grab().toImage();
    grid().verticalScrollBar()->setValue(40);
    EXPECT_NE(labels->grab().toImage(), top);
    grid().verticalScrollBar()->setValue(0);
    EXPECT_EQ(labels->grab().toImage(), top);
}

TEST_F(CandelaPageTest, eachLabelStandsBesideItsRow)
{
    showTable({0}, angles(91, 2));
    auto *labels = window->findChild<LabelColumn *>();
    for (const int scrolled : {0, 40, 57}) {
        grid().verticalScrollBar()->setValue(scrolled);
        PaintNotes notes;
        NotedPaper paper(notes);
        labels->render(&paper, {}, {}, {});
        int seen = 0;
        for (const auto &[text, place] : notes.texts) {
            if (text.find_first_not_of(' ') == std::string::npos)
                continue;  // of the caption
            const QPoint at = grid().viewport()->mapFromGlobal(labels->mapToGlobal(place.toPoint()));
            const int row = grid().rowAt(at.y() - 2) + 1;  // texts begin on their base line
            EXPECT_EQ(text, cell(row, 0)) << scrolled;
            ++seen;
        }
        EXPECT_GE(seen, grid().viewport()->height() / grid().rowHeight(0)) << scrolled;
    }
}

TEST_F(CandelaPageTest, tabWalksAlongTheRowPastTheLabelsAndOutAtTheEnd)
{
    showTable({0, 90}, {0, 90});
    for (const std::string expected : {"1,2", "2,1", "2,2"}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(current(), expected);
    }
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "rtbVert");
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "rtbHorz");
    press(Qt::Key_Backtab);
    press(Qt::Key_Backtab);
    for (const std::string expected : {"2,1", "1,2", "1,1"}) {
        press(Qt::Key_Backtab);
        EXPECT_EQ(current(), expected);
    }
}

TEST_F(CandelaPageTest, labelsCannotBeEdited)
{
    showTable({0}, {0, 90});
    grid().setCurrentIndex(at(2, 0));
    typeText("5");
    EXPECT_FALSE(grid().isEditing());
    EXPECT_EQ(cell(2, 0), "90");
    EXPECT_EQ(planes(), "0 / 90");
}

TEST_F(CandelaPageTest, flipScrollsOnceForEachBuild)
{
    EXPECT_EQ(tmrFlip().interval(), 100);
    EXPECT_FALSE(tmrFlip().isActive());
    showTableBeforeFlip({0, 90}, angles(91, 1));
    grid().goTo(60, 2);
    KeyCounter keys;
    grid().installEventFilter(&keys);
    flip();
    EXPECT_EQ(keys.pageUps, 3);
    EXPECT_EQ(grid().verticalScrollBar()->value(), 0);
    EXPECT_LT(grid().currentRow(), 60);
    EXPECT_EQ(grid().currentColumn(), 2);
    showTableBeforeFlip({0, 90}, angles(91, 1));
    flip();
    EXPECT_EQ(current(), "1,1");
}

TEST_F(CandelaPageTest, flipMovesNothingThatHasNoFocusButScrollsAllTheSame)
{
    showTableBeforeFlip({0, 90}, angles(91, 1));
    grid().goTo(91, 1);
    find("cmdNext50")->setFocus();
    flip();
    EXPECT_EQ(current(), "91,1");
    EXPECT_EQ(focusName(), "cmdNext50");
    EXPECT_EQ(grid().verticalScrollBar()->value(), 0);
}

TEST_F(CandelaPageTest, valuesTypedBeforeTheFlipKeepTheRowReached)
{
    showTableBeforeFlip({0, 90}, angles(91, 1));
    typeText("7");
    press(Qt::Key_Return);
    typeText("8");
    press(Qt::Key_Return);
    flip();
    EXPECT_EQ(current(), "3,1");
    EXPECT_EQ(cell(1, 1), "7");
    EXPECT_EQ(cell(2, 1), "8");
}

TEST_F(CandelaPageTest, flipLeavesAnOpenEditorAlone)
{
    showTableBeforeFlip({0, 90}, angles(91, 1));
    grid().goTo(2, 1);
    typeText("12");
    flip();
    EXPECT_TRUE(grid().isEditing());
    typeText("3");
    press(Qt::Key_Return);
    EXPECT_EQ(cell(2, 1), "123");
}

TEST_F(CandelaPageTest, pointerDecidesWhichPlaneIsShownUntilItLeavesTheGrid)
{
    showTable({0, 22.5F, 90}, {0, 45, 90});
    grid().goTo(1, 1);
    QTest::mouseMove(grid().viewport(), rect(3, 2).center());
    EXPECT_EQ(planes(), "22.5 / 90");
    EXPECT_EQ(current(), "1,1");
    press(Qt::Key_Down);  // the newest of the two decides
    EXPECT_EQ(planes(), "0 / 45");
    QTest::mouseMove(grid().viewport(), rect(3, 3).center());
    EXPECT_EQ(planes(), "90 / 90");
    QTest::mouseMove(find("cmdNext50"));
    EXPECT_EQ(planes(), "0 / 45");
}

TEST_F(CandelaPageTest, questionForATipTellsThePointersCellAndShowsNone)
{
    showTable({0, 90}, {0, 90});
    enterValue(1, 1, "1234567");
    grid().setColumnWidth(1, 20);  // the shared grid would show a text that is cut
    const QPoint pointer = rect(2, 2).center();
    QHelpEvent event(QEvent::ToolTip, pointer, grid().viewport()->mapToGlobal(pointer));
    QApplication::sendEvent(grid().viewport(), &event);
    EXPECT_EQ(planes(), "90 / 90");
    QHelpEvent onCut(QEvent::ToolTip, rect(1, 1).center(), grid().viewport()->mapToGlobal(rect(1, 1).center()));
    QApplication::sendEvent(grid().viewport(), &onCut);
    EXPECT_EQ(planes(), "0 / 0");
    EXPECT_FALSE(QToolTip::isVisible());
}

TEST_F(CandelaPageTest, errorsOfThePlotAreToldOnceUntilAPassSucceeds)
{
    showTable({0, 90}, {0, 45, 90});
    const auto move = [&](Qt::Key key) {
        press(key);
        QCoreApplication::processEvents();
    };
    state.PhotFiles(1).NumHorzAngles = 9;
    move(Qt::Key_Down);
    move(Qt::Key_Down);
    enterValue(1, 1, "5");
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|0] err in paintCda\n");
    EXPECT_EQ(cell(1, 1), "5");
    state.PhotFiles(1).NumHorzAngles = 2;
    move(Qt::Key_Up);
    state.PhotFiles(1).NumHorzAngles = 9;
    move(Qt::Key_Down);
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|0] err in paintCda\n[PenwrightPE|0] err in paintCda\n");
}

}  // namespace
}  // namespace penwright::test
