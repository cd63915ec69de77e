#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <optional>

#include "disorder/RandomScript.h"
#include "disorder/Script.h"
#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

int numberOf(const char *variable, int unasked)
{
    const char *wanted = std::getenv(variable);
    return wanted ? std::atoi(wanted) : unasked;
}

/// How a process that plays scripts has ended.
struct Played {
    bool isFine = false;
    std::size_t script = 0;  ///< the one played last, counted from 1
    std::string said;
};

/// Scripts are played by this program in a process of its own, so that a crash is told as everything else.
class Disorder : public testing::Test {
protected:
    Played play(const std::vector<Script> &scripts)
    {
        std::ofstream file(m_folder.file("script"));
        for (const Script &script : scripts)
            file << textOf(script) << "\n";
        file.close();
        Process player({"/proc/self/exe"},
                       {{"PENWRIGHT_SCRIPT", m_folder.file("script")},
                        {"TMPDIR", m_folder.path()},
                        {"QT_LOGGING_RULES", "qt.qpa.*=false;default.warning=false"}},
                       Process::Errors::Joined);
        Played played;
        played.said = player.readAll(scripts.size() * 30s);
        for (std::size_t at = 0; (at = played.said.find("script ", at)) != std::string::npos; ++at)
            ++played.script;
        played.isFine = player.waitForEnd() == 0;  // one that hangs is killed when it goes
        return played;
    }

    bool fails(const Script &script) { return !play({script}).isFine; }

    /// The script as short as it gets in a while, to be put into a file and played again. What depends on the moment
    /// may not fail again: then it is the whole script.
    std::string report(const Script &script)
    {
        constexpr auto kMostTime = 60s;
        const auto begin = std::chrono::steady_clock::now();
        const Script shortest = shrunk(script, [&](const Script &part) {
            return std::chrono::steady_clock::now() - begin < kMostTime && fails(part);
        });
        return "PENWRIGHT_SCRIPT=FILE plays this again:\n" + textOf(shortest) + "\n" + play({shortest}).said;
    }

    TempFolder m_folder;
};

TEST_F(Disorder, ofHostAndUserBreaksNothing)
{
    constexpr int kActsPerScript = 150;
    constexpr std::size_t kScriptsPerProcess = 10;
    const auto seed = static_cast<unsigned>(numberOf("PENWRIGHT_SEED", 1));
    const int all = numberOf("PENWRIGHT_ACTS", 300);
    std::vector<Script> scripts;
    for (int acts = 0; acts < all; acts += kActsPerScript)
        scripts.push_back(randomScript(seed * 100'000 + static_cast<unsigned>(scripts.size()), kActsPerScript));
    for (std::size_t from = 0; from < scripts.size();) {
        const auto begin = scripts.begin() + static_cast<std::ptrdiff_t>(from);
        const std::size_t count = std::min(kScriptsPerProcess, scripts.size() - from);
        const Played played = play({begin, begin + static_cast<std::ptrdiff_t>(count)});
        if (std::getenv("PENWRIGHT_ACTS"))
            std::printf("%s", played.said.c_str()), std::fflush(stdout);
        ASSERT_GT(played.script, 0U) << played.said;
        if (!played.isFine)
            ADD_FAILURE() << "seed " << seed << ", script " << from + played.script << ": " << played.said << "\n"
                          << report(scripts[from + played.script - 1]);
        from += played.isFine ? count : played.script;
    }
}

TEST_F(Disorder, crashAndFaultAreToldWithTheirScript)
{
    const Played crashed = play({{"next"}, {"fill 1", "crash"}});
    EXPECT_FALSE(crashed.isFine);
    EXPECT_EQ(crashed.script, 2U);
    const Played faulty = play({{"fill 1", "no such act"}});
    EXPECT_FALSE(faulty.isFine);
    EXPECT_NE(faulty.said.find("act 2: no such act: there is no such act"), std::string::npos) << faulty.said;
}

TEST(DisorderScript, shrinksToTheActsThatMatter)
{
    const auto needsBoth = [](const Script &script) {
        const auto first = std::find(script.begin(), script.end(), "type 7");
        return std::find(first, script.end(), "next") != script.end();
    };
    Script script(40, "back");
    script[11] = "type 7";
    script[30] = "next";
    EXPECT_EQ(shrunk(script, needsBoth), (Script{"type 7", "next"}));
}

TEST(DisorderScript, isReadAsItWasWritten)
{
    const std::string text = "1\t2\n\\n\xc3\xa4";
    EXPECT_EQ(escaped(text), "1\\t2\\n\\\\n\xc3\xa4");
    EXPECT_EQ(unescaped(escaped(text)), text);
    EXPECT_EQ(scriptsIn("# a remark\nnext\nback\n\n\nfill 2\n"), (std::vector<Script>{{"next", "back"}, {"fill 2"}}));
    EXPECT_EQ(scriptsIn(textOf(randomScript(1, 100))).front(), randomScript(1, 100));
}

TEST(DisorderScript, isAnotherOneForAnotherSeed)
{
    EXPECT_NE(randomScript(1, 100), randomScript(2, 100));
}

}  // namespace
}  // namespace penwright::test
