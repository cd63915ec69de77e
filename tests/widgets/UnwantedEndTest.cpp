#include <QSignalSpy>

#include "hostlink/Patience.h"
#include "support/SpinUntil.h"
#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

using namespace std::chrono_literals;

/// The wizard as start-up opens it, hidden, with a clock that stands still until it is moved.
class UnwantedTool : public WizardTest {
protected:
    void open(bool hostIsThere)
    {
        embedding.hostIsThere = hostIsThere;
        loadWindow();
        testing::internal::CaptureStderr();
        openWizard(*window, state.start, embedding, [this] { return m_now; });
        opening = testing::internal::GetCapturedStderr();
    }
    void pass(std::chrono::seconds time) { m_now += time; }

    /// Lets the window look for commands, and then whether somebody wants something.
    void look()
    {
        find<QTimer>("tmrUnwanted")->setInterval(1);
        for (const char *timer : {"tmrDataExchange", "tmrUnwanted"}) {
            QSignalSpy ticks(find<QTimer>(timer), &QTimer::timeout);
            ASSERT_TRUE(QTest::qWaitFor([&] { return ticks.count() >= 2; }, 20'000));
        }
    }

    std::string opening;  ///< what the opening said on stderr

private:
    Patience::Time m_now;
};

TEST_F(UnwantedTool, endsByItselfAfterTenMinutesAndSaysSoOnce)
{
    open(false);
    EXPECT_EQ(opening, "PenwrightPE: window 123 is not there; the wizard opens as a window of its own.\n");
    pass(10min - 1s);
    look();
    EXPECT_FALSE(closing.isClosing());
    testing::internal::CaptureStderr();
    pass(1s);
    EXPECT_EQ(runUntilEnd(), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "PenwrightPE: nobody has wanted anything for ten minutes; the tool ends.\n");
    EXPECT_EQ(taken, std::vector<std::string>{"CloseRemove,PenwrightPE,7"});
}

TEST_F(UnwantedTool, everyCommandTakenGivesItTenMinutesMore)
{
    open(false);
    for (int command = 0; command < 3; ++command) {
        pass(9min);
        sendCommand("nothing known");
        look();
    }
    pass(9min);
    look();
    EXPECT_FALSE(closing.isClosing());
}

TEST_F(UnwantedTool, staysWhileItIsShown)
{
    open(false);
    sendCommand("START");
    ASSERT_TRUE(spinUntil([this] { return window->isVisible(); }));
    pass(24h);
    look();
    EXPECT_FALSE(closing.isClosing());
}

TEST_F(UnwantedTool, staysInAHostThatIsThere)
{
    open(true);
    EXPECT_EQ(opening, "");
    EXPECT_EQ(window->findChild<QTimer *>("tmrUnwanted"), nullptr);
}

}  // namespace
}  // namespace penwright::test
