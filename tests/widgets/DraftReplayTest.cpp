#include "review/RecordPlace.h"
#include "widgets/DraftsTest.h"

namespace penwright::test {
namespace {

class DraftReplayTest : public DraftsTest {
protected:
    /// The texts of page 1 that pass its checks, with tilt.
    static std::vector<DraftText> pageOne()
    {
        std::vector<DraftText> texts;
        for (const char *box : {"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast", "txtWatt", "txtWidth",
                                "txtLength", "txtHeight"})
            texts.push_back({kLampPage, box, "1"});
        texts.push_back({kLampPage, "chkIncludeTilt", "1"});
        return texts;
    }

    /// Comes to page 5, has its table built anew for other angles, and brings the first one back by undo; what it
    /// holds.
    PageText bringBackATable()
    {
        fillPagesBefore(kCandelaPage);
        fillPageFive();
        PageText values = textsOf(window->page(kCandelaPage));
        buildOtherTable();
        EXPECT_NE(textsOf(window->page(kCandelaPage)), values);
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(textsOf(window->page(kCandelaPage)), values);
        return values;
    }
};

TEST_F(DraftReplayTest, everyPageComesBackAsItWasUpToTheOneThatWasShown)
{
    for (int page = kLampPage; page <= kFinishPage; ++page) {
        startRun();
        fillPagesBefore(page);
        if (page == kLampPage)
            typeText("7");
        waitUntilKept();
        const std::vector<PageText> before = allTexts();
        const PhotometricRecord record = state.PhotFiles(1);
        kill();
        startRun();
        takeOver();
        EXPECT_EQ(shownPage(), page);
        EXPECT_EQ(allTexts(), before) << "page " << page;
        EXPECT_EQ(state.PhotFiles(1).NumLamps, record.NumLamps);
        EXPECT_EQ(state.PhotFiles(1).VertAngles, record.VertAngles);
        EXPECT_EQ(note(page), "");
        EXPECT_EQ(dialogs.transcript, "");
        dialogs.answers = {Answer::Yes};
        emit window->cancelled();
        kill();
    }
}

TEST_F(DraftReplayTest, pagesBehindTheOneThatWasShownComeBackToo)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    fillPageFive();
    const std::vector<PageText> before = allTexts();
    for (const char *back : {"cmdBack50", "cmdBack30"})
        click(back);
    ASSERT_EQ(shownPage(), kKeywordPage);
    kill();
    startRun();
    takeOver();
    EXPECT_EQ(shownPage(), kKeywordPage);
    click("cmdNext20");
    click("cmdNext30");
    EXPECT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(allTexts(), before);
}

TEST_F(DraftReplayTest, pageThatFailsItsChecksStopsItWithoutABox)
{
    std::vector<DraftText> texts = pageOne();
    texts.push_back({kTiltPage, "lmpTxtNumAngles", ""});
    leave(kDistributionPage, "EL-2054", texts);
    startRun();
    takeOver();
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_FALSE(find("dlgWarn")->isVisible());
    EXPECT_EQ(note(kTiltPage), "The draft is taken over up to this page: something here is missing or wrong.");
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_NE(warningsOf([this] { click("cmdNext15"); }), "") << "a Next that is pressed speaks";
}

TEST_F(DraftReplayTest, whatWaitsBehindAFailingPageIsNotLostWithTheNextKill)
{
    startRun();
    fillPagesBefore(kDistributionPage);
    const PageText keywords = textsOf(window->page(kKeywordPage));
    kill();
    {
        SqliteDraftStore other(draftFolder);
        Draft draft;
        ASSERT_EQ(other.takeOver(other.look().free.at(0).name, draft), TakeEnd::Taken);
        other.drop();
        for (DraftText &text : draft.texts)
            if (text.name == "lmpTxtNumAngles")
                text.text = "";
        leave(kDistributionPage, draft.head.about, draft.texts);
    }
    startRun();
    takeOver();
    ASSERT_EQ(shownPage(), kTiltPage);
    waitUntilKept();
    kill();
    startRun();
    waitForOffer();
    EXPECT_EQ(offer().substr(0, 25), "Draft of EL-2054, page 2,");
    takeOver();
    fillPageTwo();
    click("cmdNext15");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(textsOf(window->page(kKeywordPage)), keywords);
}

TEST_F(DraftReplayTest, errorThatNextWouldTellStopsItWithoutABox)
{
    std::vector<DraftText> texts = pageOne();
    texts[0].text = "40000";
    leave(kKeywordPage, "", texts);
    startRun();
    takeOver();
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(text("txtNumLamps"), "40000");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(DraftReplayTest, valuesOfATableWhoseCountsWereChangedAreKeptAsFarAsTheyFit)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    fillPageFive();
    click("cmdBack50");
    find<QComboBox>("phoCmbVert")->setFocus();
    press(Qt::Key_Down);
    const int rows = find<GridView>("phoGridVert")->model()->columnCount();
    ASSERT_GT(rows, 10);
    waitUntilKept();
    kill();
    startRun();
    takeOver();
    EXPECT_EQ(shownPage(), kDistributionPage);
    click("cmdNext30");
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(note(kCandelaPage), "");
    const QAbstractItemModel &cells = *find<GridView>("cdaGridCd")->model();
    EXPECT_EQ(cells.rowCount(), rows);
    EXPECT_EQ(cells.index(0, 1).data().toString(), "9");
    EXPECT_EQ(cells.index(8, 1).data().toString(), "1");
}

TEST_F(DraftReplayTest, tableThatUndoBroughtBackComesWithItsAngles)
{
    startRun();
    const PageText values = bringBackATable();
    waitUntilKept();
    const PhotometricRecord record = state.PhotFiles(1);
    kill();
    startRun();
    takeOver();
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(textsOf(window->page(kCandelaPage)), values);
    EXPECT_EQ(state.PhotFiles(1).VertAngles, record.VertAngles);
    EXPECT_EQ(state.PhotFiles(1).HorAngles, record.HorAngles);
    EXPECT_EQ(state.PhotFiles(1).PhotometricType, kTypeC);
}

TEST_F(DraftReplayTest, tableThatUndoBroughtBackComesWithItsAnglesFromAPageThatARemarkLedTo)
{
    startRun();
    bringBackATable();
    click("cmdNext50");
    ASSERT_EQ(shownPage(), kFinishPage);
    // Values as they are shown, whether they were typed there or come from the record.
    const auto shownValues = [this] {
        std::string values = textsOf(window->page(kCandelaPage)).at("cdaGridCd");
        std::erase(values, 'd');
        return values;
    };
    const std::string values = shownValues();
    window->goToPlace({RecordField::NumLamps});
    ASSERT_EQ(shownPage(), kLampPage);
    waitUntilKept();
    for (const char *next : {"cmdNext10", "cmdNext15", "cmdNext20", "cmdNext30"})
        click(next);
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(shownValues(), values);
    kill();
    startRun();
    takeOver();
    window->ShowPage(kDistributionPage);
    click("cmdNext30");
    EXPECT_EQ(shownValues(), values);
}

TEST_F(DraftReplayTest, tableThatTheHostSentComesWithItsAngles)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    fillPageFive();
    PhotometricRecord &record = state.PhotFiles(1);
    record.HorAngles = {0, 90};
    record.NumHorzAngles = 2;
    window->followRecord();
    find<GridView>("cdaGridCd")->goTo(10, 2);
    typeText("77");
    press(Qt::Key_Return);
    const PageText values = textsOf(window->page(kCandelaPage));
    waitUntilKept();
    kill();
    startRun();
    takeOver();
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(textsOf(window->page(kCandelaPage)), values);
    EXPECT_EQ(state.PhotFiles(1).HorAngles, (OneBased<float>{0, 90}));
}

