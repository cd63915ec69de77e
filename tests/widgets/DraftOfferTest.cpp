#include "widgets/DraftOfferTest.h"
#include "support/SpinUntil.h"
#include "wizard/PageSteps.h"

namespace penwright::test {
namespace {

TEST_F(DraftOffer, nothingIsOfferedWhereNothingWasLeft)
{
    startRun();
    QTest::qWait(50);
    EXPECT_TRUE(find("draftLine")->isHidden());
}

TEST_F(DraftOffer, draftIsOfferedInALineThatTakesNoFocus)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    EXPECT_EQ(offer(), momentOf("Draft of EL-2054, page 1"));
    EXPECT_EQ(focusName(), "txtNumLamps");
    EXPECT_TRUE(find("draftTakeOver")->isVisible());
    EXPECT_TRUE(find("draftDiscard")->isVisible());
    EXPECT_FALSE(find("draftMore")->isVisible());
    EXPECT_EQ(dialogs.transcript, "");
    typeText("12");
    EXPECT_EQ(text("txtNumLamps"), "12");
    EXPECT_TRUE(find("draftLine")->isVisible());
}

TEST_F(DraftOffer, lineStandsAboveTheFormAndComesBeforeItWithTab)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    EXPECT_LT(find("draftLine")->mapTo(window.get(), QPoint()).y(), find("Frame2")->mapTo(window.get(), QPoint()).y());
    press(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), "draftDiscard");
    press(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), "draftTakeOver");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "txtNumLamps");
}

TEST_F(DraftOffer, enterInTheLinePressesNextAndNoButtonOfIt)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    find("draftDiscard")->setFocus();
    EXPECT_NE(warningsOf([] { press(Qt::Key_Return); }), "");
    EXPECT_EQ(left().free.size(), 1U);
    EXPECT_TRUE(find("draftLine")->isVisible());
}

TEST_F(DraftOffer, screenReaderHearsTheOfferOnTheLineAndItsButtons)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    const QString told = QString::fromStdString(offer());
    EXPECT_EQ(find("draftLine")->accessibleName(), told);
    EXPECT_EQ(find("draftTakeOver")->accessibleDescription(), told);
    EXPECT_EQ(find("draftDiscard")->accessibleDescription(), told);
}

TEST_F(DraftOffer, discardedDraftIsGoneWithTheLine)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    find("draftDiscard")->setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(find("draftLine")->isHidden());
    EXPECT_EQ(focusName(), "txtNumLamps");
    kill();
    EXPECT_TRUE(left().free.empty());
}

TEST_F(DraftOffer, discardIsAStepThatBringsTheDraftBack)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    const std::string offered = offer();
    click("draftDiscard");
    EXPECT_EQ(window->page(kLampPage).steps().undoAction()->text().toStdString(), "U&ndo Discard");
    typeText("12");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtNumLamps"), "");
    EXPECT_TRUE(find("draftLine")->isHidden());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(find("draftLine")->isVisible());
    EXPECT_EQ(offer(), offered);
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(find("draftLine")->isHidden());
    press(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isEnabled(); }));
    takeOver();
    EXPECT_EQ(text("txtNumLamps"), "3");
    kill();
    EXPECT_EQ(left().free.size(), 1U);
}

TEST_F(DraftOffer, draftThatWasDiscardedGoesWithTheRunAndNotWithAKill)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    click("draftDiscard");
    EXPECT_EQ(left().free.size(), 1U);
    window->StartWizard();
    QTest::qWait(50);
    EXPECT_TRUE(find("draftLine")->isHidden());
    kill();
    EXPECT_TRUE(left().free.empty());
}

TEST_F(DraftOffer, draftsThatWereDiscardedComeBackOneByOneToTheirPlaces)
{
    for (const char *about : {"first", "second", "third"})
        leaveLamps(about, "1");
    startRun();
    waitForOffer();
    auto &steps = window->page(kLampPage).steps();
    click("draftDiscard");
    ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isEnabled(); }));
    click("draftDiscard");
    EXPECT_EQ(offer(), momentOf("Draft of first, page 1"));
    steps.undo();
    EXPECT_EQ(offer(), momentOf("Draft of second, page 1"));
    steps.undo();
    EXPECT_EQ(offer(), momentOf("Draft of third, page 1"));
    ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isEnabled(); }));
    click("draftMore");
    auto *list = find<QMenu>("draftList");
    ASSERT_EQ(list->actions().size(), 3);
    EXPECT_EQ(list->actions()[2]->text().toStdString(), momentOf("Draft of first, page 1"));
    list->close();
    steps.redo();
    EXPECT_EQ(offer(), momentOf("Draft of second, page 1"));
    kill();
    EXPECT_EQ(left().free.size(), 2U);
}

TEST_F(DraftOffer, discardAndItsUndoTypeNothing)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    click("draftDiscard");
    window->page(kLampPage).steps().undo();
    EXPECT_FALSE(find<QTimer>("draftTimer")->isActive());
    kill();
    EXPECT_EQ(left().free.size(), 1U);
}

