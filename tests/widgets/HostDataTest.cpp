#include "hostlink/RecordText.h"
#include "support/SpinUntil.h"
#include "widgets/CandelaPageTest.h"

namespace penwright::test {
namespace {

constexpr const char *kNote = "The host has sent new data; the candela table has been built anew.";

/// A host that sends "DATACHANGED" while the user is at work.
class HostData : public CandelaPageTest {
protected:
    void hostSends(const std::vector<float> &horizontal, const std::vector<float> &vertical, std::int16_t type = kTypeC)
    {
        const PhotometricRecord before = state.PhotFiles(1);
        giveAngles(horizontal, vertical, type);
        PhotometricRecord sent = state.PhotFiles(1);
        state.PhotFiles(1) = before;
        sent.Filename = "from the host.ies";
        sent.Candela.reset(sent.NumHorzAngles, sent.NumVertAngles);
        writeRecordTexts(sent, [this](std::string_view word, const std::string &text) {
            store.write("Lumentor_PE", "Sec", recordValueName(word, 1), text);
        });
        const auto *log = find<QPlainTextEdit>("txtCmds");
        const QString logBefore = log->toPlainText();
        sendCommand("DATACHANGED");
        const auto isObeyed = [&] {
            const QString logged = log->toPlainText().mid(logBefore.size());
            return logged.endsWith("Data received but not used\n");
        };
        ASSERT_TRUE(spinUntil(isObeyed));
        EXPECT_EQ(state.PhotFiles(1).Filename, sent.Filename);
    }

    /// The values as they stand, rows ended by "|".
    std::string table()
    {
        std::string text;
        for (int row = 1; row <= grid().model()->rowCount(); ++row, text += "|")
            for (int column = 1; column < grid().model()->columnCount(); ++column)
                text += (column > 1 ? " " : "") + cell(row, column);
        return text;
    }

