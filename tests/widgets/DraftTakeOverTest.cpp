#include <atomic>
#include <thread>

#include "support/SpinUntil.h"
#include "widgets/DraftOfferTest.h"

namespace penwright::test {
namespace {

/// Drafts on a disk that lets none be read before it is told.
class SlowDrafts : public SqliteDraftStore {
public:
    SlowDrafts(const std::string &folder, const std::atomic<bool> &isReadable)
        : SqliteDraftStore(folder), m_isReadable(isReadable)
    {
    }

    TakeEnd takeOver(const std::string &name, Draft &draft) override
    {
        while (!m_isReadable.load())
            std::this_thread::yield();
        return SqliteDraftStore::takeOver(name, draft);
    }

private:
    const std::atomic<bool> &m_isReadable;
};

class DraftTakeOver : public DraftOffer {
protected:
    std::atomic<bool> isReadable{false};

    /// Begins a run whose draft does not come before it `isReadable`.
    void startSlowRun()
    {
        drafts = std::make_unique<SlowDrafts>(draftFolder, isReadable);
        startWizard();
    }

    /// Takes a draft over that does not come yet, and types what is to be kept meanwhile.
    void typeWhileADraftIsAwaited()
    {
        leaveLamps("EL-2054", "3");
        startSlowRun();
        waitForOffer();
        click("draftTakeOver");
        EXPECT_EQ(focusName(), "txtNumLamps");
        typeText("9");
        waitUntilKept();
    }
};

TEST_F(DraftTakeOver, draftWhoseTakingOverIsUndoneIsOfferedAgainAsItWas)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    const std::string offered = offer();
    takeOver();
    ASSERT_EQ(text("txtNumLamps"), "3");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtNumLamps"), "");
    waitForOffer();
    EXPECT_EQ(offer().substr(0, 24), offered.substr(0, 24));
    EXPECT_FALSE(find<QTimer>("draftTimer")->isActive()) << "nothing has been typed";
    typeText("5");
    waitUntilKept();
    kill();
    const DraftsFound found = left();
    ASSERT_EQ(found.free.size(), 2U);
    EXPECT_EQ(lampsOf(found.free[0]), "5");
    EXPECT_EQ(lampsOf(found.free[1]), "3");
}

TEST_F(DraftTakeOver, takingOverThatIsMadeAgainGoesOnWithTheDraft)
{
    leaveLamps("EL-2054", "3");
    startRun();
    takeOver();
    press(Qt::Key_Z, Qt::ControlModifier);
    waitForOffer();
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text("txtNumLamps"), "3");
    QTest::qWait(50);
    EXPECT_TRUE(find("draftLine")->isHidden());
    typeText("4");
    waitUntilKept();
    kill();
    const DraftsFound found = left();
    ASSERT_EQ(found.free.size(), 1U);
    EXPECT_EQ(lampsOf(found.free[0]), "4");
}

TEST_F(DraftTakeOver, secondDraftThatUndoBringsBackIsTakenOverAndTheFirstKeepsAllItsPages)
{
    leave(kLampPage, "first", {{kLampPage, "txtNumLamps", "1"}, {kTiltPage, "lmpTxtNumAngles", "2"}});
    leaveLamps("second", "2");
    startRun();
    waitForOffer();
    click("draftDiscard");
    ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isEnabled(); }));
    takeOver();
    ASSERT_EQ(text("txtNumLamps"), "1");
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(spinUntil([this] { return offer() == momentOf("Draft of second, page 1"); }));
    takeOver();
    EXPECT_EQ(text("txtNumLamps"), "2");
    waitUntilKept();
    kill();
    const DraftsFound found = left();
    ASSERT_EQ(found.free.size(), 2U);
    EXPECT_EQ(found.free[1].head.about, "first");
    EXPECT_EQ(lampsOf(found.free[1]), "1");
    EXPECT_EQ(lampsOf(found.free[1], kTiltPage, "lmpTxtNumAngles"), "2");
}

TEST_F(DraftTakeOver, pagesOfADraftThatWasGivenBackAreNotFilledFromIt)
{
    for (const bool isMadeAgain : {false, true}) {
        leave(kLampPage, "", {{kLampPage, "txtNumLamps", "1"}, {kTiltPage, "lmpTxtNumAngles", "2"}});
        startRun();
        takeOver();
        press(Qt::Key_Z, Qt::ControlModifier);
        if (isMadeAgain)
            press(Qt::Key_Y, Qt::ControlModifier);
        window->ShowPage(kTiltPage);
        EXPECT_EQ(text("lmpTxtNumAngles"), isMadeAgain ? "2" : "");
        emit window->cancelled();
        kill();
    }
}

TEST_F(DraftTakeOver, pagesThatWereTypedBeforeADraftIsTakenOverAreADraftOfTheirOwn)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    fillPageOne();
    click("cmdNext10");
    ASSERT_EQ(shownPage(), kKeywordPage);
    fillPageThree();
    click("cmdBack20");
    takeOver();
    EXPECT_EQ(text("txtNumLamps"), "3");
    kill();
    const DraftsFound found = left();
    ASSERT_EQ(found.free.size(), 2U);
    EXPECT_EQ(lampsOf(found.free[0]), "3");
    EXPECT_EQ(lampsOf(found.free[1]), "1");
    EXPECT_NE(lampsOf(found.free[1], kKeywordPage, "keyGrid").find("EL-2054"), std::string::npos);
}

TEST_F(DraftTakeOver, pagesThatWereTypedBeforeATakingOverIsMadeAgainAreADraftOfTheirOwn)
{
    leaveLamps("EL-2054", "3");
    startRun();
    waitForOffer();
    fillPageOne();
    takeOver();
    press(Qt::Key_Z, Qt::ControlModifier);
    waitForOffer();
    click("cmdNext10");
    ASSERT_EQ(shownPage(), kKeywordPage);
    fillPageThree();
    click("cmdBack20");
    press(Qt::Key_Y, Qt::ControlModifier);
    ASSERT_EQ(text("txtNumLamps"), "3");
    waitUntilKept();
    kill();
    const DraftsFound found = left();
    ASSERT_EQ(found.free.size(), 2U);
    const auto isTyped = [this](const DraftEntry &draft) {
        return lampsOf(draft) == "1" && lampsOf(draft, kKeywordPage, "keyGrid").find("EL-2054") != std::string::npos;
    };
    EXPECT_TRUE(isTyped(found.free[0]) || isTyped(found.free[1]));
}

TEST_F(DraftTakeOver, draftThatComesLaterThanWhatIsTypedIsKeptTakesItsPlaceAsAStep)
{
    typeWhileADraftIsAwaited();
    EXPECT_EQ(text("txtNumLamps"), "9");
    EXPECT_TRUE(find("draftLine")->isVisible());
    isReadable.store(true);
    ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isHidden(); }));
    EXPECT_EQ(text("txtNumLamps"), "3");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtNumLamps"), "9");
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text("txtNumLamps"), "3");
    kill();
    EXPECT_EQ(textOf(leftDraft(), kLampPage, "txtNumLamps"), "3");
}

TEST_F(DraftTakeOver, whatIsTypedWhileADraftIsAwaitedThatDoesNotComeIsKept)
{
    typeWhileADraftIsAwaited();
    std::filesystem::remove_all(draftFolder);
    isReadable.store(true);
    ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isHidden(); }));
    EXPECT_EQ(note(kLampPage), "This draft is not there any more.");
    typeText("8");
    waitUntilKept();
    kill();
    EXPECT_EQ(textOf(leftDraft(), kLampPage, "txtNumLamps"), "98");
}

}  // namespace
}  // namespace penwright::test
