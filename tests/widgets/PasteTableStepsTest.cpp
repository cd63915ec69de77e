// What a table that is taken does to both pages, and how it is undone.
#include "widgets/PasteTableTest.h"

namespace penwright::test {
namespace {

using PasteTableSteps = PasteTableTest;

TEST_F(PasteTableSteps, anglesAndValuesComeTogetherOnPageFive)
{
    openPageFive();
    pasteTable(kTable);
    EXPECT_EQ(text("rtbVert"), "0");
    EXPECT_EQ(shown("cdaGridCd", 2, 1) + "|" + shown("cdaGridCd", 2, 2), "700.5|650.25");
    EXPECT_EQ(undoName(), "Undo Paste Table");
    click("cmdNext50");
    EXPECT_EQ(shownPage(), kFinishPage);
    const PhotometricRecord &record = state.PhotFiles(1);
    EXPECT_EQ(record.VertAngles, (OneBased<float>{0, 45, 90}));
    EXPECT_EQ(record.HorAngles, (OneBased<float>{0, 90}));
    EXPECT_EQ(record.NumVertAngles * 10 + record.NumHorzAngles, 32);
    EXPECT_EQ(record.Candela(1, 3), double{12.3F});
    EXPECT_EQ(record.Candela(2, 2), 650.25);
}

TEST_F(PasteTableSteps, pageFourShowsTheAnglesThatPageFiveWasGiven)
{
    openPageFive();
    pasteTable(kTable);
    click("cmdBack50");
    EXPECT_EQ(find<QComboBox>("phoCmbVert")->currentText() + find<QComboBox>("phoCmbHorz")->currentText(), "32");
    EXPECT_EQ(shown("phoGridVert", 1, 1) + "|" + shown("phoGridHorz", 1, 1), "45|90");
    click("cmdNext30");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(shown("cdaGridCd", 3, 1), "12.3");
}

TEST_F(PasteTableSteps, oneUndoBringsBackBothBitByBitAndRedoMakesThemAgain)
{
    openPageFive();
    fillPageFive();
    const Standing before = standing();
    pasteTable(kTable);
    const Standing after = standing();
    EXPECT_NE(after, before);
    for (int time = 0; time < 2; ++time) {
        undo();
        EXPECT_EQ(standing(), before);
        EXPECT_EQ(undoName(), "Undo Paste");
        EXPECT_EQ(redoName(), "Redo Paste Table");
        redo();
        EXPECT_EQ(standing(), after);
    }
}

TEST_F(PasteTableSteps, pageFourTakesATableBeforeThereIsAny)
{
    openPageFour();
    const Standing before = standing();
    pasteTable(kTable);
    EXPECT_EQ(shownPage(), kDistributionPage);
    EXPECT_EQ(undoName(), "Undo Paste Table");
    const Standing after = standing();
    undo();
    EXPECT_EQ(standing(), before);
    redo();
    EXPECT_EQ(standing(), after);
    click("cmdNext30");
    EXPECT_EQ(shown("cdaGridCd", 3, 1) + "|" + shown("cdaGridCd", 2, 2), "12.3|650.25");
    click("cmdNext50");
    EXPECT_EQ(shownPage(), kFinishPage);
    EXPECT_EQ(state.PhotFiles(1).Candela(1, 3), double{12.3F});
}

TEST_F(PasteTableSteps, theFirstTableOfAllIsUndoneOnPageFourAlone)
{
    openPageFour();
    pasteTable(kTable);
    click("cmdNext30");
    undo();
    EXPECT_EQ(undoName(), "Undo");
    undo();
    EXPECT_EQ(shown("cdaGridCd", 2, 2), "650.25");
}

TEST_F(PasteTableSteps, afterItIsUndonePageFiveBeginsBlankAsEver)
{
    openPageFour();
    pasteTable(kTable);
    undo();
    fillPageFour();
    click("cmdNext30");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(grid("cdaGridCd").model()->rowCount(), 10);
    EXPECT_EQ(shown("cdaGridCd", 1, 1), " ");
    click("cmdBack50");
    EXPECT_EQ(redoName(), "Redo");
}

TEST_F(PasteTableSteps, whatWasPastedOnPageFiveIsUndoneOnPageFourToo)
{
    openPageFive();
    fillPageFive();
    const Standing before = standing();
    pasteTable(kTable);
    click("cmdBack50");
    EXPECT_EQ(undoName(), "Undo Paste Table");
    undo();
    EXPECT_EQ(standing(), before);
    redo();
    click("cmdNext30");
    EXPECT_EQ(shown("cdaGridCd", 2, 2), "650.25");
}

TEST_F(PasteTableSteps, undoTakesWhatWasDoneOnTheOtherPageSinceAlongAndCanBringItBack)
{
    openPageFive();
    fillPageFive();
    const Standing before = standing();
    pasteTable(kTable);
    const Standing pasted = standing();
    click("cmdBack50");
    typeCell("phoGridVert", 1, 1, "50");
    click("cmdNext30");
    undo();  // the table that Next has built
    undo();
    EXPECT_EQ(standing(), before);
    redo();
    EXPECT_EQ(standing(), pasted);
    click("cmdBack50");
    EXPECT_EQ(redoName(), "Redo Typing");
    redo();
    EXPECT_EQ(shown("phoGridVert", 1, 1), "50");
}

TEST_F(PasteTableSteps, twoOfThemAreUndoneOneByOne)
{
    openPageFive();
    const Standing before = standing();
    pasteTable(kTable);
    const Standing first = standing();
    pasteTable("\t0\n0\t5\n90\t4\n");
    EXPECT_NE(standing(), first);
    undo();
    EXPECT_EQ(standing(), first);
    undo();
    EXPECT_EQ(standing(), before);
}

TEST_F(PasteTableSteps, redoEndsWhereTheOtherPageHasGoneAnotherWay)
{
    openPageFive();
    pasteTable(kTable);
    undo();
    click("cmdBack50");
    typeCell("phoGridVert", 1, 1, "20");
    EXPECT_EQ(redoName(), "Redo");
    click("cmdNext30");
    EXPECT_EQ(redoName(), "Redo");
}

TEST_F(PasteTableSteps, valuesWithoutAnglesLeaveThePageOfAnglesAlone)
{
    openPageFive();
    const int steps = page(kDistributionPage).steps().count();
    pasteTable("10\n9\n8\n7\n6\n5\n4\n3\n2\n1\n");
    EXPECT_EQ(shown("cdaGridCd", 10, 1), "1");
    EXPECT_EQ(page(kDistributionPage).steps().count(), steps);
    undo();
    EXPECT_EQ(shown("cdaGridCd", 10, 1), " ");
}

TEST_F(PasteTableSteps, onPageFourTheListsThatAreThereMayGiveTheAngles)
{
    openPageFour();
    fillPageFour();
    pasteTable("10\n9\n8\n7\n6\n5\n4\n3\n2\n1\n");
    EXPECT_EQ(undoName(), "Undo Paste Table");
    click("cmdNext30");
    EXPECT_EQ(shown("cdaGridCd", 10, 1), "1");
}

TEST_F(PasteTableSteps, aSinglePlaneWithoutItsAngleIsThatOfZero)
{
    openPageFour();
    pasteTable("0\t2480\n45\t1700.4\n90\t0\n");
    EXPECT_EQ(shown("phoGridHorz", 1, 0), "0");
    click("cmdNext30");
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "1700.4");
}

TEST_F(PasteTableSteps, whatIsBeingTypedIsTakenBeforeTheTableComes)
{
    openPageFive();
    grid("cdaGridCd").goTo(1, 1);
    typeText("77");
    open(kTable, [&](PasteTableDialog &) { leave(); });
    EXPECT_EQ(shown("cdaGridCd", 1, 1), "77");
    EXPECT_EQ(undoName(), "Undo Typing");
}

TEST_F(PasteTableSteps, candelaPerKilolumenAreMultiplied)
{
    setText("txtNumLamps", "2");
    setText("txtLumPerLamp", "4450");
    openPageFive();
    open("cd/klm\n" + kTable, [&](PasteTableDialog &dialog) {
        EXPECT_EQ(in<QLabel>("tableUnitNote").text(), "The lamps give 8900 lm: the values are multiplied by 8.9.");
        EXPECT_EQ(preview(), "|H 0|H 90\nV 0|8900|8900\nV 45|6234.45|5787.225\nV 90|109.47|0");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    click("cmdNext50");
    EXPECT_EQ(state.PhotFiles(1).Candela(1, 2), double{6234.45F});
}

TEST_F(PasteTableSteps, kilocandelaBecomeCandela)
{
    openPageFive();
    open("Gamma\tC0 [kcd]\n0\t2.48\n45\t1.5\n90\t0\n", [&](PasteTableDialog &dialog) {
        EXPECT_EQ(in<QComboBox>("tableUnit").currentText(), "Kilocandela");
        EXPECT_EQ(in<QLabel>("tableUnitNote").text(), "The values are multiplied by 1000.");
        EXPECT_EQ(preview(), "|H 0\nV 0|2480\nV 45|1500\nV 90|0");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(shown("cdaGridCd", 1, 1), "2480");
}

TEST_F(PasteTableSteps, kilolumensThatAreInTheMultiplierAreNotMultipliedAgain)
{
    setText("txtNumLamps", "2");
    setText("txtLumPerLamp", "4450");
    setText("txtMultiplier", "8.9");
    openPageFive();
    open("cd/klm\n" + kTable, [&](PasteTableDialog &dialog) {
        EXPECT_EQ(in<QComboBox>("tableUnit").currentText(), "Candela");
        EXPECT_EQ(preview(), "|H 0|H 90\nV 0|1000|1000\nV 45|700.5|650.25\nV 90|12.3|0");
        in<QComboBox>("tableUnit").setFocus();
        press(Qt::Key_Down);
        EXPECT_EQ(in<QLabel>("tableUnitNote").text(),
                  "The lamps give 8900 lm: the values are multiplied by 8.9. Page 1 multiplies by 8.9 as well.");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

TEST_F(PasteTableSteps, aTurnedTableIsTurnedBack)
{
    openPageFive();
    pasteTable("C / Gamma\tG0\tG45\tG90\nC0\t1000\t700\t12\nC90\t1000\t650\t0\n");
    EXPECT_EQ(grid("cdaGridCd").model()->rowCount(), 3);
    EXPECT_EQ(shown("cdaGridCd", 2, 1) + "|" + shown("cdaGridCd", 2, 2), "700|650");
}

TEST_F(PasteTableSteps, thousandTimesThousandValuesAreOneStep)
{
    openPageFive();
    std::string text = "x";
    for (int h = 0; h < 1000; ++h)
        text += "\t" + std::to_string(h * 360.0 / 999);
    for (int v = 0; v < 1000; ++v) {
        text += "\n" + std::to_string(v * 180.0 / 999);
        for (int h = 0; h < 1000; ++h)
            text += "\t5";
    }
    const Standing before = standing();
    open(text, [&](PasteTableDialog &dialog) {
        EXPECT_EQ(in<QTableView>("tablePreview").model()->columnCount(), 1000);
        ASSERT_TRUE(spinUntil([&] { return isOffered(); })) << problem();
        EXPECT_EQ(in<QTableView>("tablePreview").model()->rowCount(), 1000);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(shown("cdaGridCd", 1000, 1000), "5");
    undo();
    EXPECT_EQ(standing(), before);
}

}  // namespace
}  // namespace penwright::test