TEST_F(DraftReplayTest, textThatWasGivenUpInAnEditorDoesNotComeBack)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    fillPageFive();
    find("cdaGridCd")->setFocus();
    typeText("99");
    waitUntilKept();
    press(Qt::Key_Escape);
    waitUntilKept();
    kill();
    startRun();
    takeOver();
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_FALSE(find<GridView>("cdaGridCd")->isEditing());
}

TEST_F(DraftReplayTest, whatCannotStandOnAPageIsRefusedAsAWhole)
{
    for (const DraftText &odd : {DraftText{kLampPage, "noSuchBox", "1"}, DraftText{kLampPage, "lmpCmbShape", "99"}}) {
        std::vector<DraftText> texts = pageOne();
        texts.push_back(odd);
        leave(kKeywordPage, "", texts);
        startRun();
        takeOver();
        EXPECT_EQ(shownPage(), kLampPage);
        EXPECT_EQ(text("txtNumLamps"), "");
        EXPECT_EQ(note(kLampPage), "What the draft holds for this page cannot stand here. The page is as it was.");
        emit window->cancelled();
        kill();
    }
}

TEST_F(DraftReplayTest, whatAPageRefusedIsKeptUntilTheUserTypesThere)
{
    std::vector<DraftText> texts = pageOne();
    texts.push_back({kLampPage, "noSuchBox", "1"});
    leave(kKeywordPage, "", texts);
    startRun();
    takeOver();
    ASSERT_EQ(text("txtNumLamps"), "");
    waitUntilKept();
    kill();
    {
        const Draft kept = leftDraft();
        EXPECT_EQ(textOf(kept, kLampPage, "txtNumLamps"), "1");
        EXPECT_EQ(textOf(kept, kLampPage, "noSuchBox"), "1");
    }
    startRun();
    takeOver();
    ASSERT_NE(note(kLampPage), "");
    find("txtNumLamps")->setFocus();
    typeText("5");
    waitUntilKept();
    kill();
    const Draft kept = leftDraft();
    EXPECT_EQ(textOf(kept, kLampPage, "txtNumLamps"), "5");
    EXPECT_EQ(textOf(kept, kLampPage, "noSuchBox"), "(none)");
}

