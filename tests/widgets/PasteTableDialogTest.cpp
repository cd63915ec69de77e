// What the dialog shows and says of the clipboard's text, and how it is used.
#include "widgets/PasteTableTest.h"

namespace penwright::test {
namespace {

using PasteTable = PasteTableTest;

TEST_F(PasteTable, showsTheTableAsItWasUnderstoodAndSaysSo)
{
    openPageFive();
    open(kTable, [&](PasteTableDialog &) {
        EXPECT_EQ(preview(), "|H 0|H 90\nV 0|1000|1000\nV 45|700.5|650.25\nV 90|12.3|0");
        EXPECT_EQ(words(),
                  "Tabs between cells, decimal point, no sign between thousands. Read: 3 vertical angles from 0 to 90 "
                  "down the text; 2 horizontal angles from 0 to 90 across the text.");
        EXPECT_EQ(problem(), "");
        EXPECT_EQ(in<QLabel>("tableSource").text(), "From the clipboard");
        leave();
    });
    EXPECT_EQ(undoName(), "Undo");
}

TEST_F(PasteTable, choicesThatAreNotPlainCanBeMadeByKeys)
{
    openPageFive();
    open("0;1.234;1.234\n45;700;650\n", [&](PasteTableDialog &) {
        EXPECT_EQ(in<QComboBox>("tableSeparator").currentText(), "Semicolon");
        choose("tableThousands", 0);
        choose("tableDecimal", 0);
        EXPECT_EQ(preview(), "|Column 1|Column 2\nV 0|1.234|1.234\nV 45|700|650");
        choose("tableDecimal", 1);
        choose("tableThousands", 1);
        EXPECT_EQ(preview(), "|Column 1|Column 2\nV 0|1234|1234\nV 45|700|650");
        QTest::keyClick(&in("tableAngleColumn"), Qt::Key_Space);
        EXPECT_EQ(preview(), "|Column 1|Column 2|Column 3\nRow 1|0|1234|1234\nRow 2|45|700|650");
        choose("tableDirection", 1);
        EXPECT_EQ(preview(), "|Column 1|Column 2\nRow 1|0|45\nRow 2|1234|700\nRow 3|1234|650");
        choose("tableSeparator", 0);
        EXPECT_EQ(problem().substr(0, 30), "No line of numbers was found; ");
        leave();
    });
}

TEST_F(PasteTable, listOfDirectionsIsShownAsATableAndCanBeReadOtherwise)
{
    openPageFive();
    open("C\tGamma\tcd\n0\t0\t9\n0\t90\t1\n90\t0\t9\n90\t90\t2\n", [&](PasteTableDialog &) {
        EXPECT_EQ(preview(), "|H 0|H 90\nV 0|9|9\nV 90|1|2");
        EXPECT_EQ(in<QComboBox>("tableDirection").currentText(), "Second in a list");
        EXPECT_FALSE(in("tableAngleRow").isEnabled());
        EXPECT_FALSE(in("tableAngleColumn").isEnabled());
        choose("tableDirection", 2);
        EXPECT_EQ(preview(), "|H 0|H 90\nV 0|9|1\nV 90|9|2");
        choose("tableDirection", 0);
        EXPECT_EQ(preview(), "|Column 1|Column 2|Column 3\nRow 1|0|0|9\nRow 2|0|90|1\nRow 3|90|0|9\nRow 4|90|90|2");
        EXPECT_TRUE(in("tableAngleRow").isEnabled());
        EXPECT_TRUE(in("tableAngleColumn").isEnabled());
        leave();
    });
}

TEST_F(PasteTable, faultOfAListSaysNothingOfTheSizeThatATableNeeds)
{
    openPageFive();
    EXPECT_EQ(
        problemOf("C\tGamma\tcd\n0\t0\t9\n0\t90\t1\n90\t0\t9\n"),
        "Line 4: vertical angle 90, horizontal angle 90 is missing behind it; a list has one line for each pair of "
        "angles.");
}

TEST_F(PasteTable, unitThatIsNoIntensityWaitsForAChoice)
{
    openPageFour();
    open("Relative intensity in %\n" + kTable, [&](PasteTableDialog &) {
        EXPECT_EQ(preview(), "|H 0|H 90\nV 0|1000|1000\nV 45|700.5|650.25\nV 90|12.3|0");
        EXPECT_EQ(problem(), "The text names percent, lux or another unit than candela: choose what the values are.");
        EXPECT_EQ(in<QComboBox>("tableUnit").currentText(), "");
        EXPECT_FALSE(isOffered());
        choose("tableUnit", 0);
        EXPECT_EQ(problem(), "");
        EXPECT_TRUE(isOffered());
        leave();
    });
}

TEST_F(PasteTable, linesCanBeSkipped)
{
    openPageFive();
    open(kTable, [&](PasteTableDialog &) {
        in<QCheckBox>("tableAngleRow").click();
        in<QSpinBox>("tableSkip").setFocus();
        QTest::keyClick(&in("tableSkip"), Qt::Key_Up);
        EXPECT_EQ(preview(), "|Column 1|Column 2\nV 0|1000|1000\nV 45|700.5|650.25\nV 90|12.3|0");
        EXPECT_NE(words().find(", 1 line skipped."), std::string::npos);
        leave();
    });
}

TEST_F(PasteTable, sizeThatDoesNotFitIsToldWithWhatIsNeeded)
{
    openPageFive();
    EXPECT_EQ(problemOf("5\t2\n3\t4\n"), "2 x 2 values read; 10 x 1 needed (vertical x horizontal angles).");
    EXPECT_EQ(
        problemOf("1\n2\nabc\n4\n"),
        "Line 3, cell 1: \"abc\" is no number. Read before it: 2 lines of 1 value. 10 x 1 values needed (vertical "
        "x horizontal angles).");
}

TEST_F(PasteTable, firstTextThatIsNoNumberIsShownInItsLine)
{
    openPageFive();
    open("\t0\t90\n0\t5\t5\n45\tx5\t4\n", [&](PasteTableDialog &) {
        EXPECT_EQ(problem(), "Line 3, cell 2: \"x5\" is no number. Read before it: 1 line of 2 values.");
        const QModelIndex cell = in<QTableView>("tablePreview").currentIndex();
        EXPECT_EQ(cell.data().toString(), "x5");
        EXPECT_EQ(cell.model()->headerData(cell.row(), Qt::Vertical).toString(), "Line 3");
        EXPECT_FALSE(isOffered());
        leave();
    });
}

TEST_F(PasteTable, whatIsNoTableIsToldInASentence)
{
    openPageFive();
    EXPECT_EQ(problemOf("Dear Sir or Madam,\nplease find attached\n"),
              "No line of numbers was found; a table has one for each angle. Line 1, cell 1: \"Dear Sir or Madam,\" is "
              "no number. 10 x 1 values needed (vertical x horizontal angles).");
    EXPECT_EQ(problemOf("\t0\t90\n0\t5\t5\n50\t4\t4\n45\t3\t3\n90\t0\t0\n"),
              "Line 4, cell 1: angle 45 stands behind 50; angles must rise. Read before it: 2 lines of 2 values.");
    EXPECT_EQ(problemOf(""), "The clipboard holds no text. Copy a table, or take it from a file.");
}

TEST_F(PasteTable, anglesMustPassTheChecksOfTheirPage)
{
    openPageFive();
    EXPECT_EQ(problemOf("\t0\t100\n5\t5\t5\n80\t4\t4\n"),
              "The angles cannot be taken: Vertical angles must start at 0 or 90; Vertical angles must end at 90 or "
              "180; Horizontal angles must end at 0, 90, 180 or 360");
}

TEST_F(PasteTable, valuesThatTheirPageWillTellAreRemarkedOnAndTaken)
{
    openPageFive();
    open("\t0\t90\n0\t5\t6\n45\t-1\t4\n90\t0\t0\n", [&](PasteTableDialog &) {
        EXPECT_EQ(problem(), "At its Next page 5 will name 2 faults, first: value H:0 V:45 is less than zero.");
        EXPECT_TRUE(isOffered());
        leave();
    });
}

TEST_F(PasteTable, valuesBeyondASingleAreRefused)
{
    setText("txtLumPerLamp", "30000");
    openPageFive();
    EXPECT_EQ(problemOf("cd/klm\n\t0\n0\t3E38\n90\t0\n"), "The values cannot be taken: value H:0 V:0: Overflow");
}

TEST_F(PasteTable, absoluteLampsHaveNoKilolumens)
{
    setText("txtLumPerLamp", "-1");
    openPageFive();
    open("cd/klm\n" + kTable, [&](PasteTableDialog &) {
        EXPECT_EQ(problem(),
                  "Candela per kilolumen needs the lumens of the lamps, and page 1 says -1, absolute: there are none.");
        EXPECT_FALSE(isOffered());
        in("tableUnit").setFocus();
        QTest::keyClick(&in("tableUnit"), Qt::Key_Up);
        EXPECT_TRUE(isOffered());
        leave();
    });
}

TEST_F(PasteTable, pageFourWithoutListsNeedsTheAngles)
{
    openPageFour();
    EXPECT_EQ(problemOf("5\t2\n3\t4\n"), "The table has no vertical angles, and page 4 has none yet.");
}

TEST_F(PasteTable, listHoldsAThousandAngles)
{
    openPageFour();
    std::string text = "Gamma\tC0\n";
    for (int v = 0; v <= 1000; ++v)
        text += std::to_string(v * 0.09) + "\t1\n";
    EXPECT_EQ(problemOf(text), "Read: 1001 vertical angles and 1 horizontal angle. A list holds 1000 at most.");
}

TEST_F(PasteTable, everyInputHasALabelAndTabGoesFromTheTopToTheButtons)
{
    openPageFive();
    open(kTable, [&](PasteTableDialog &dialog) {
        EXPECT_EQ(focusName(), "tablePreview");
        std::string way;
        for (int tab = 0; tab < 14; ++tab) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            way += dialog.focusWidget()->objectName().toStdString() + " ";
            EXPECT_NE(QAccessible::queryAccessibleInterface(dialog.focusWidget())->text(QAccessible::Name), "");
        }
        EXPECT_EQ(way,
                  "tableSeparator tableDecimal tableThousands tableSkip tableAngleRow tableAngleColumn tableDirection "
                  "tableUnit helpButton cancelButton okButton takeClipboard chooseFile tablePreview ");
        for (const char *input :
             {"tableSeparator", "tableDecimal", "tableThousands", "tableSkip", "tableDirection", "tableUnit"}) {
            const auto labels = dialog.findChildren<QLabel *>();
            EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
                return label->buddy() == &in(input);
            })) << input;
        }
        leave();
    });
    EXPECT_EQ(focusName(), "cdaGridCd");
}

