#include "widgets/CandelaPageTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {
namespace {

class CandelaPageNext : public CandelaPageTest {
protected:
    /// Presses Next and reads away the list that follows; nothing when none was shown.
    std::optional<std::string> pressNext()
    {
        std::optional<std::string> list;
        QTimer::singleShot(0, window.get(), [&] {
            if (!window->dlgWarn().isVisible())
                return;
            list = window->dlgWarn().list().text();
            find<QPushButton>("OKButton")->click();
        });
        click("cmdNext50");
        QCoreApplication::processEvents();
        return list;
    }
};

TEST_F(CandelaPageNext, listsEveryBlankCellAndGoesToTheFirst)
{
    showTable({0, 90}, {0, 90});
    grid().goTo(2, 2);
    EXPECT_EQ(pressNext(),
              "value H:0 V:0 is not a valid numeric value.\r\n"
              "value H:0 V:90 is not a valid numeric value.\r\n"
              "value H:90 V:0 is not a valid numeric value.\r\n"
              "value H:90 V:90 is not a valid numeric value.\r\n");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(window->focusWidget(), &grid());
    EXPECT_EQ(state.PhotFiles(1).Candela.rows(), 0);
}

TEST_F(CandelaPageNext, goesToTheCellWhoseNadirDiffers)
{
    showTable({0, 45, 90}, {0, 90});
    paste("100\t100\t90\n1\t2\t3");
    EXPECT_EQ(pressNext(), "Nadir Candela do not agree  H:90 not equal to H:0\r\n");
    EXPECT_EQ(current(), "1,3");
}

TEST_F(CandelaPageNext, storesACompleteTableAndShowsTheLastPage)
{
    showTable({0, 90}, {0, 90});
    paste("12.3\t12.3\n0\t5");
    EXPECT_EQ(pressNext(), std::nullopt);
    EXPECT_EQ(shownPage(), kFinishPage);
    OneBasedTable<double> expected(2, 2);
    expected(1, 1) = expected(2, 1) = 12.300000190734863;
    expected(2, 2) = 5;
    EXPECT_EQ(state.PhotFiles(1).Candela, expected);
}

TEST_F(CandelaPageNext, beginsItsListAnewAndTakesTheMendedTable)
{
    showTable({0}, {0, 90});
    for (int press = 1; press <= 2; ++press)
        EXPECT_EQ(pressNext(),
                  "value H:0 V:0 is not a valid numeric value.\r\n"
                  "value H:0 V:90 is not a valid numeric value.\r\n");
    QApplication::setActiveWindow(window.get());
    paste("1\n2");
    EXPECT_EQ(pressNext(), std::nullopt);
    EXPECT_EQ(shownPage(), kFinishPage);
}

TEST_F(CandelaPageNext, takesAnEditInProgress)
{
    showTable({0}, {0});
    typeText("42");
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(shownPage(), kFinishPage);
    EXPECT_EQ(state.PhotFiles(1).Candela(1, 1), 42);
}

TEST_F(CandelaPageNext, goesNoFurtherWithAnEditThatIsRefused)
{
    showTable({0}, {0});
    enterValue(1, 1, "7");
    typeText("abc");
    click("cmdNext50");
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.transcript, "[Invalid entry|0] Not a number I know.\n");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(cell(1, 1), "7");
    EXPECT_EQ(state.PhotFiles(1).Candela.rows(), 0);
    EXPECT_EQ(current(), "1,1");
}

TEST_F(CandelaPageNext, failedCheckKeepsWhatWasStoredBefore)
{
    showTable({0}, {0, 90});
    paste("1\n2");
    pressNext();
    window->ShowPage(kCandelaPage);
    paste("3\n-4");
    EXPECT_EQ(pressNext(), "value H:0 V:90 is less than zero.\r\n");
    EXPECT_EQ(state.PhotFiles(1).Candela(1, 1), 1);
    EXPECT_EQ(cell(2, 1), "-4");
}

TEST_F(CandelaPageNext, comingBackFromTheLastPageKeepsCellsAndPlace)
{
    showTable({0, 90}, {0, 90});
    paste("12.3\t12.3\n0\t5");
    grid().goTo(2, 2);
    pressNext();
    click("cmdBack80");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(current(), "2,2");
    EXPECT_EQ(focusName(), "cdaGridCd");
    EXPECT_EQ(cell(1, 1), "12.3");
}

TEST_F(CandelaPageNext, backTakesAValidEditAndDropsAFaultyOneWithoutAWord)
{
    showTable({0}, {0, 90});
    typeText("42");
    press(Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(shownPage(), kDistributionPage);
    EXPECT_EQ(cell(1, 1), "42");
    window->ShowPage(kCandelaPage);
    grid().goTo(2, 1);
    typeText("abc");
    press(Qt::Key_B, Qt::AltModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(shownPage(), kDistributionPage);
    EXPECT_EQ(cell(2, 1), " ");
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(state.PhotFiles(1).Candela.rows(), 0);
}

TEST_F(CandelaPageNext, anotherBuildKeepsWhatFitsAndShowsZeroForTheRest)
{
    showTable({0, 90}, {0, 90});
    enterValue(1, 1, "100");
    showTable({0, 45, 90}, {0, 90});
    EXPECT_EQ(cell(1, 1), "100");
    EXPECT_EQ(cell(2, 1), "0");
    EXPECT_EQ(cell(1, 3), "0");
    EXPECT_EQ(grid().model()->columnCount(), 4);
    EXPECT_NE(drawn().find("angle 0: largest 100 candela"), std::string::npos);
}

TEST_F(CandelaPageNext, startingTheWizardAgainBeginsWithBlanks)
{
    showTable({0}, {0});
    enterValue(1, 1, "100");
    window->StartWizard();
    EXPECT_FALSE(page().flags().GridStarted);
    EXPECT_EQ(cell(1, 1), "");
    showTable({0}, {0});
    EXPECT_EQ(cell(1, 1), " ");
    EXPECT_TRUE(page().flags().GridStarted);
    EXPECT_EQ(page().flags().plotValue, 0.01F);
}

TEST_F(CandelaPageNext, plotValueIsRaisedToTheLeastOnlyWhereItIsNotPositive)
{
    showTable({0}, {0, 45, 90});
    for (const auto &[before, after] : {std::pair(-1.0F, 0.01F), std::pair(0.0F, 0.01F), std::pair(5.0F, 5.0F)}) {
        page().flags().plotValue = before;
        press(grid().currentRow() == 3 ? Qt::Key_Up : Qt::Key_Down);
        EXPECT_EQ(page().flags().plotValue, after) << before;
    }
}

}  // namespace
}  // namespace penwright::test
