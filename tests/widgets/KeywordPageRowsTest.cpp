// Page 3: typing in the grid, rows inserted, deleted and moved, and what is said under the grid.
#include "widgets/KeywordPageTest.h"

namespace penwright::test {
namespace {

/// Page 3 with the rows "IESNA91", "[A]" to "[D]", each keyword with a value of its letter.
class KeywordPageRows : public KeywordPageTest {
protected:
    void SetUp() override { open({{"AIESNA91", ""}, {"B[A]", "a"}, {"C[B]", "b"}, {"D[C]", "c"}, {"E[D]", "d"}}); }

    /// The keywords' letters in their order, "." for an empty row, "1" for the version line.
    std::string order()
    {
        std::string letters;
        const QAbstractItemModel &model = *grid()->model();
        for (int row = 0; row + 1 < model.rowCount(); ++row) {
            const std::string key = model.index(row, 0).data().toString().toStdString();
            letters += key.empty() ? '.' : key == "IESNA91" ? '1' : key[1];
        }
        return letters;
    }

    QMenu *menu() { return find<QMenu>("mnuRows"); }
    QAction *action(const std::string &name)
    {
        auto *found = window->findChild<QAction *>(QString::fromStdString(name));
        if (!found)
            throw std::runtime_error("no action " + name);
        return found;
    }
    void sendMenuRequest(QContextMenuEvent::Reason reason, const QPoint &at = {})
    {
        QWidget *target = reason == QContextMenuEvent::Mouse ? grid()->viewport() : static_cast<QWidget *>(grid());
        QContextMenuEvent event(reason, at, target->mapToGlobal(at));
        QApplication::sendEvent(target, &event);
    }
    QPoint centre(int row, int column) { return grid()->visualRect(grid()->model()->index(row - 1, column)).center(); }
};

struct RowKey {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int row;
    std::string order;
    std::string cell;
};

void PrintTo(const RowKey &row, std::ostream *out)
{
    *out << QKeySequence(row.key | row.modifiers).toString().toStdString() << " in row " << row.row;
}

class KeywordPageRowKey : public KeywordPageRows, public testing::WithParamInterface<RowKey> {};

constexpr auto kCtrl = Qt::ControlModifier;
constexpr auto kAlt = Qt::AltModifier;

INSTANTIATE_TEST_SUITE_P(
    Keys, KeywordPageRowKey,
    testing::Values(RowKey{Qt::Key_Plus, kCtrl, 1, ".1ABCD", "1,0"}, RowKey{Qt::Key_Plus, kCtrl, 3, "1A.BCD", "3,0"},
                    RowKey{Qt::Key_Plus, kCtrl, 6, "1ABCD.", "6,0"}, RowKey{Qt::Key_Equal, kCtrl, 3, "1A.BCD", "3,0"},
                    RowKey{Qt::Key_Plus, kCtrl | Qt::KeypadModifier, 3, "1A.BCD", "3,0"},
                    RowKey{Qt::Key_Minus, kCtrl, 1, "ABCD", "1,1"}, RowKey{Qt::Key_Minus, kCtrl, 5, "1ABC", "5,1"},
                    RowKey{Qt::Key_Minus, kCtrl | Qt::KeypadModifier, 2, "1BCD", "2,1"},
                    RowKey{Qt::Key_Minus, kCtrl, 6, "1ABCD", "6,1"}, RowKey{Qt::Key_Up, kAlt, 3, "1BACD", "2,1"},
                    RowKey{Qt::Key_Up, kAlt, 1, "1ABCD", "1,1"}, RowKey{Qt::Key_Up, kAlt, 6, "1ABCD", "6,1"},
                    RowKey{Qt::Key_Down, kAlt, 3, "1ACBD", "4,1"}, RowKey{Qt::Key_Down, kAlt, 5, "1ABCD", "5,1"}));

TEST_P(KeywordPageRowKey, changesTheRowsAndKeepsTheCell)
{
    grid()->goTo(GetParam().row, 1);
    press(GetParam().key, GetParam().modifiers);
    EXPECT_EQ(order(), GetParam().order);
    if (GetParam().order != "1ABCD")
        EXPECT_EQ(currentCell(), GetParam().cell);
    EXPECT_EQ(focusName(), "keyGrid");
}

TEST_P(KeywordPageRowKey, takesTheOpenEditorFirst)
{
    grid()->goTo(GetParam().row, 1);
    typeText("typed");
    press(GetParam().key, GetParam().modifiers);
    EXPECT_FALSE(grid()->isEditing());
    const bool isDeleted = GetParam().key == Qt::Key_Minus;
    EXPECT_EQ(rows().find("|typed\n") == std::string::npos, isDeleted) << rows();
}

TEST_F(KeywordPageRows, movedRowTakesItsValueAlong)
{
    grid()->goTo(2, 0);
    press(Qt::Key_Down, kAlt);
    press(Qt::Key_Down, kAlt);
    EXPECT_EQ(rows(), "IESNA91|\n[B]|b\n[C]|c\n[A]|a\n[D]|d\n");
}

TEST_F(KeywordPageRows, selectedRowsGoTogether)
{
    grid()->goTo(2, 0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, kAlt);
    EXPECT_EQ(order(), "1CABD");
    press(Qt::Key_Down, kAlt);
    EXPECT_EQ(order(), "1CDAB");
    press(Qt::Key_Up, kAlt);
    EXPECT_EQ(order(), "1CABD");
    press(Qt::Key_Minus, kCtrl);
    EXPECT_EQ(order(), "1CD");
}

TEST_F(KeywordPageRows, ctrlShiftUpAndDownExtendTheSelection)
{
    const auto selected = [this] {
        const QItemSelection selection = grid()->selectionModel()->selection();
        return selection.size() != 1
                   ? std::string("?")
                   : std::to_string(selection.first().top() + 1) + "-" + std::to_string(selection.first().bottom() + 1);
    };
    grid()->goTo(3, 1);
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(selected(), "3-5");
    press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(selected(), "1-3");
    EXPECT_EQ(order(), "1ABCD");
    press(Qt::Key_Down, kAlt);
    EXPECT_EQ(order(), "C1ABD");
}

TEST_F(KeywordPageRows, altDownMovesTheRowOfAKeywordAndF4OpensItsList)
{
    const auto isListOpen = [] { return QApplication::activePopupWidget() != nullptr; };
    grid()->goTo(4, 0);
    press(Qt::Key_Down, kAlt);
    EXPECT_EQ(order(), "1ABDC");
    press(Qt::Key_Down, kAlt);
    EXPECT_EQ(order(), "1ABDC");
    EXPECT_EQ(currentCell(), "5,0");
    EXPECT_FALSE(isListOpen() || grid()->isEditing());
    press(Qt::Key_F4);
    EXPECT_TRUE(isListOpen());
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    EXPECT_FALSE(grid()->isEditing());
    typeText("[L");
    press(Qt::Key_Down, kAlt);
    EXPECT_TRUE(isListOpen());
    EXPECT_EQ(order(), "1ABDC");
}

TEST_F(KeywordPageRows, lastRowsCanAllBeDeleted)
{
    grid()->goTo(1, 0);
    for (int i = 0; i < 7; ++i)
        press(Qt::Key_Minus, kCtrl);
    EXPECT_EQ(rows(), "");
    EXPECT_EQ(warningsOfNext(), "file must start with IES version number (i.e. IESNA:LM-63-1995)\r\n");
    EXPECT_EQ(currentCell(), "1,0");
    typeText("IESNA91");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().Keywords, (OneBased<std::string>{"IESNA91 "}));
}

TEST_F(KeywordPageRows, rowKeysDoNothingOutsideTheGrid)
{
    find("cmdNext20")->setFocus();
    press(Qt::Key_Minus, kCtrl);
    press(Qt::Key_Plus, kCtrl);
    EXPECT_EQ(order(), "1ABCD");
}

TEST_F(KeywordPageRows, contextMenuActsOnTheCurrentRow)
{
    grid()->goTo(3, 1);
    sendMenuRequest(QContextMenuEvent::Keyboard);
    ASSERT_EQ(QApplication::activePopupWidget(), menu());
    std::string entries;
    for (const QAction *entry : menu()->actions())
        entries += entry->text().remove('&').toStdString() + (entry->isSeparator() ? "-" : "") + "\n";
    EXPECT_EQ(entries, "Insert Row Above\nDelete Row\n-\nMove Row Up\nMove Row Down\n-\nUndo\nRedo\n");
    QTest::keyClick(menu(), Qt::Key_D);
    EXPECT_EQ(order(), "1ACD");
    EXPECT_FALSE(menu()->isVisible());
    EXPECT_EQ(focusName(), "keyGrid");
}

TEST_F(KeywordPageRows, contextMenuOfTheMouseActsOnTheRowClicked)
{
    grid()->goTo(1, 0);
    QTest::mouseClick(grid()->viewport(), Qt::RightButton, {}, centre(4, 1));
    sendMenuRequest(QContextMenuEvent::Mouse, centre(4, 1));
    ASSERT_EQ(QApplication::activePopupWidget(), menu());
    QTest::keyClick(menu(), Qt::Key_U);
    EXPECT_EQ(order(), "1ACBD");
}

TEST_F(KeywordPageRows, contextMenuOfARowNumberActsOnThatRow)
{
    QHeaderView &header = *grid()->verticalHeader();
    emit header.customContextMenuRequested(QPoint(4, header.sectionViewportPosition(4) + 4));
    ASSERT_EQ(QApplication::activePopupWidget(), menu());
    QTest::keyClick(menu(), Qt::Key_I);
    EXPECT_EQ(order(), "1ABC.D");
}

TEST_F(KeywordPageRows, menuOffersWhatTheRowAllows)
{
    const auto enabled = [this] {
        std::string names;
        for (const char *name : {"insertRow", "deleteRow", "moveRowUp", "moveRowDown"})
            names += action(name)->isEnabled() ? std::string(name) + " " : "";
        return names;
    };
    grid()->goTo(1, 0);
    EXPECT_EQ(enabled(), "insertRow deleteRow moveRowDown ");
    grid()->goTo(3, 0);
    EXPECT_EQ(enabled(), "insertRow deleteRow moveRowUp moveRowDown ");
    grid()->goTo(5, 0);
    EXPECT_EQ(enabled(), "insertRow deleteRow moveRowUp ");
    grid()->goTo(6, 0);
    EXPECT_EQ(enabled(), "insertRow ");
    typeInto(6, 0, "[E]");
    grid()->goTo(5, 0);
    EXPECT_EQ(enabled(), "insertRow deleteRow moveRowUp moveRowDown ");
}

TEST_F(KeywordPageRows, unloadingClosesTheMenu)
{
    sendMenuRequest(QContextMenuEvent::Keyboard);
    ASSERT_TRUE(menu()->isVisible());
    closing.begin();
    ASSERT_TRUE(runUntilEnd().has_value());
    EXPECT_FALSE(menu()->isVisible());
    EXPECT_EQ(order(), "1ABCD");
}

TEST_F(KeywordPageRows, listOfTheKeywordColumnOffersKeywordsAndInRowOneVersionsFirst)
{
    const auto offered = [this](int row) {
        grid()->goTo(row, 0);
        press(Qt::Key_F2);
        auto *list = qobject_cast<QComboBox *>(QApplication::focusWidget());
        if (!list)
            return std::string("no list");
        const std::string text = std::to_string(list->count()) + " " + list->itemText(0).toStdString() + " " +
                                 list->itemData(0, Qt::ToolTipRole).toString().toStdString();
        press(Qt::Key_Escape);
        return text;
    };
    EXPECT_EQ(offered(1), "23 IESNA:LM-63-2002 Version line of the format of 2002");
    EXPECT_EQ(offered(2), "20 [TEST] Test report number");
    EXPECT_EQ(offered(6), "20 [TEST] Test report number");
}

TEST_F(KeywordPageRows, freeTextIsTakenWithoutItsOuterBlanks)
{
    typeInto(2, 0, " [_MY KEY] ");
    typeInto(2, 1, "  two  words ");
    EXPECT_TRUE(rows().starts_with("IESNA91|\n[_MY KEY]|two  words\n[B]|b\n"));
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(KeywordPageRows, blanksAloneAppendNoRow)
{
    typeInto(6, 0, "  ");
    EXPECT_EQ(order(), "1ABCD");
    typeInto(6, 0, " x ");
    EXPECT_EQ(grid()->model()->index(5, 0).data().toString(), "x");
    EXPECT_EQ(grid()->model()->rowCount(), 7);
}

TEST_F(KeywordPageRows, spreadsheetRowsArePastedAndAppended)
{
    grid()->goTo(5, 0);
    QApplication::clipboard()->setText("[LAMP]\tL 1\n[MORE]\t L 2 \n");
    press(Qt::Key_V, kCtrl);
    EXPECT_TRUE(rows().ends_with("[C]|c\n[LAMP]|L 1\n[MORE]|L 2\n"));
}

TEST_F(KeywordPageRows, descriptionFollowsTheCurrentRowAndWhatIsTyped)
{
    EXPECT_EQ(label("labDescription"), "Version line of the format of 1991");
    grid()->goTo(2, 0);
    EXPECT_EQ(label("labDescription"), "Not a standard keyword. A user keyword begins with \"[_\".");
    typeText("[LAMP]");
    EXPECT_EQ(label("labDescription"), "Lamp description (i.e., type, wattage, size, etc.)");
    typeText("x");
    EXPECT_EQ(label("labDescription"), "Not a standard keyword. A user keyword begins with \"[_\".");
    press(Qt::Key_Escape);
    typeInto(2, 0, "[LUMCAT]");
    grid()->goTo(2, 1);
    EXPECT_EQ(label("labDescription"), "Luminaire catalog number");
    grid()->goTo(6, 0);
    EXPECT_EQ(label("labDescription"), "Type here to add line 6.");
}

TEST_F(KeywordPageRows, charactersOfTheLineAreCountedAsTheyAreTyped)
{
    grid()->goTo(2, 1);
    EXPECT_EQ(label("labCharacters"), "4 of 254 characters");
    typeText("x");
    EXPECT_EQ(label("labCharacters"), "4 of 254 characters");
    typeText("yz ");
    EXPECT_EQ(label("labCharacters"), "6 of 254 characters");
    press(Qt::Key_Escape);
    EXPECT_EQ(label("labCharacters"), "4 of 254 characters");
    grid()->goTo(6, 0);
    EXPECT_EQ(label("labCharacters"), "0 of 254 characters");
}

TEST_F(KeywordPageRows, tooLongALineIsWarnedOfButNotStopped)
{
    grid()->goTo(2, 1);
    typeText(std::string(251, 'x'));
    EXPECT_EQ(label("labCharacters"), "254 of 254 characters");
    EXPECT_FALSE(find("labCharacters")->font().bold());
    typeText("x");
    EXPECT_EQ(label("labCharacters"), "255 of 254 characters, 1 too many");
    EXPECT_TRUE(find("labCharacters")->font().bold());
    press(Qt::Key_Return);
    EXPECT_EQ(label("labCharacters"), "4 of 254 characters");
    EXPECT_FALSE(find("labCharacters")->font().bold());
    press(Qt::Key_Up);
    EXPECT_EQ(label("labCharacters"), "255 of 254 characters, 1 too many");
}

TEST_F(KeywordPageRows, emptyRowsAreNamed)
{
    EXPECT_EQ(label("labEmptyRows"), "");
    grid()->goTo(3, 0);
    press(Qt::Key_Plus, kCtrl);
    EXPECT_EQ(label("labEmptyRows"), "Row 3 is empty: it is written to the file as an empty line.");
    typeText("[LAMP]");
    press(Qt::Key_Return);
    EXPECT_EQ(label("labEmptyRows"), "");
    for (const int row : {2, 5}) {
        grid()->goTo(row, 0);
        press(Qt::Key_Right, Qt::ShiftModifier);
        press(Qt::Key_Delete);
    }
    EXPECT_EQ(label("labEmptyRows"), "Rows 2 and 5 are empty: each is written to the file as an empty line.");
    click("cmdDefaultLoad");
    EXPECT_EQ(label("labEmptyRows"), "");
}

TEST_F(KeywordPageRows, nothingMovesWhenTheTextsUnderTheGridChange)
{
    const auto places = [this] {
        settle();
        std::vector<QRect> all;
        for (const char *name : {"keyGrid", "labDescription", "labEmptyRows", "labCharacters", "cmdDefaultLoad",
                                 "cmdSaveDefaults", "cmdNext20"})
            all.push_back(find(name)->geometry());
        return all;
    };
    const std::vector<QRect> before = places();
    typeInto(2, 0, "[LAMPPOSITION]");
    typeInto(2, 1, std::string(300, 'x'));
    for (const int row : {4, 4, 4, 4}) {
        grid()->goTo(row, 0);
        press(Qt::Key_Plus, kCtrl);
    }
    grid()->goTo(2, 1);
    EXPECT_NE(label("labEmptyRows"), "");
    EXPECT_EQ(places(), before);
}

TEST_F(KeywordPageRows, keywordColumnShowsItsWidestEntryWhole)
{
    const QFontMetrics metrics = grid()->fontMetrics();
    for (const char *key : {"IESNA:LM-63-2002", "[COLORCONSTANT]", "[LAMPPOSITION]", "[DISTRIBUTION]"})
        EXPECT_GT(grid()->columnWidth(0), metrics.horizontalAdvance(key) + 30) << key;
    const int widthBefore = grid()->columnWidth(0);
    const int valueBefore = grid()->columnWidth(1);
    window->resize(1280, 900);
    settle();
    EXPECT_EQ(grid()->columnWidth(0), widthBefore);
    EXPECT_EQ(grid()->columnWidth(1), valueBefore + 1280 - 720);
    EXPECT_FALSE(grid()->horizontalScrollBar()->isVisible());
}

TEST_F(KeywordPageRows, blockPastedWithoutACurrentCellIsToldWhatIsMissing)
{
    grid()->setFocus();
    grid()->setCurrentIndex({});
    grid()->clearSelection();
    QApplication::clipboard()->setText("[LAMP]\tL 1");
    press(Qt::Key_V, kCtrl);
    EXPECT_EQ(label("labDescription"), "Select a cell first, then paste again.");
    EXPECT_EQ(grid()->accessibleDescription(), "Select a cell first, then paste again.");
    press(Qt::Key_Down);
    EXPECT_NE(label("labDescription"), "Select a cell first, then paste again.");
    EXPECT_EQ(order(), "1ABCD");
}

}  // namespace
}  // namespace penwright::test
