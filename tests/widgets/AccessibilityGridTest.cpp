// What a screen reader is told of the cells of each grid.
#include <sstream>

#include "widgets/AccessibilityTest.h"

namespace penwright::test {
namespace {

/// The name of a cell's header, which the toolkit makes anew and leaves to whoever asks.
std::string takeName(const QList<QAccessibleInterface *> &headers)
{
    for (QAccessibleInterface *header : headers)
        QAccessible::registerAccessibleInterface(header);
    return headers.isEmpty() ? "no header" : nameOf(*headers.first());
}

/// "row | column | cell" for each of the grid's cells from a first one on.
std::string cellsOf(QWidget *grid, int rows, int columns)
{
    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(grid)->tableInterface();
    std::ostringstream text;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            QAccessibleInterface *cell = table->cellAt(row, column);
            const std::string description = cell->text(QAccessible::Description).toStdString();
            text << takeName(cell->tableCellInterface()->rowHeaderCells()) << " | "
                 << takeName(cell->tableCellInterface()->columnHeaderCells()) << " | " << nameOf(*cell)
                 << (description.empty() ? "" : " (" + description + ")") << "\n";
        }
    return text.str();
}

class ReadGrid : public ReadWizard {};

TEST_F(ReadGrid, cellsOfTiltAreToldByRowAndColumn)
{
    EXPECT_EQ(cellsOf(find("lmpGridTiltMultiplier"), 2, 2),
              "Row 1 | Angle | 0\nRow 1 | Factor | 0\nRow 2 | Angle | 90\nRow 2 | Factor | 0\n");
}

TEST_F(ReadGrid, cellsOfKeywordsAreToldByRowAndColumn)
{
    window->ShowPage(kKeywordPage);
    EXPECT_EQ(cellsOf(find("keyGrid"), 1, 2), "Row 1 | Keyword | IESNA:LM-63-2002\nRow 1 | Description | blank\n");
    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(find("keyGrid"))->tableInterface();
    EXPECT_EQ(takeName(table->cellAt(9, 0)->tableCellInterface()->rowHeaderCells()), "New row");
}

TEST_F(ReadGrid, cellsOfAnglesAreToldByAxisAndNumber)
{
    EXPECT_EQ(cellsOf(find("phoGridVert"), 1, 2), "Vertical angle | 1 | 0\nVertical angle | 2 | 10\n");
    EXPECT_EQ(cellsOf(find("phoGridHorz"), 1, 1), "Horizontal angle | 1 | 0\n");
}

TEST_F(ReadGrid, cellsOfCandelasAreToldByTheirAngles)
{
    find<QAbstractButton>("cmdNext30")->click();
    fillPageFive();
    EXPECT_EQ(cellsOf(find("cdaGridCd"), 2, 2),
              "V 0 | Vertical angle | 0 (Read-only)\nV 0 | H 0 | 9 (V 0, H 0: 9)\n"
              "V 10 | Vertical angle | 10 (Read-only)\nV 10 | H 0 | 8 (V 10, H 0: 8)\n");
    find<GridView>("cdaGridCd")->goTo(2, 1);
    typeText("5");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "V 10, H 0");
}

TEST_F(ReadGrid, editorWithAListIsNamedToo)
{
    window->ShowPage(kKeywordPage);
    find<GridView>("keyGrid")->goTo(2, 0);
    press(Qt::Key_F2);
    auto *box = find("keyGrid")->findChild<QComboBox *>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->accessibleName(), "Row 2, Keyword");
    EXPECT_EQ(box->lineEdit()->accessibleName(), "Row 2, Keyword");
    EXPECT_EQ(box->itemData(0, Qt::AccessibleDescriptionRole).toString(), "Test report number");
}

}  // namespace
}  // namespace penwright::test
