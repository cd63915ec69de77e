#pragma once

#include <gtest/gtest.h>

#include <map>
#include <QTest>
#include <QtWidgets>
#include <string>
#include <vector>

#include "grid/GridView.h"
#include "support/FakeDialogs.h"

namespace penwright::test {

/// A table of texts. It refuses each text with an "x", may take rows, may have a column of row names that nobody edits,
/// and may offer choices in its first column.
class TextTable : public GridSource {
public:
    TextTable(int rows, int columns) : cells(rows, std::vector<std::string>(columns)) {}

    int rowCount() const override { return static_cast<int>(cells.size()); }
    int columnCount() const override { return cells.empty() ? emptyColumns : static_cast<int>(cells[0].size()); }
    std::string columnCaption(int column) const override { return std::string(1, static_cast<char>('A' + column)); }
    std::string read(int row, int column) const override { return cells.at(row - 1).at(column); }
    std::optional<MessageBox> check(int row, int column, std::string_view text) const override
    {
        if (text.find('x') == std::string_view::npos)
            return std::nullopt;
        return MessageBox{.text = "no " + std::string(text) + " in " + columnCaption(column) + std::to_string(row)};
    }
    std::optional<MessageBox> write(int row, int column, std::string_view text) override
    {
        if (auto refusal = check(row, column, text))
            return refusal;
        cells.at(row - 1).at(column) = text;
        return std::nullopt;
    }
    bool canAppend() const override { return growing; }
    void append() override { cells.emplace_back(columnCount()); }
    bool isReadOnly(int column) const override { return column == readOnlyColumn; }
    std::vector<GridChoice> choices(int, int column) const override
    {
        return column == choiceColumn ? entries : std::vector<GridChoice>();
    }

    /// The rows as text: "a|b / c|d".
    std::string all() const
    {
        std::string text;
        for (const auto &row : cells) {
            text += text.empty() ? "" : " / ";
            for (std::size_t column = 0; column < row.size(); ++column)
                text += (column ? "|" : "") + row[column];
        }
        return text;
    }

    std::vector<std::vector<std::string>> cells;
    std::vector<GridChoice> entries{{"[TEST]", "Test report number"}, {"[LAMP]", "Lamp description"}, {"[MORE]", ""}};
    int emptyColumns = 2;
    int readOnlyColumn = -1;
    int choiceColumn = -1;
    bool growing = false;
};

/// A shown window with a box before a grid and a button behind it; the grid has the focus on its first cell.
class GridTest : public testing::Test {
protected:
    void show(TextTable &table)
    {
        source = &table;
        window.setWindowTitle("the page");
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(grid);
        layout->addWidget(after);
        grid->setSource(table, dialogs);
        QObject::connect(grid, &GridView::cellTaken, grid,
                         [this](int row, int column) { taken += cellName(row, column) + " "; });
        QObject::connect(grid, &GridView::currentCellChanged, grid,
                         [this](int row, int column) { visited += cellName(row, column) + " "; });
        window.resize(500, 400);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        QApplication::setActiveWindow(&window);
        grid->setFocus();
    }

    static std::string cellName(int row, int column)
    {
        return std::string(1, static_cast<char>('A' + column)) + std::to_string(row);
    }

    /// Sends a key to what has the focus.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// Sends each character to what has the focus by then: the first one may open an editor.
    static void type(const char *text)
    {
        for (; *text; ++text)
            QTest::keyClick(QApplication::focusWidget(), *text);
    }

    std::string current() const { return cellName(grid->currentRow(), grid->currentColumn()); }

    /// What has the focus: "before", "after", "cell", or "editor".
    std::string focus() const
    {
        QWidget *widget = QApplication::focusWidget();
        return widget == before ? "before" : widget == after ? "after" : widget == grid ? "cell" : "editor";
    }

    QPoint centre(int row, int column) const
    {
        return grid->visualRect(grid->model()->index(row - 1, column)).center();
    }
    void clickCell(int row, int column)
    {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, centre(row, column));
    }

    std::string shown(int row, int column) const
    {
        return grid->model()->index(row - 1, column).data().toString().toStdString();
    }
    QLineEdit *line() const
    {
        auto *box = qobject_cast<QComboBox *>(QApplication::focusWidget());
        return box ? box->lineEdit() : qobject_cast<QLineEdit *>(QApplication::focusWidget());
    }

    static void settle() { QCoreApplication::processEvents(); }

    FakeDialogs dialogs;
    TextTable *source = nullptr;
    QWidget window;
    QLineEdit *before = new QLineEdit;
    GridView *grid = new GridView;
    QPushButton *after = new QPushButton("after");
    std::string taken;
    std::string visited;
};

/// A grid of three rows and two columns, each cell holding its name.
class FilledGrid : public GridTest {
protected:
    void SetUp() override
    {
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 2; ++column)
                table.cells[row][column] = cellName(row + 1, column);
        show(table);
    }
    TextTable table{3, 2};
};

}  // namespace penwright::test