// 800 x 600 pixels at a scale factor of 2, without the frame of a window manager.
TEST_F(PasteTable, onASmallScreenWordsAndButtonsStayInSightAndAllElseScrollsToTheFocus)
{
    openPageFive();
    open("x" + kTable, [&](PasteTableDialog &dialog) {
        const QSize small(380, 270);
        dialog.resize(small);
        QTest::qWait(0);
        EXPECT_EQ(dialog.size(), small);
        const auto isWhole = [&](QWidget *widget) {
            return widget->visibleRegion().boundingRect() == widget->rect() &&
                   dialog.rect().contains(QRect(widget->mapTo(&dialog, QPoint()), widget->size()));
        };
        for (const char *always : {"tableWords", "helpButton", "cancelButton", "okButton"})
            EXPECT_TRUE(isWhole(&in(always))) << always;
        for (int tab = 0; tab < 14; ++tab) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QTest::qWait(0);
            QWidget *focus = dialog.focusWidget();
            if (focus != &in("tablePreview"))
                EXPECT_TRUE(isWhole(focus)) << focusName();
            EXPECT_FALSE(focus->visibleRegion().isEmpty()) << focusName();
        }
        leave();
    });
}

TEST_F(PasteTable, enterTakesItFromWhereverTheFocusIsAndEscapeLeavesIt)
{
    openPageFive();
    for (const char *from : {"tablePreview", "tableSeparator", "tableSkip", "tableAngleRow", "okButton"}) {
        open(kTable, [&](PasteTableDialog &) {
            in(from).setFocus();
            QTest::keyClick(&in(from), Qt::Key_Return);
        });
        EXPECT_EQ(undoName(), "Undo Paste Table") << from;
        undo();
        open(kTable, [&](PasteTableDialog &) {
            in(from).setFocus();
            QTest::keyClick(&in(from), Qt::Key_Escape);
        });
        EXPECT_EQ(undoName(), "Undo") << from;
    }
}

