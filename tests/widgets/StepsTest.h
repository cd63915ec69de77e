#pragma once

#include <string>

#include "widgets/PageTexts.h"
#include "wizard/PageSteps.h"

namespace penwright::test {

/// The started wizard, whose pages can be filled, and whose steps are undone and redone by their keys.
class StepsTest : public WizardTest {
protected:
    void SetUp() override { startWizard(); }

    PageFrame &page(int index) { return *find<PageFrame>("nfra" + std::to_string(index)); }
    PageFrame &page() { return page(shownPage()); }
    PageText texts() { return textsOf(page()); }

    static void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    static void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    /// What the menus call the step that is next, or "Undo" and "Redo" alone.
    std::string undoName() { return nameOf(page().steps().undoAction()); }
    std::string redoName() { return nameOf(page().steps().redoAction()); }

    GridView &grid(const std::string &name) { return *find<GridView>(name); }

    /// Types a text into a grid's cell and ends it with Enter.
    void typeCell(const std::string &name, int row, int column, const std::string &text)
    {
        grid(name).goTo(row, column);
        typeText(text);
        press(Qt::Key_Return);
    }

    /// The current cell of a grid as "row,column".
    std::string cell(const std::string &name)
    {
        return std::to_string(grid(name).currentRow()) + "," + std::to_string(grid(name).currentColumn());
    }

    std::string shown(const std::string &name, int row, int column)
    {
        return grid(name).model()->index(row - 1, column).data().toString().toStdString();
    }

    void paste(const std::string &text)
    {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
        press(Qt::Key_V, Qt::ControlModifier);
    }

    /// Page 5 with a table of 10 vertical angles and one horizontal one.
    void openTable()
    {
        window->ShowPage(kDistributionPage);
        fillPageFour();
        click("cmdNext30");
        ASSERT_EQ(shownPage(), kCandelaPage);
    }

private:
    std::string nameOf(const QAction *action)
    {
        page().steps().endAct();
        EXPECT_EQ(action->isEnabled(), action->text() != "U&ndo" && action->text() != "&Redo");
        return action->text().remove('&').toStdString();
    }
};

}  // namespace penwright::test
