#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "support/PlotTables.h"
#include "unit/review/ReviewTest.h"
#include "widgets/WizardTest.h"

namespace penwright::test {

/// Page 6 over a record that has come to it through all pages: tilt included, 10 vertical angles and one horizontal.
class Review : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        fillPageOne();
        find<QAbstractButton>("chkIncludeTilt")->setChecked(true);
        click("cmdNext10");
        fillPageTwo();
        leave("cmdNext15");
        fillKeywords();
        leave("cmdNext20");
        fillPageFour();
        leave("cmdNext30");
        fillPageFive();
        leave("cmdNext50");
        ASSERT_EQ(shownPage(), kFinishPage) << dialogs.transcript;
    }

    void leave(const std::string &next) { find<QAbstractButton>(next)->click(); }

    void fillKeywords()
    {
        QGuiApplication::clipboard()->setText(
            "IESNA:LM-63-2002\t\n[TEST]\t4711\n[TESTLAB]\tNorth Hall\n[ISSUEDATE]\t14 May 2024\n[MANUFAC]\tExample\n");
        find<GridView>("keyGrid")->goTo(1, 0);
        press(Qt::Key_V, Qt::ControlModifier);
    }

    PhotometricRecord &record() { return state.PhotFiles(1); }

    /// Shows a record as one that the host has sent.
    void showRecord(const PhotometricRecord &other)
    {
        record() = other;
        window->followRecord();
        QCoreApplication::processEvents();
    }

    /// A record that gives no cause for a remark: 2,000 cd straight down, falling with the cosine.
    static PhotometricRecord goodRecord(const std::vector<float> &horizontal = {0, 90},
                                        const std::vector<float> &vertical = anglesTo(90, 5))
    {
        return withTable(plainRecord(), kTypeC, horizontal, vertical,
                         [](double, double v) { return std::round(2000 * cosine(v)); });
    }

    QListWidget *remarks() { return find<QListWidget>("reviewRemarks"); }
    QListWidget *figures() { return find<QListWidget>("reviewFigures"); }
    QPlainTextEdit *fileText() { return find<QPlainTextEdit>("reviewText"); }
    void openFileTab() { find<QTabWidget>("reviewTabs")->setCurrentWidget(fileText()); }

    static std::string spoken(QListWidget &list, int row)
    {
        return QAccessible::queryAccessibleInterface(&list)->child(row)->text(QAccessible::Name).toStdString();
    }

    /// The row of the remark that begins with a text; -1 when there is none.
    int rowOf(const std::string &beginning)
    {
        for (int row = 0; row < remarks()->count(); ++row)
            if (remarks()->item(row)->text().startsWith(QString::fromStdString(beginning)))
                return row;
        return -1;
    }

    void chooseByEnter(int row)
    {
        remarks()->setFocus();
        remarks()->setCurrentRow(row);
        press(Qt::Key_Return);
    }

    void chooseByDoubleClick(int row)
    {
        remarks()->scrollToItem(remarks()->item(row));
        const QPoint place = remarks()->visualItemRect(remarks()->item(row)).topLeft() + QPoint(20, 10);
        QWidget *list = remarks()->viewport();
        QTest::mouseClick(list, Qt::LeftButton, {}, place);
        QTest::mouseDClick(list, Qt::LeftButton, {}, place);
        QTest::mouseRelease(list, Qt::LeftButton, {}, place);
    }

    /// Where one is: the page, the control that has the focus, and of a grid the current cell.
    std::string where()
    {
        std::string place = std::to_string(shownPage() + 1) + " " + focusName();
        if (const auto *grid = qobject_cast<GridView *>(QApplication::focusWidget()))
            place += " " + std::to_string(grid->currentRow()) + "," + std::to_string(grid->currentColumn());
        return place;
    }

    /// All that stands on the pages before page 6.
    std::string values()
    {
        std::string all;
        for (int page = 0; page < kFinishPage; ++page)
            for (const auto &[name, text] : window->page(page).value())
                all += name + "=" + text() + "\n";
        return all;
    }

    static std::string withLineFeeds(std::string text)
    {
        std::erase(text, '\r');
        if (text.ends_with('\n'))
            text.pop_back();
        return text;
    }
};

}  // namespace penwright::test