TEST_F(PasteTable, menuOffersItInTheGridsOfPagesFourAndFive)
{
    openPageFive();
    for (const char *name : {"phoGridVert", "phoGridHorz", "cdaGridCd"}) {
        const auto *action = find(name)->findChild<QAction *>("pasteTable");
        ASSERT_TRUE(action) << name;
        EXPECT_EQ(action->text(), "Paste &Table...");
        EXPECT_EQ(action->shortcut(), QKeySequence("Ctrl+Shift+V"));
    }
    EXPECT_FALSE(find("lmpGridTiltMultiplier")->findChild<QAction *>("pasteTable"));
    EXPECT_FALSE(find("keyGrid")->findChild<QAction *>("pasteTable"));
    QGuiApplication::clipboard()->setText(QString::fromStdString(kTable));
    bool wasOpen = false;
    whenDialogIsUp([&](QDialog &dialog) {
        wasOpen = dialog.objectName() == "pasteTableDialog";
        dialog.reject();
    });
    auto &table = grid("cdaGridCd");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(4, 4), table.mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(&table, &event);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_T);
    EXPECT_TRUE(spinUntil([&] { return wasOpen; }));
}

TEST_F(PasteTable, helpOpensTheTopicOfThePage)
{
    openPageFive();
    open(kTable, [&](PasteTableDialog &) {
        QTest::mouseClick(&in("helpButton"), Qt::LeftButton);
        leave();
    });
    ASSERT_EQ(help.topics.size(), 1U);
    EXPECT_EQ(help.topics.front().second, kPages[kCandelaPage].helpId);
}

TEST_F(PasteTable, anotherTextOfTheClipboardCanBeTaken)
{
    openPageFive();
    open("no table", [&](PasteTableDialog &) {
        EXPECT_FALSE(isOffered());
        QGuiApplication::clipboard()->setText(QString::fromStdString(kTable));
        QTest::mouseClick(&in("takeClipboard"), Qt::LeftButton);
        EXPECT_TRUE(isOffered());
        leave();
    });
}

TEST_F(PasteTable, closingTheProgramTakesItAwayAndNothingIsPasted)
{
    openPageFive();
    const Standing before = standing();
    QTimer::singleShot(0, window.get(), [this] { open(kTable, [this](PasteTableDialog &) { closing.begin(); }); });
    EXPECT_EQ(runUntilEnd(), 0);
    EXPECT_EQ(standing(), before);
}

}  // namespace
}  // namespace penwright::test
