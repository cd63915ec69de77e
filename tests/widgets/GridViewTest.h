#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <QTest>
#include <QtWidgets>
#include <string>
#include <vector>

#include "grid/GridView.h"
#include "support/FakeDialogs.h"
#include "support/TextTable.h"

namespace penwright::test {

/// A shown window with a box before a grid and a button behind it; the grid has the focus on its first cell.
class GridTest : public testing::Test {
protected:
    /// The table that the grid serves.
    TextTable &ownTable(int rows, int columns)
    {
        source = std::make_shared<TextTable>(rows, columns);
        return *source;
    }

    /// Has the grid follow what was done to the table itself.
    void rebuild() { grid->apply(source->replacedBy(source->cells)); }

    void show()
    {
        window.setWindowTitle("the page");
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(grid);
        layout->addWidget(after);
        if (source)
            grid->setSource(source, dialogs);
        QObject::connect(grid, &GridView::cellWritten, grid,
                         [this](int row, int column) { taken += cellName(row, column) + " "; });
        QObject::connect(grid, &GridView::currentCellChanged, grid,
                         [this](int row, int column) { visited += cellName(row, column) + " "; });
        window.resize(500, 400);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, 60'000));
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
    std::shared_ptr<TextTable> source;
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
        show();
    }
    TextTable &table = ownTable(3, 2);
};

}  // namespace penwright::test
