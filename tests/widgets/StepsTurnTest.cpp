// Turning between page 4 and page 5 where undo, or the host, has changed the table.
#include <random>

#include "widgets/PasteTableTest.h"
#include "widgets/Seeds.h"

namespace penwright::test {
namespace {

class StepsTurn : public PasteTableTest {
protected:
    /// The numbers of the table, a blank being 0.
    OneBasedTable<double> numbers()
    {
        const QAbstractItemModel &model = *grid("cdaGridCd").model();
        OneBasedTable<double> table(model.columnCount() - 1, model.rowCount());
        for (int h = 1; h <= table.rows(); ++h)
            for (int v = 1; v <= table.columns(); ++v)
                table(h, v) = model.index(v - 1, h).data().toString().toDouble();
        return table;
    }

    /// The angles of a list of page 4, as it shows them.
    OneBased<float> list(const std::string &name)
    {
        OneBased<float> angles;
        const QAbstractItemModel &model = *grid(name).model();
        for (int column = 0; column < model.columnCount(); ++column)
            angles.append(model.index(0, column).data().toString().toFloat());
        return angles;
    }

    /// Whether page 4 shows type and angles of the record, as far as their short forms tell.
    void expectListsOfTheTable()
    {
        ASSERT_EQ(shownPage(), kDistributionPage);
        const PhotometricRecord &record = state.PhotFiles(1);
        EXPECT_EQ(find<QRadioButton>("rdoB")->isChecked(), record.PhotometricType == kTypeB);
        EXPECT_EQ(list("phoGridVert"), record.VertAngles);
        EXPECT_EQ(list("phoGridHorz"), record.HorAngles);
    }

