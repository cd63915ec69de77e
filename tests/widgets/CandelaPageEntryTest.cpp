#include "widgets/CandelaPageTest.h"

namespace penwright::test {
namespace {

using CandelaPageEntry = CandelaPageTest;

TEST_F(CandelaPageEntry, acceptedValueIsShownKeptAndDrawnAtOnce)
{
    showTable({0, 90}, {0, 90});
    EXPECT_NE(drawn().find("no values"), std::string::npos);
    enterValue(1, 1, "12.3");
    EXPECT_EQ(cell(1, 1), "12.3");
    EXPECT_EQ(state.CandelaWorkRecord(1).Candela(1, 1), 12.300000190734863);
    EXPECT_NE(drawn().find("largest 12.3 candela"), std::string::npos) << drawn();
    EXPECT_EQ(current(), "2,1");
    EXPECT_EQ(state.PhotFiles(1).Candela.rows(), 0);
}

struct RefusalCase {
    std::string text;
    std::string message;
};

class CandelaPageRefusal : public CandelaPageTest, public testing::WithParamInterface<RefusalCase> {};

TEST_P(CandelaPageRefusal, isToldAndTheCellKeepsItsValue)
{
    showTable({0, 90}, {0, 90});
    enterValue(1, 1, "7");
    enterValue(1, 1, GetParam().text);
    EXPECT_EQ(dialogs.transcript, GetParam().message + "\n");
    EXPECT_EQ(cell(1, 1), "7");
    EXPECT_EQ(current(), "1,1");
}

INSTANTIATE_TEST_SUITE_P(Texts, CandelaPageRefusal,
                         testing::ValuesIn(std::vector<RefusalCase>{
                             {"abc", "[Invalid entry|0] Not a number I know."},
                             {"-1", "[PenwrightPE|0] candela values cannot be negative!"},
                             {"9999999", "[PenwrightPE|0] candel values must be less than 10 million."},
                         }));

TEST_F(CandelaPageEntry, decimalCommaIsExplainedUnderTheGrid)
{
    showTable({0, 90}, {0, 90});
    enterValue(1, 1, "2481,37");
    EXPECT_EQ(dialogs.transcript, "[Invalid entry|0] Not a number I know.\n");
    EXPECT_TRUE(find("cdaHint")->isVisible());
    EXPECT_EQ(find<QLabel>("cdaHint")->text(), "The decimal sign is a point, as in 2481.37.");
    enterValue(1, 1, "abc");
    EXPECT_FALSE(find("cdaHint")->isVisible());
    enterValue(1, 1, "2481.37");
    EXPECT_EQ(cell(1, 1), "2481.37");
}

TEST_F(CandelaPageEntry, valueThatReadsAsTheCellDoesIsTakenAllTheSame)
{
    ASSERT_NE(12.34568F, 12.34567891F);
    showTable({0}, {0});
    for (const char *text : {"12.34567891", "12.34568"})
        enterValue(1, 1, text);
    EXPECT_EQ(cell(1, 1), "12.34568");
    click("cmdNext50");
    EXPECT_EQ(state.PhotFiles(1).Candela(1, 1), double{12.34568F});
}

TEST_F(CandelaPageEntry, keptValueEditedBackToWhatItWasIsKept)
{
    showTable({0}, {0});
    enterValue(1, 1, "1234567.75");
    ASSERT_EQ(cell(1, 1), "1234568");
    page().lsbStart();
    ASSERT_EQ(cell(1, 1), "1234567.75");
    press(Qt::Key_F2);
    typeText("x");
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1), "1234567.75");
}

TEST_F(CandelaPageEntry, deletedBlanksAreNoValues)
{
    showTable({0, 90}, {0, 45, 90});
    int values = 0;
    QObject::connect(&grid(), &GridView::cellWritten, &grid(), [&] { ++values; });
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    QCoreApplication::processEvents();
    EXPECT_EQ(values, 0);
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(CandelaPageEntry, copyTakesTheWholeTableWithItsLineEnds)
{
    showTable({0, 90}, {0, 90});
    enterValue(2, 1, "0.5");
    grid().goTo(1, 2);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), " \t \r\n0.5\t \r\n");
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->formats(), QStringList("text/plain"));
}

TEST_F(CandelaPageEntry, otherModifiersNeitherCopyNorPaste)
{
    showTable({0}, {0, 90});
    for (const auto modifiers : {Qt::ControlModifier | Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier,
                                 Qt::ControlModifier | Qt::MetaModifier, Qt::KeyboardModifiers(Qt::AltModifier)}) {
        QGuiApplication::clipboard()->setText("1\t2");
        press(Qt::Key_C, modifiers);
        if (modifiers != (Qt::ControlModifier | Qt::ShiftModifier))  // these ask for a table that is not plain
            press(Qt::Key_V, modifiers);
        QCoreApplication::processEvents();
        EXPECT_EQ(clipboard(), "1\t2");
        EXPECT_EQ(cell(1, 1) + cell(2, 1), "  ") << static_cast<int>(modifiers);
    }
    EXPECT_EQ(dialogs.transcript, "");
}

class CandelaPageLineEnds : public CandelaPageTest, public testing::WithParamInterface<std::string> {};

TEST_P(CandelaPageLineEnds, fillTheWholeTableWhateverCellIsCurrent)
{
    showTable({0, 45, 90}, {0, 90});
    grid().goTo(2, 3);
    paste(GetParam());
    EXPECT_EQ(dialogs.transcript, "");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "1\t2\t3\r\n4\t5\t6\r\n");
    EXPECT_EQ(current(), "2,3");
    EXPECT_NE(drawn().find("plane through horizontal angle 90: largest 6 candela"), std::string::npos) << drawn();
}

