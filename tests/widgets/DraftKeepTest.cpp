#include "pages/distribution/PredefinedAngles.h"
#include "support/DialogDriver.h"
#include "widgets/DraftsTest.h"

namespace penwright::test {
namespace {

class DraftKeep : public DraftsTest {
protected:
    /// Pastes a table of 2 x 1 values on page 4.
    void pasteSmallTable()
    {
        QGuiApplication::clipboard()->setText("\t0\n0\t5.5\n90\t4\n");
        bool isTaken = false;
        whenDialogIsUp([&](QDialog &dialog) {
            isTaken = true;
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        });
        find("phoGridVert")->setFocus();
        press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(spinUntil([&] { return isTaken; }));
    }
};

TEST_F(DraftKeep, runInWhichNothingIsTypedLeavesNothing)
{
    startRun();
    QTest::qWait(50);
    kill();
    EXPECT_FALSE(std::filesystem::exists(draftFolder));
}

TEST_F(DraftKeep, whatIsTypedIsKeptSoonAfter)
{
    startRun();
    typeText("7");
    waitUntilKept();
    kill();
    const Draft draft = leftDraft();
    EXPECT_EQ(draft.head.page, kLampPage);
    EXPECT_EQ(draft.head.about, "");
    EXPECT_EQ(textOf(draft, kLampPage, "txtNumLamps"), "7");
    EXPECT_EQ(textOf(draft, kLampPage, "txtWatt"), "");
    EXPECT_EQ(textOf(draft, kLampPage, "lmpCmbShape"), "-1");
}

TEST_F(DraftKeep, firstChangeIsKeptAtOnceAndNobodyWaitsForAPauseInTyping)
{
    startRun();
    auto *timer = find<QTimer>("draftTimer");
    typeText("7");
    EXPECT_EQ(timer->interval(), 0);
    EXPECT_TRUE(spinUntil([&] { return !timer->isActive(); }));
    typeText("8");
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 1000);
    const int left = timer->remainingTime();
    QTest::qWait(20);
    typeText("9");
    EXPECT_LT(timer->remainingTime(), left) << "a later key must not put it off";
}

TEST_F(DraftKeep, pageTurnIsKeptAtOnce)
{
    startRun();
    fillPagesBefore(kKeywordPage);
    fillPageThree();
    click("cmdNext20");
    kill();
    const Draft draft = leftDraft();
    EXPECT_EQ(draft.head.page, kDistributionPage);
    EXPECT_EQ(draft.head.about, "EL-2054");
    EXPECT_EQ(textOf(draft, kTiltPage, "lmpTxtNumAngles"), "2");
    EXPECT_EQ(textOf(draft, kCandelaPage, "cdaGridCd"), "(none)") << "a page that was never shown holds nothing";
}

TEST_F(DraftKeep, listsThatAreEmptiedByTheTypeThatWasChosenAlreadyAreKeptEmpty)
{
    startRun();
    fillPagesBefore(kDistributionPage);
    fillPageFour();
    waitUntilKept();
    click("rdoC");
    waitUntilKept();
    kill();
    EXPECT_EQ(textOf(leftDraft(), kDistributionPage, "phoCmbHorz"), kAnglePrompt);
}

TEST_F(DraftKeep, tableThatIsPastedBeforeItsPageWasShownIsKeptToo)
{
    startRun();
    fillPagesBefore(kDistributionPage);
    click("rdoC");
    pasteSmallTable();
    waitUntilKept();
    kill();
    EXPECT_EQ(textOf(leftDraft(), kCandelaPage, "cdaGridCd"), "5.5d\n4d\n");
    startRun();
    takeOver();
    ASSERT_EQ(shownPage(), kDistributionPage);
    click("cmdNext30");
    EXPECT_EQ(textsOf(window->page(kCandelaPage)).at("cdaGridCd"), "5.5d\n4d\n");
}

TEST_F(DraftKeep, tableThatIsPastedBeforeThatOfTheLastFileCameTakesItsPlace)
{
    startRun();
    fillPagesBefore(kFinishPage);
    emit window->fileTaken();
    kill();
    startRun();
    takeOver();
    for (const char *next : {"cmdNext10", "cmdNext15", "cmdNext20"})
        click(next);
    ASSERT_EQ(shownPage(), kDistributionPage);
    pasteSmallTable();
    waitUntilKept();
    click("cmdNext30");
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(textsOf(window->page(kCandelaPage)).at("cdaGridCd"), "5.5d\n4d\n");
    kill();
    EXPECT_EQ(textOf(leftDraft(), kCandelaPage, "cdaGridCd"), "5.5d\n4d\n");
}

TEST_F(DraftKeep, secondStartAfterAFinishedFileOffersThatFile)
{
    startRun();
    fillPagesBefore(kFinishPage);
    emit window->fileTaken();
    window->StartWizard();
    waitForOffer();
    EXPECT_EQ(offer().substr(0, 19), "Start from EL-2054,");
}

TEST_F(DraftKeep, secondStartLeavesTheDraftWithItsTableAndOffersIt)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    fillPageFive();
    const PageText values = textsOf(window->page(kCandelaPage));
    window->StartWizard();
    ASSERT_EQ(shownPage(), kLampPage);
    waitForOffer();
    EXPECT_EQ(offer().substr(0, 25), "Draft of EL-2054, page 5,");
    find("txtNumLamps")->setFocus();
    typeText("9");
    waitUntilKept();
    kill();
    ASSERT_EQ(left().free.size(), 2U) << "what is typed then is a draft of its own";
    startRun();
    waitForOffer();
    click("draftMore");
    auto *list = find<QMenu>("draftList");
    list->actions().at(1)->trigger();
    list->close();
    takeOver();
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(textsOf(window->page(kCandelaPage)), values);
}