TEST_F(DraftReplayTest, pagesThatDoNotExistAreNoHarm)
{
    std::vector<DraftText> texts = pageOne();
    texts.push_back({77, "txtNumLamps", "1"});
    texts.push_back({-1, "txtNumLamps", "1"});
    leave(4711, "", texts);
    startRun();
    takeOver();
    EXPECT_EQ(shownPage(), kTiltPage) << "page 2 is empty and fails";
}

TEST_F(DraftReplayTest, textInAnOpenEditorIsTypedOn)
{
    startRun();
    fillPagesBefore(kKeywordPage);
    find<GridView>("keyGrid")->goTo(3, 1);
    typeText("Night L");
    waitUntilKept();
    kill();
    startRun();
    takeOver();
    ASSERT_EQ(shownPage(), kKeywordPage);
    auto *grid = find<GridView>("keyGrid");
    EXPECT_TRUE(grid->isEditing());
    EXPECT_EQ(grid->source().read(3, 1), "") << "nobody has committed it";
    typeText("ab");
    press(Qt::Key_Return);
    EXPECT_EQ(grid->source().read(3, 1), "Night Lab");
}

TEST_F(DraftReplayTest, textEditedBackInAnEditorThatCameBackIsNoNewValue)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    auto *grid = find<GridView>("cdaGridCd");
    grid->goTo(1, 1);
    typeText("1234567.75");
    press(Qt::Key_Return);
    grid->goTo(1, 1);
    press(Qt::Key_F2);
    typeText("x");
    waitUntilKept();
    kill();
    startRun();
    takeOver();
    grid = find<GridView>("cdaGridCd");
    ASSERT_TRUE(grid->isEditing());
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    EXPECT_EQ(state.CandelaWorkRecord(1).Candela(1, 1), 1234567.75);
}

TEST_F(DraftReplayTest, oddTextsOfAnEditorAreNoHarm)
{
    for (const char *odd : {"", "x", "0 0 a", "99 1 a", "1 99 a", "-5 -5 a", "1 1", "99999999999 1 a"}) {
        std::vector<DraftText> texts = pageOne();
        texts.push_back({kTiltPage, "lmpGridTiltMultiplier.editor", odd});
        leave(kTiltPage, "", texts);
        startRun();
        takeOver();
        EXPECT_EQ(shownPage(), kTiltPage) << odd;
        EXPECT_FALSE(find<GridView>("lmpGridTiltMultiplier")->isEditing()) << odd;
        emit window->cancelled();
        kill();
    }
}

TEST_F(DraftReplayTest, draftTakesThePlaceOfWhatWasTypedBefore)
{
    leave(kLampPage, "", {{kLampPage, "txtNumLamps", "3"}});
    startRun();
    waitForOffer();
    typeText("12");
    takeOver();
    EXPECT_EQ(text("txtNumLamps"), "3");
    EXPECT_EQ(focusName(), "txtNumLamps");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtNumLamps"), "12") << "taking over is a step";
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(text("txtNumLamps"), "3");
    find<QLineEdit>("txtNumLamps")->selectAll();
    typeText("4");
    waitUntilKept();
    kill();
    EXPECT_EQ(textOf(leftDraft(), kLampPage, "txtNumLamps"), "4") << "one draft, and it goes on";
}

}  // namespace
}  // namespace penwright::test