INSTANTIATE_TEST_SUITE_P(Texts, CandelaPageLineEnds,
                         testing::Values("1\t2\t3\r\n4\t5\t6\r\n", "1\t2\t3\n4\t5\t6\n", "1\t2\t3\r\n4\t5\t6",
                                         "1\t2\t3\n4\t5\t6", "1\n2\n3\n4\n5\n6"));

TEST_F(CandelaPageEntry, wrongCountIsToldAndChangesNothing)
{
    showTable({0, 45, 90}, {0, 30, 60, 90});
    paste("1\t2\t3\t4\t5\t6\t7\t8\t9\t10");
    QGuiApplication::clipboard()->clear();
    press(Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript,
              "[PenwrightPE|0] 9 values read; need 11\n"
              "[PenwrightPE|0] -1 values read; need 11\n");
    EXPECT_EQ(cell(1, 1), " ");
    EXPECT_EQ(current(), "1,1");
}

TEST_F(CandelaPageEntry, pastedTextThatIsNoNumberIsToldShownAndGoneTo)
{
    showTable({0, 45}, {0, 90});
    paste("1\t2\nabc\t4");
    EXPECT_EQ(dialogs.transcript,
              "[New Photometric file: (5 of 6) Candela Values|0] Row 2, column 1 (V:90 H:0): "
              "\"abc\" is not a number. The values before it have been pasted.\n");
    EXPECT_EQ(cell(1, 1) + cell(1, 2) + cell(2, 1) + cell(2, 2), "12  ");
    EXPECT_EQ(current(), "2,1");
    EXPECT_NE(drawn().find("angle 0: largest 1 candela"), std::string::npos) << drawn();
}

TEST_F(CandelaPageEntry, linesOfAnotherLengthAreSaidUnderTheGridUntilTheNextChange)
{
    showTable({0, 90}, {0, 45, 90});
    auto *hint = find<QLabel>("cdaHint");
    const QString own = grid().accessibleDescription();
    EXPECT_FALSE(hint->isVisible());
    paste("1\t2\t3\n4\t5\t6");
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text(), "Lines of 3 values were pasted into 2 columns");
    EXPECT_GE(hint->y(), grid().geometry().bottom());
    EXPECT_EQ(grid().accessibleDescription(), own + ". Lines of 3 values were pasted into 2 columns");
    EXPECT_EQ(cell(2, 1), "3");
    EXPECT_EQ(dialogs.transcript, "");
    press(Qt::Key_Down);
    EXPECT_TRUE(hint->isVisible());
    paste("1\t2\n3\t4\n5\t6");
    EXPECT_FALSE(hint->isVisible());
    EXPECT_EQ(grid().accessibleDescription(), own);
}

TEST_F(CandelaPageEntry, endOfAPasteIsSeenWithTheValuesAroundIt)
{
    showTable({0}, angles(100, 0.9F));
    std::string table;
    for (int i = 1; i <= 100; ++i)
        table += i == 60 ? "abc\n" : std::to_string(i) + "\n";
    paste(table);
    EXPECT_EQ(current(), "60,1");
    for (const int row : {58, 59, 60, 61, 62})
        EXPECT_TRUE(grid().viewport()->rect().contains(rect(row, 1))) << row;
    EXPECT_EQ(find<QLabel>("cdaHint")->text().toStdString(),
              "Row 60, column 1 (V:53.1 H:0) and all behind it are as before the paste");
}

TEST_F(CandelaPageEntry, openEditorCopiesAndPastesItsOwnText)
{
    showTable({0, 90}, {0, 90});
    typeText("12");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "12");
    press(Qt::Key_End);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1), "1212");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(CandelaPageEntry, cellOfASpreadsheetGoesIntoTheOpenEditor)
{
    showTable({0, 90}, {0, 90});
    typeText("1");
    paste("25\n");
    press(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1), "125");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(CandelaPageEntry, tableOnTheClipboardDropsTheOpenEditor)
{
    showTable({0, 90}, {0, 90});
    for (const std::string table : {"1\t2\t3\t4", "5\n6\n7\n8"}) {
        typeText("99");
        ASSERT_TRUE(grid().isEditing());
        paste(table);
        EXPECT_FALSE(grid().isEditing());
        EXPECT_EQ(cell(1, 1), table.substr(0, 1));
        EXPECT_EQ(cell(2, 2), table.substr(6, 1));
    }
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(CandelaPageEntry, pastedNegativesAreGapsInThePlotAndTellNothingYet)
{
    showTable({0}, {0, 90}, kTypeB);
    paste("-5\n7");
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(cell(1, 1), "-5");
    EXPECT_NE(drawn().find("largest 7"), std::string::npos);
}

TEST_F(CandelaPageEntry, absurdClipboardIsRefusedWithAWord)
{
    showTable({0}, {0, 90});
    QGuiApplication::clipboard()->setText(QString(70 * 1024 * 1024, '1'));
    press(Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript,
              "[New Photometric file: (5 of 6) Candela Values|0] The clipboard holds 70 million "
              "characters, far more than a table can have. Nothing was pasted.\n");
    QGuiApplication::clipboard()->clear();
}

TEST_F(CandelaPageEntry, aThousandByAThousandValuesArrive)
{
    showTable(angles(1000, 0.25F), angles(1000, 0.125F), kTypeB);
    std::string table;
    for (int i = 0; i < 1000000; ++i)
        table += std::to_string(i) + (i % 1000 == 999 ? "\n" : "\t");
    paste(table);
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(cell(1000, 1000), "999999");
    EXPECT_EQ(cell(1, 1000), "999");
    EXPECT_EQ(cell(1000, 1), "999000");
    EXPECT_GT(grid().columnWidth(1000), 40);
}

}  // namespace
}  // namespace penwright::test