TEST_F(DraftKeep, draftThatASecondStartLeftCanBeTakenOverAtOnce)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    fillPageFive();
    const PageText values = textsOf(window->page(kCandelaPage));
    window->StartWizard();
    waitForOffer();
    EXPECT_FALSE(find<QTimer>("draftTimer")->isActive());
    EXPECT_EQ(left().free.size(), 1U) << "nothing has been typed since";
    takeOver();
    ASSERT_EQ(shownPage(), kCandelaPage);
    EXPECT_EQ(textsOf(window->page(kCandelaPage)), values);
    kill();
    EXPECT_EQ(left().free.size(), 1U);
}

TEST_F(DraftKeep, secondStartThatTakesNothingAwayGoesOnWithTheDraft)
{
    startRun();
    fillPagesBefore(kCandelaPage);
    window->StartWizard();
    QTest::qWait(50);
    EXPECT_FALSE(find("draftLine")->isVisible()) << "a table of blanks";
    waitUntilKept();
    kill();
    EXPECT_EQ(leftDraft().head.page, kLampPage);
}

TEST_F(DraftKeep, closeLeavesWhatWasTypedUpToIt)
{
    startRun();
    typeText("7");
    QTimer::singleShot(0, window.get(), [this] { window->beginUnload(); });
    EXPECT_EQ(runUntilEnd(), 0);
    kill();
    EXPECT_EQ(textOf(leftDraft(), kLampPage, "txtNumLamps"), "7");
}

TEST_F(DraftKeep, yesToTheCancelQuestionDropsTheDraft)
{
    startRun();
    typeText("7");
    waitUntilKept();
    typeText("8");
    dialogs.answers = {Answer::Yes};
    QTimer::singleShot(0, window.get(), [this] { click("cmdCancel"); });
    EXPECT_EQ(runUntilEnd(), 0);
    kill();
    EXPECT_TRUE(std::filesystem::is_empty(draftFolder));
}