TEST_F(DraftOffer, latestOfManyIsOfferedAndTheListHasTheOthers)
{
    leaveLamps("first", "1");
    leaveLamps("A&B", "2");
    leaveLamps("third", "3");
    startRun();
    waitForOffer();
    EXPECT_EQ(offer(), momentOf("Draft of third, page 1"));
    click("draftMore");
    auto *list = find<QMenu>("draftList");
    ASSERT_TRUE(list->isVisible());
    ASSERT_EQ(list->actions().size(), 3);
    EXPECT_EQ(list->actions()[1]->text().toStdString(), momentOf("Draft of A&&B, page 1"));
    list->actions()[1]->trigger();
    list->close();
    EXPECT_EQ(offer(), momentOf("Draft of A&B, page 1"));
    takeOver();
    EXPECT_EQ(text("txtNumLamps"), "2");
    kill();
    EXPECT_EQ(left().free.size(), 3U) << "what was taken over goes on as a draft";
}

TEST_F(DraftOffer, listStaysInThePageHoweverLongItsEntriesAre)
{
    leaveLamps("first", "1");
    leaveLamps(std::string(250, 'M'), "2");
    startRun();
    waitForOffer();
    click("draftMore");
    auto *list = find<QMenu>("draftList");
    ASSERT_TRUE(list->isVisible());
    const QRect line(find("draftLine")->mapToGlobal(QPoint()), find("draftLine")->size());
    EXPECT_GE(list->frameGeometry().left(), line.left());
    EXPECT_LE(list->frameGeometry().right(), line.right());
    EXPECT_EQ(list->actions()[0]->text().left(10), "Draft of M");
    list->close();
}

TEST_F(DraftOffer, nextDraftIsOfferedWhenOneOfManyIsDiscarded)
{
    leaveLamps("first", "1");
    leaveLamps("second", "2");
    startRun();
    waitForOffer();
    click("draftDiscard");
    EXPECT_EQ(offer(), momentOf("Draft of first, page 1"));
    EXPECT_FALSE(find("draftMore")->isVisible());
}

TEST_F(DraftOffer, doubleClickDiscardsOneDraft)
{
    for (const char *about : {"first", "second", "third"})
        leaveLamps(about, "1");
    startRun();
    waitForOffer();
    click("draftDiscard");
    click("draftDiscard");
    EXPECT_EQ(offer(), momentOf("Draft of second, page 1"));
    EXPECT_TRUE(spinUntil([this] { return find("draftLine")->isEnabled(); }));
}

TEST_F(DraftOffer, buttonsKeepTheirPlaces)
{
    leaveLamps("first", "1");
    leaveLamps("second", "2");
    startRun();
    waitForOffer();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QPoint place = find("draftTakeOver")->pos();
    click("draftDiscard");
    EXPECT_FALSE(find("draftMore")->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    EXPECT_EQ(find("draftTakeOver")->pos(), place);
}

TEST_F(DraftOffer, lastFileIsOfferedWhereThereIsNoDraft)
{
    {
        SqliteDraftStore other(draftFolder);
        other.write({1'700'000'000, kFinishPage, "EL-2054"}, [first = true]() mutable {
            return std::exchange(first, false) ? std::optional(DraftText{kLampPage, "txtNumLamps", "4"}) : std::nullopt;
        });
        other.finish();
    }
    startRun();
    waitForOffer();
    EXPECT_EQ(offer(), momentOf("Start from EL-2054"));
    EXPECT_FALSE(find("draftDiscard")->isVisible());
    takeOver();
    EXPECT_EQ(text("txtNumLamps"), "4");
    EXPECT_EQ(shownPage(), kLampPage);
    kill();
    EXPECT_TRUE(left().last) << "the last file stays one to start from";
}

TEST_F(DraftOffer, draftThatAnotherWizardTookIsSaidToBeInUse)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    SqliteDraftStore other(draftFolder);
    Draft draft;
    ASSERT_EQ(other.takeOver(other.look().free.at(0).name, draft), TakeEnd::Taken);
    takeOver();
    EXPECT_EQ(note(kLampPage), "Another wizard has taken this draft over.");
    EXPECT_EQ(text("txtNumLamps"), "");
    EXPECT_TRUE(find("draftLine")->isHidden());
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(DraftOffer, draftThatIsNotUnderstoodIsPutAsideAndSaidOnce)
{
    std::filesystem::create_directories(draftFolder);
    std::ofstream(draftFolder + "/draft-20240101T000000-1-0badf00d.sqlite3") << "rubbish";
    startRun();
    EXPECT_TRUE(spinUntil([this] { return !note(kLampPage).empty(); }));
    EXPECT_EQ(note(kLampPage), "A draft could not be read and was put aside.");
    kill();
    startRun();
    QTest::qWait(50);
    EXPECT_EQ(note(kLampPage), "");
}

}  // namespace
}  // namespace penwright::test
