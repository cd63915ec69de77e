#pragma once

#include "grid/GridView.h"
#include "support/SpinUntil.h"
#include "widgets/WizardTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {

/// Page 4 as it is first shown.
class DistributionPageTest : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        window->ShowPage(kDistributionPage);
    }

    static constexpr const char *kPrompt = "Type in a number or select a pre-defined distribution";

    QComboBox *vertical() { return find<QComboBox>("phoCmbVert"); }
    QComboBox *horizontal() { return find<QComboBox>("phoCmbHorz"); }
    GridView *verticalGrid() { return find<GridView>("phoGridVert"); }
    GridView *horizontalGrid() { return find<GridView>("phoGridHorz"); }

    /// Replaces a list's text by typing, key by key.
    void typeInto(QComboBox *list, const std::string &text)
    {
        list->setFocus();
        list->lineEdit()->selectAll();
        typeText(text);
    }

    /// Picks an entry of a list from its popup, by the mouse.
    static void pick(QComboBox *list, const std::string &entry)
    {
        QTest::mouseClick(list, Qt::LeftButton, {}, QPoint(list->width() - 8, list->height() / 2));
        ASSERT_TRUE(spinUntil([&] { return list->view()->isVisible(); }));
        const int row = list->findText(QString::fromStdString(entry), Qt::MatchFixedString | Qt::MatchCaseSensitive);
        ASSERT_GE(row, 0) << entry;
        const QRect place = list->view()->visualRect(list->model()->index(row, 0));
        // A release right behind the press that opened the list would be taken for the end of that click.
        ASSERT_TRUE(spinUntil([&] {
            QTest::mouseMove(list->view()->viewport(), place.center());
            QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {}, place.center());
            return !list->view()->isVisible();
        }));
    }

    /// Types angles into a grid from its first cell on, each ended by Tab.
    static void typeAngles(GridView *grid, const std::vector<std::string> &angles)
    {
        grid->goTo(1, 0);
        for (const std::string &angle : angles) {
            typeText(angle);
            press(Qt::Key_Tab);
        }
    }

    /// What a grid shows, the cells' texts between bars.
    static std::string cells(const GridView *grid)
    {
        std::string text;
        for (int column = 0; column < grid->model()->columnCount(); ++column)
            text += (column ? "|" : "") + grid->model()->index(0, column).data().toString().toStdString();
        return text;
    }
    static int columns(const GridView *grid) { return grid->model()->columnCount(); }

    std::string warningsOfNext()
    {
        return warningsOf([this] { click("cmdNext30"); });
    }

    PhotometricRecord &record() { return state.PhotFiles(1); }
};

}  // namespace penwright::test