TEST_F(DraftKeep, noToTheCancelQuestionKeepsItEvenWhereItEndsTheProgram)
{
    state.start.EmbedInHost = false;
    startRun();
    typeText("7");
    dialogs.answers = {Answer::No};
    QTimer::singleShot(0, window.get(), [this] { click("cmdCancel"); });
    EXPECT_EQ(runUntilEnd(), 0);
    kill();
    EXPECT_EQ(textOf(leftDraft(), kLampPage, "txtNumLamps"), "7");
}

TEST_F(DraftKeep, fileThatTheHostTookIsTheLastFileAndNoDraft)
{
    startRun();
    fillPagesBefore(kFinishPage);
    QTimer::singleShot(0, window.get(), [this] {
        click("cmdUnname");
        window->beginUnload();
    });
    EXPECT_EQ(runUntilEnd(), 0);
    kill();
    const DraftsFound found = left();
    EXPECT_TRUE(found.free.empty());
    ASSERT_TRUE(found.last);
    EXPECT_EQ(found.last->about, "EL-2054");
}

TEST_F(DraftKeep, whatIsTypedAfterTheHostTookTheFileIsADraftAgain)
{
    startRun();
    fillPagesBefore(kFinishPage);
    emit window->fileTaken();
    click("cmdBack80");
    waitUntilKept();
    window->ShowPage(kLampPage);
    setText("txtNumLamps", "9");
    waitUntilKept();
    kill();
    EXPECT_EQ(textOf(leftDraft(), kLampPage, "txtNumLamps"), "9");
    EXPECT_EQ(left().last.value().about, "EL-2054");
}

TEST_F(DraftKeep, settingSwitchesKeepingAndOfferingOff)
{
    leave(kLampPage, "EL-1", {{kLampPage, "txtNumLamps", "3"}});
    store.write("Lumentor32", "Lumentor32", "DraftsOff", "1");
    startRun();
    typeText("7");
    EXPECT_EQ(window->findChild<QTimer *>("draftTimer"), nullptr);
    EXPECT_EQ(window->findChild<QWidget *>("draftLine"), nullptr);
    kill();
    EXPECT_EQ(textOf(leftDraft(), kLampPage, "txtNumLamps"), "3");
}

TEST_F(DraftKeep, folderThatCannotBeWrittenIsToldInOneLineAndTheWizardWorksOn)
{
    std::filesystem::create_directories(folder.file("state/Lumentor"));
    std::ofstream(draftFolder) << "mine";
    startRun();
    typeText("7");
    waitUntilKept();
    const std::string told = "What you type is not kept as a draft: " + draftFolder + ": File exists";
    EXPECT_TRUE(spinUntil([&] { return note(kLampPage) == told; })) << note(kLampPage);
    fillPageOne();
    click("cmdNext10");
    EXPECT_EQ(shownPage(), kKeywordPage);
    QTest::qWait(50);
    EXPECT_EQ(note(kKeywordPage), "") << "once is enough";
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(DraftKeep, lineGoesOnceDraftsAreKeptAgainAndTakesNoOtherLineAlong)
{
    const auto typeAndKeep = [this](const char *text) {
        typeText(text);
        waitUntilKept();
    };
    for (const bool hasOtherLine : {false, true}) {
        std::filesystem::create_directories(folder.file("state/Lumentor"));
        std::filesystem::remove_all(draftFolder);
        std::ofstream(draftFolder) << "mine";
        startRun();
        typeAndKeep("7");
        ASSERT_TRUE(spinUntil([&] { return !note(kLampPage).empty(); }));
        if (hasOtherLine)
            window->page(kLampPage).showNote("Something else");
        std::filesystem::remove(draftFolder);
        typeAndKeep("8");
        ASSERT_TRUE(spinUntil([&] { return std::filesystem::is_directory(draftFolder); }));
        typeAndKeep("9");
        EXPECT_TRUE(spinUntil([&] { return hasOtherLine || note(kLampPage).empty(); }));
        QTest::qWait(50);
        EXPECT_EQ(note(kLampPage), hasOtherLine ? "Something else" : "");
        kill();
    }
}

}  // namespace
}  // namespace penwright::test
