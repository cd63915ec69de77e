#include <penwright_host/HostedTool.h>

#include <csignal>
#include <QWidget>

#include "interop/host/Guide.h"

namespace penwright::test {
namespace {

TEST_F(Guide, theSmallestRunShowsTheWizardAndClosesIt)
{
    Process script({"sh", extract("hello.sh")});
    EXPECT_TRUE(waitForPage(1));
    EXPECT_EQ(endOf(script), 0);
    EXPECT_EQ(script.readAll(), "CloseRemove,PenwrightPE,7\nThe tool ended with status 0.\n");
}

/// One of the page's whole hosts.
struct HostCase {
    std::string interpreter;
    std::string file;
    int interrupt;  ///< the signal on which it closes its tool
    std::string brought;
};

void PrintTo(const HostCase &row, std::ostream *out)
{
    *out << row.file;
}

const std::string kKeywords =
    "IESNA:LM-63-2002 \n"
    "[TEST] 2214-07, goniophotometer, 8.5 m\n"
    "[TESTLAB] Example Photometry Laboratory\n"
    "[ISSUEDATE] 14-MAR-2024\n"
    "[MANUFAC] Example Luminaires\n"
    "[LUMCAT] DI-2x54-PA\n"
    "[LUMINAIRE] Pendant, direct and indirect, painted louver\n"
    "[LAMPCAT] T5-54-830\n"
    "[LAMP] Two 54 W linear fluorescent lamps\n";

const std::string kFromShell =
    "File: new_file_1\n"
    "Lamps: 2 of 5000 lumens, multiplier 1, ballast factor .95, 117.4 W\n"
    "Type 1, units 2, opening .18 x 1.183 x .06\n"
    "Horizontal angles (count first): 5,0,22.5,45,67.5,90\n"
    "Candela values: 185\n" +
    kKeywords;

const std::string kFromPython =
    "File: new_file_1\n"
    "Lamps: 2 of 5000 lumens, 117.4 W\n"
    "Tilt factors: [1.0, 0.985, 0.962, 0.94, 0.921, 0.905, 0.9]\n"
    "H 0: 37 values, the largest 2480.4\n"
    "H 22.5: 37 values, the largest 2480.4\n"
    "H 45: 37 values, the largest 2480.4\n"
    "H 67.5: 37 values, the largest 2480.4\n"
    "H 90: 37 values, the largest 2480.4\n" +
    kKeywords;

class GuideHost : public Guide, public testing::WithParamInterface<HostCase> {
protected:
    std::vector<std::string> command(const std::string &window = {})
    {
        std::vector<std::string> words{GetParam().interpreter, extract(GetParam().file)};
        if (!window.empty())
            words.push_back(window);
        return words;
    }

    /// What is left in the settings store of the tools' exchange.
    static bool isStoreEmpty()
    {
        std::string left = Process({"sqlite3", HostStore::userPath(),
                                    "SELECT section, name FROM setting WHERE "
                                    "section LIKE 'Host%'"})
                               .readAll();
        EXPECT_EQ(left, "");
        return left.empty();
    }
};

TEST_P(GuideHost, bringsWhatTheUserHasFinished)
{
    Process host(command());
    ASSERT_TRUE(finishLuminaire());
    EXPECT_EQ(endOf(host), 0);
    EXPECT_EQ(host.readAll(), GetParam().brought + "The tool ended with status 0.\n");
    EXPECT_TRUE(isStoreEmpty());
}

TEST_P(GuideHost, closesItsToolWhenItIsInterrupted)
{
    Process host(command());
    ASSERT_TRUE(waitForPage(1));
    host.signal(GetParam().interrupt);
    EXPECT_EQ(endOf(host), 0);
    EXPECT_EQ(host.readAll(), "The tool ended with status 0.\n");
    EXPECT_TRUE(isStoreEmpty());
}

TEST_P(GuideHost, givesTheWizardAPlaceInAWindow)
{
    QWidget window;
    window.resize(900, 700);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, 60'000));
    const auto number = static_cast<xcb_window_t>(window.winId());
    Process host(command(std::to_string(number)));
    ASSERT_TRUE(waitForPage(1));
    ASSERT_EQ(m_display.children(number).size(), 1U);
    EXPECT_EQ(m_display.size(m_display.children(number)[0]), QSize(800, 600));
    host.signal(GetParam().interrupt);
    EXPECT_EQ(endOf(host), 0);
    EXPECT_TRUE(m_display.children(number).empty());
}

TEST_P(GuideHost, goesOnWhenItsToolAsksForFreshRecords)
{
    std::filesystem::create_symlink(FAKE_TOOL, m_folder.file("PenwrightPE"));
    Process host(command(), {{"PATH", m_folder.path().string() + ":" + qgetenv("PATH").toStdString()},
                             {"FAKE_TOOL", "RefreshData"},
                             {"FAKE_TOOL_LOG", m_folder.file("log")}});
    const auto log = [&] {
        return std::filesystem::exists(m_folder.file("log")) ? contentOf(m_folder.file("log")) : "";
    };
    ASSERT_TRUE(waitFor([&] { return log().find("then Filename1 is") != std::string::npos; }));
    // Several looks into its inbox.
    EXPECT_FALSE(waitUntil([&] { return host.hasEnded() || log().find("CLOSE") != std::string::npos; }, 1s));
    host.signal(GetParam().interrupt);
    EXPECT_EQ(endOf(host), 0);
}

INSTANTIATE_TEST_SUITE_P(Languages, GuideHost,
                         testing::Values(HostCase{"sh", "host.sh", SIGTERM, kFromShell},
                                         HostCase{"python3", "host.py", SIGINT, kFromPython}),
                         [](const auto &row) { return row.param.interpreter; });

}  // namespace
}  // namespace penwright::test