    /// Has the host send a table of other angles.
    void hostSends(const OneBased<float> &horizontal, const OneBased<float> &vertical)
    {
        PhotometricRecord &record = state.PhotFiles(1);
        record.HorAngles = horizontal;
        record.NumHorzAngles = static_cast<std::int16_t>(horizontal.size());
        record.VertAngles = vertical;
        record.NumVertAngles = static_cast<std::int16_t>(vertical.size());
        window->followRecord();
    }
};

TEST_F(StepsTurn, backShowsTheListsOfTheTableThatUndoHasBroughtBack)
{
    openPageFive();
    fillPageFive();
    const Standing before = standing();
    buildOtherTable();
    const Standing other = standing();
    undo();
    click("cmdBack50");
    expectListsOfTheTable();
    EXPECT_EQ(standing(), before) << "as they were typed";
    EXPECT_EQ(redoName(), "Redo Photometric Type");
    const OneBasedTable<double> values = numbers();
    click("cmdNext30");
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(numbers(), values);
    EXPECT_EQ(redoName(), "Redo New Table") << "the pages were only turned";
    redo();
    click("cmdBack50");
    expectListsOfTheTable();
    EXPECT_EQ(standing(), other);
}

TEST_F(StepsTurn, whatUndoHasBroughtBackIsNotCutByBackAndNext)
{
    openPageFive();
    fillPageFive();
    const OneBasedTable<double> values = numbers();
    pasteTable(kTable);
    click("cmdBack50");
    typeCell("phoGridVert", 1, 1, "50");
    click("cmdNext30");
    undo();
    undo();
    EXPECT_EQ(numbers(), values);
    click("cmdBack50");
    expectListsOfTheTable();
    click("cmdNext30");
    EXPECT_EQ(numbers(), values);
}

TEST_F(StepsTurn, pastedTableCanBeRedoneBehindATurnOfThePages)
{
    openPageFive();
    fillPageFive();
    pasteTable(kTable);
    buildOtherTable();
    pasteTable("V\t0\t90\n-90\t5\t5\n0\t4\t4\n90\t3\t3\n");
    const Standing last = standing();
    undo();
    undo();
    click("cmdBack50");
    expectListsOfTheTable();
    click("cmdNext30");
    EXPECT_EQ(redoName(), "Redo New Table");
    redo();
    EXPECT_EQ(redoName(), "Redo Paste Table");
    redo();
    EXPECT_EQ(standing(), last);
}

TEST_F(StepsTurn, backShowsTheListsOfTheTableThatTheHostHasSentAsAStep)
{
    openPageFive();
    fillPageFive();
    const PageText typed = textsOf(page(kDistributionPage));
    hostSends({0, 90}, {0, 22.5, 45, 90});
    const OneBasedTable<double> values = numbers();
    click("cmdBack50");
    expectListsOfTheTable();
    EXPECT_EQ(undoName(), "Undo New Table");
    EXPECT_EQ(find<QComboBox>("phoCmbVert")->currentText(), "4");
    click("cmdNext30");
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(numbers(), values);
    click("cmdBack50");
    undo();
    EXPECT_EQ(textsOf(page(kDistributionPage)), typed);
    redo();
    expectListsOfTheTable();
}

TEST_F(StepsTurn, backOpensNoEditorForATextThatWasGivenUpOnTheWay)
{
    openPageFive();
    fillPageFive();
    const Standing before = standing();
    click("cmdBack50");
    find("phoCmbVert")->setFocus();
    press(Qt::Key_Down);
    grid("phoGridHorz").setFocus();
    grid("phoGridHorz").goTo(1, 0);
    typeText("45");
    press(Qt::Key_Escape);
    ASSERT_EQ(undoName(), "Undo Escape");
    click("cmdNext30");
    ASSERT_EQ(shownPage(), kCandelaPage);
    undo();
    click("cmdBack50");
    expectListsOfTheTable();
    EXPECT_EQ(standing(), before);
    EXPECT_FALSE(grid("phoGridHorz").isEditing());
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(StepsTurn, dataWithoutAnglesLeadToTheAnglesThatPageFourHas)
{
    openPageFive();
    fillPageFive();
    const OneBasedTable<double> values = numbers();
    for (const bool isFinished : {false, true}) {
        if (isFinished)
            click("cmdNext50");
        hostSends({}, {0, 90});
        ASSERT_EQ(shownPage(), kDistributionPage);
        EXPECT_EQ(find<QLabel>("note3")->text().toStdString(),
                  "The host has sent data without angles. Next goes on with these.");
        click("cmdNext30");
        ASSERT_EQ(shownPage(), kCandelaPage);
        EXPECT_EQ(numbers(), values);
    }
}

TEST_F(StepsTurn, valueThatIsBeingTypedWhenDataWithoutAnglesComeIsTaken)
{
    openPageFive();
    fillPageFive();
    grid("cdaGridCd").goTo(2, 1);
    typeText("77");
    hostSends({}, {});
    ASSERT_EQ(shownPage(), kDistributionPage);
    click("cmdNext30");
    EXPECT_EQ(shown("cdaGridCd", 2, 1), "77");
}

TEST_F(StepsTurn, dataWithoutAnglesLeaveThePagesBeforeThemAlone)
{
    openPageFive();
    click("cmdBack50");
    click("cmdBack30");
    hostSends({}, {});
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_TRUE(find<QLabel>("note2")->isHidden());
}

TEST_F(StepsTurn, undoOfWhatTheHostHasSentBringsThePagesTogetherAgain)
{
    openPageFive();
    fillPageFive();
    const Standing before = standing();
    hostSends({0, 90}, {0, 90});
    click("cmdBack50");
    click("cmdNext30");
    undo();
    click("cmdBack50");
    EXPECT_EQ(standing(), before);
}

TEST_F(StepsTurn, listsThatAreBeingChangedStayAsTheyAre)
{
    openPageFive();
    fillPageFive();
    click("cmdBack50");
    typeCell("phoGridVert", 1, 1, "11");
    const PageText typed = texts();
    click("cmdBack30");
    click("cmdNext20");
    ASSERT_EQ(shownPage(), kDistributionPage);
    EXPECT_EQ(texts(), typed);
    undo();
    EXPECT_NE(texts(), typed) << "a step of the user's";
}

TEST_F(StepsTurn, tableOfMoreAnglesThanAListHoldsLeavesTheListsAlone)
{
    openPageFive();
    const PageText typed = textsOf(page(kDistributionPage));
    OneBased<float> many(1001);
    for (int angle = 1; angle <= many.size(); ++angle)
        many(angle) = static_cast<float>(angle - 1) * 0.09F;
    hostSends({0}, many);
    click("cmdBack50");
    EXPECT_EQ(texts(), typed);
}

/// Undo, redo, tables from the host and from the clipboard, other lists, and turns of the pages between them, in an
/// order that a seed decides.
class RandomTurns : public StepsTurn, public testing::WithParamInterface<unsigned> {
protected:
    int any(int from, int to) { return std::uniform_int_distribution(from, to)(m_random); }

    OneBased<float> anyAngles()
    {
        OneBased<float> angles{0};
        for (int count = any(0, 4); count > 0; --count)
            angles.append(angles(angles.size()) + static_cast<float>(any(1, 15)));
        angles.append(90);
        return angles;
    }

    void changeTable()
    {
        switch (any(0, 5)) {
            case 0:
                return hostSends(anyAngles(), anyAngles());
            case 1:
                return pasteAnyTable();
            case 2:
                return redo();
            case 3:
                return undo();
            default:
                typeCell("cdaGridCd", 1, 1, std::to_string(any(0, 9999) / 8.0));
        }
    }

    void pasteAnyTable()
    {
        std::string text = "Gamma";
        const OneBased<float> across = anyAngles();
        for (const float h : across)
            text += "\tC" + std::to_string(h);
        for (const float v : anyAngles()) {
            text += "\n" + std::to_string(v);
            for (int h = 0; h < across.size(); ++h)
                text += "\t" + std::to_string(any(0, 999) / 8.0);
        }
        open(text, [this](PasteTableDialog &dialog) {
            QTest::keyClick(dialog.focusWidget(), isOffered() ? Qt::Key_Return : Qt::Key_Escape);
        });
    }

    int stepCount()
    {
        page().steps().endAct();
        return page().steps().count();
    }

    /// Goes back and on. Lists that agree keep every value; other ones make a table over which undo leads back.
    void turn()
    {
        const OneBasedTable<double> values = numbers();
        const int steps = stepCount();
        click("cmdBack50");
        expectListsOfTheTable();
        const bool isChanged = any(0, 3) == 0;
        if (isChanged) {
            find("phoCmbVert")->setFocus();
            press(any(0, 1) ? Qt::Key_Down : Qt::Key_Up);
        }
        click("cmdNext30");
        ASSERT_EQ(shownPage(), kCandelaPage);
        if (stepCount() > steps)
            page().steps().undo();
        EXPECT_EQ(numbers(), values);
    }

    std::mt19937 m_random{GetParam()};
};

TEST_P(RandomTurns, neverCutAValueThatStands)
{
    openPageFive();
    fillPageFive();
    for (int act = 0; act < 120 && !HasFailure(); ++act)
        any(0, 3) == 0 ? turn() : changeTable();
    EXPECT_EQ(dialogs.transcript, "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTurns, testing::ValuesIn(seeds()));

}  // namespace
}  // namespace penwright::test
