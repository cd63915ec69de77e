#include "host/HostWindowBench.h"

#include <csignal>

#include <QTabWidget>

namespace penwright::test {
namespace {

class HostSilenceTest : public HostWindowTest {
protected:
    bool waitForTab(const QString &name) const
    {
        const auto *tabs = m_window->findChild<QTabWidget *>("tabs");
        return QTest::qWaitFor([&] { return tabs->tabText(1) == name; }, 30'000);
    }
};

TEST_F(HostSilenceTest, aStoppedToolIsNamedAndOneThatGoesOnToo)
{
    ToolTab *tab = m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    const auto tool = static_cast<pid_t>(tab->run().tool().processId());
    ASSERT_TRUE(waitForTab("Tool 1"));
    kill(tool, SIGSTOP);
    EXPECT_TRUE(waitForTab("Tool 1 (silent)"));
    EXPECT_TRUE(logged().contains("Silent: has taken no command for 5 seconds; it is stopped or hangs"));
    kill(tool, SIGCONT);
    EXPECT_TRUE(waitForTab("Tool 1"));
    EXPECT_TRUE(logged().contains("Takes commands again"));
}

TEST_F(HostSilenceTest, askingWhetherAToolListensIsNotLogged)
{
    m_window->startTool();
    const auto moves = [](const QStringList &lines) { return lines.filter("MOVEWIN,").size(); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return moves(noted()) >= 3; }, 30'000));
    EXPECT_EQ(moves(logged()), 1);
}

}  // namespace
}  // namespace penwright::test
