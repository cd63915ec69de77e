#pragma once

#include <functional>
#include <string>

#include "grid/PasteTableDialog.h"
#include "support/DialogDriver.h"
#include "widgets/StepsTest.h"

namespace penwright::test {

/// A table of 3 vertical and 2 horizontal angles.
inline const std::string kTable = "Gamma\tC0\tC90\n0\t1000\t1000\n45\t700.5\t650.25\n90\t12.3\t0\n";

/// The wizard with its first pages filled, and a dialog that is opened by its key over what is on the clipboard.
class PasteTableTest : public StepsTest {
protected:
    void SetUp() override
    {
        startWizard();
        fillPageOne();
    }

    /// Leaves pages 1 and 3 and shows page 4 with a type and no list yet.
    void openPageFour()
    {
        click("cmdNext10");
        grid("keyGrid").goTo(2, 1);
        typeText("No. 7");
        press(Qt::Key_Return);
        click("cmdNext20");
        ASSERT_EQ(shownPage(), kDistributionPage);
        click("rdoC");
    }

    /// Goes on to page 5 with a table of 10 x 1 blank cells.
    void openPageFive()
    {
        openPageFour();
        fillPageFour();
        click("cmdNext30");
        ASSERT_EQ(shownPage(), kCandelaPage);
    }

    /// The focus in the grid that asks on the page that is shown.
    void goToGrid() { grid(shownPage() == kCandelaPage ? "cdaGridCd" : "phoGridHorz").setFocus(); }

    /// Opens the dialog over a text and acts in it.
    void open(const std::string &text, const std::function<void(PasteTableDialog &)> &act)
    {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
        goToGrid();
        bool wasOpen = false;
        whenDialogIsUp([&](QDialog &dialog) {
            wasOpen = true;
            dialogUp = dynamic_cast<PasteTableDialog *>(&dialog);
            ASSERT_TRUE(dialogUp);
            act(*dialogUp);
        });
        press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(spinUntil([&] { return wasOpen; }));
        dialogUp = nullptr;
        QApplication::setActiveWindow(window.get());
    }

    /// Takes a text as it is guessed, by Enter.
    void pasteTable(const std::string &text)
    {
        open(text, [](PasteTableDialog &dialog) {
            EXPECT_TRUE(dialog.findChild<QPushButton *>("okButton")->isEnabled())
                << dialog.findChild<QLabel *>("tableProblem")->text().toStdString();
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        });
    }

    template <typename Widget = QWidget>
    Widget &in(const char *name)
    {
        return *dialogUp->findChild<Widget *>(name);
    }

    std::string problem() { return in<QLabel>("tableProblem").text().toStdString(); }
    std::string words() { return in<QLabel>("tableWords").text().toStdString(); }
    bool isOffered() { return in<QPushButton>("okButton").isEnabled(); }
    void leave() { QTest::keyClick(dialogUp->focusWidget(), Qt::Key_Escape); }

    /// What is said of a text that is not taken; "" when it is.
    std::string problemOf(const std::string &text)
    {
        std::string said;
        open(text, [&](PasteTableDialog &) {
            said = isOffered() ? "" : problem();
            leave();
        });
        return said;
    }

    /// Chooses an entry of a list by keys, counted from 0.
    void choose(const char *list, int entry)
    {
        in(list).setFocus();
        QTest::keyClick(&in(list), Qt::Key_Home);
        for (int down = 0; down < entry; ++down)
            QTest::keyClick(&in(list), Qt::Key_Down);
    }

    /// What the preview shows, headers and all.
    std::string preview()
    {
        const QAbstractItemModel &model = *in<QTableView>("tablePreview").model();
        std::string text;
        for (int column = 0; column < model.columnCount(); ++column)
            text += "|" + model.headerData(column, Qt::Horizontal).toString().toStdString();
        for (int row = 0; row < model.rowCount(); ++row) {
            text += "\n" + model.headerData(row, Qt::Vertical).toString().toStdString();
            for (int column = 0; column < model.columnCount(); ++column)
                text += "|" + model.index(row, column).data().toString().toStdString();
        }
        return text;
    }

    /// What both pages hold, and what stands behind them.
    struct Standing {
        PageText angles;
        PageText values;
        PhotometricRecord record;
        bool operator==(const Standing &) const = default;
    };
    Standing standing() { return {textsOf(page(kDistributionPage)), textsOf(page(kCandelaPage)), state.PhotFiles(1)}; }

    PasteTableDialog *dialogUp = nullptr;
};

}  // namespace penwright::test