    /// The quiet line on a page, "" when it is not seen.
    std::string note(int page)
    {
        const auto *label = find<QLabel>("note" + std::to_string(page));
        return label->isVisible() ? label->text().toStdString() : "";
    }
};

TEST_F(HostData, otherCountsBuildTheTableAnewAndKeepWhatFits)
{
    showTable({0, 90}, {0, 45, 90});
    paste("1\t2\n3\t4\n5\t6");
    grid().goTo(3, 2);
    hostSends({0, 45, 90}, {0, 90});
    EXPECT_EQ(table(), "1 2 0|3 4 0|");
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(planes(), "0 / 0");
    EXPECT_EQ(focusName(), "cdaGridCd");
    EXPECT_EQ(note(kCandelaPage), kNote);
    EXPECT_EQ(page().accessibleDescription(), kNote);
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(HostData, nextStoresTheTableOfTheNewCounts)
{
    showTable({0, 90}, {0, 90});
    paste("1\t1\n2\t3");
    hostSends({0}, {0, 45, 90});
    click("cmdNext50");
    EXPECT_EQ(shownPage(), kFinishPage);
    OneBasedTable<double> expected(1, 3);
    expected(1, 1) = 1;
    expected(1, 2) = 2;
    EXPECT_EQ(state.PhotFiles(1).Candela, expected);
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(note(kFinishPage), "");
}

TEST_F(HostData, otherAnglesOfTheSameCountsAreToldToo)
{
    showTable({0, 90}, {0, 90});
    paste("1\t2\n3\t4");
    hostSends({0, 45}, {0, 90});
    EXPECT_EQ(table(), "1 2|3 4|");
    EXPECT_EQ(note(kCandelaPage), kNote);
}

TEST_F(HostData, anotherTypeHasItsOwnCurves)
{
    showTable({0, 90}, {0, 90});
    EXPECT_TRUE(find("rtbHorz")->isVisible());
    hostSends({0, 90}, {0, 90}, kTypeB);
    EXPECT_FALSE(find("rtbHorz")->isVisible());
    EXPECT_EQ(note(kCandelaPage), kNote);
}

TEST_F(HostData, sameTypeCountsAndAnglesLeaveTheTableAsItIs)
{
    showTable({0, 90}, {0, 90});
    paste("1\t2\n3\t4");
    grid().goTo(2, 2);
    hostSends({0, 90}, {0, 90});
    EXPECT_EQ(table(), "1 2|3 4|");
    EXPECT_EQ(current(), "2,2");
    EXPECT_EQ(note(kCandelaPage), "");
}

TEST_F(HostData, valueInAnOpenEditorIsTakenAsByBack)
{
    showTable({0, 90}, {0, 90});
    grid().goTo(1, 2);
    typeText("12");
    ASSERT_TRUE(grid().isEditing());
    hostSends({0, 45, 90}, {0});
    EXPECT_FALSE(grid().isEditing());
    EXPECT_EQ(table(), "0 12 0|");
    EXPECT_EQ(focusName(), "cdaGridCd");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(HostData, textInAnOpenEditorThatIsNoNumberIsDroppedWithoutAMessage)
{
    showTable({0, 90}, {0, 90});
    grid().goTo(1, 2);
    typeText("x");
    hostSends({0}, {0});
    QCoreApplication::processEvents();
    EXPECT_EQ(table(), "0|");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(HostData, isToldOnThePageThatIsShownUntilItIsLeft)
{
    showTable({0, 90}, {0, 90});
    window->ShowPage(kLampPage);
    find("txtWatt")->setFocus();
    hostSends({0}, {0, 90});
    EXPECT_EQ(note(kLampPage), kNote);
    EXPECT_EQ(focusName(), "txtWatt");
    window->ShowPage(kCandelaPage);
    EXPECT_EQ(note(kCandelaPage), "");
    EXPECT_EQ(grid().model()->columnCount(), 2);
    EXPECT_EQ(current(), "1,1");
    window->ShowPage(kLampPage);
    EXPECT_EQ(note(kLampPage), "");
}

TEST_F(HostData, leavesAloneWhatIsBeingTypedOnAPageBefore)
{
    struct Case {
        int page;
        const char *box;
    };
    const std::string typed = "7";
    showTable({0, 90}, {0, 45, 90});
    std::vector<float> vertical{0, 90};
    for (const auto &[page, name] : {Case{kTiltPage, "lmpTxtNumAngles"}, Case{kDistributionPage, "phoCmbVert"}}) {
        window->ShowPage(page);
        find(name)->setFocus();
        typeText(typed);
        hostSends({0}, vertical);
        vertical.insert(vertical.end() - 1, 45);
        EXPECT_EQ(shownPage(), page);
        EXPECT_EQ(note(page), kNote);
        EXPECT_EQ(focusName(), name);
        auto *list = qobject_cast<QComboBox *>(find(name));
        EXPECT_EQ(list ? list->currentText().toStdString() : text(name), typed);
    }
    EXPECT_EQ(grid().model()->rowCount(), 3);
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(HostData, leavesAnOpenEditorOfTheKeywordsAlone)
{
    showTable({0, 90}, {0, 45, 90});
    window->ShowPage(kKeywordPage);
    auto *keywords = find<GridView>("keyGrid");
    keywords->goTo(2, 1);
    typeText("24-11");
    hostSends({0}, {0, 90});
    EXPECT_EQ(note(kKeywordPage), kNote);
    EXPECT_TRUE(keywords->isEditing());
    typeText("87");
    press(Qt::Key_Return);
    EXPECT_EQ(keywords->model()->index(1, 1).data().toString(), "24-1187");
    EXPECT_EQ(grid().model()->rowCount(), 2);
}

TEST_F(HostData, isNotToldBeforeThereIsATable)
{
    hostSends({0}, {0, 90});
    EXPECT_EQ(note(kLampPage), "");
}

TEST_F(HostData, undoBringsBackWhatDidNotFit)
{
    showTable({0, 90}, {0, 45, 90});
    paste("1\t2\n3\t4\n5\t6");
    const PhotometricRecord before = state.PhotFiles(1);
    hostSends({0}, {0, 90});
    EXPECT_EQ(table(), "1|3|");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(table(), "1 2|3 4|5 6|");
    EXPECT_EQ(state.PhotFiles(1).HorAngles, before.HorAngles);
    EXPECT_EQ(state.PhotFiles(1).NumVertAngles, 3);
    EXPECT_EQ(state.PhotFiles(1).Filename, "from the host.ies");
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(table(), "1|3|");
    EXPECT_EQ(state.PhotFiles(1).NumVertAngles, 2);
}

TEST_F(HostData, endsTheWayBackToWhatWasUndone)
{
    showTable({0, 90}, {0, 90});
    paste("1\t2\n3\t4");
    press(Qt::Key_Z, Qt::ControlModifier);
    hostSends({0}, {0});
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(table(), "0|");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(table(), "   |   |");
}

TEST_F(HostData, undoBringsBackWhatAnOpenEditorHeldToo)
{
    showTable({0, 90}, {0, 90});
    paste("1\t2\n3\t4");
    grid().goTo(1, 1);
    typeText("7");
    hostSends({0}, {0});
    EXPECT_EQ(table(), "7|");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(table(), "7 2|3 4|");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(table(), "1 2|3 4|");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(table(), "   |   |");
}

}  // namespace
}  // namespace penwright::test
