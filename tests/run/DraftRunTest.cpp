#include <array>
#include <chrono>
#include <random>

#include "platform/sqlite/SqliteDraftStore.h"
#include "run/Desktop.h"
#include "run/RunTest.h"

namespace penwright::test {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kBoxes = 8;
constexpr const char *kNames[kBoxes]{"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast",
                                     "txtWatt",     "txtWidth",      "txtLength",     "txtHeight"};

/// What stands on page 1: the texts of its boxes.
using Typed = std::array<std::string, kBoxes>;

/// One key of the walk, what stands on the page after it, and when it was pressed.
struct Key {
    std::string name;
    Typed after;
    Clock::time_point pressed;
};

/// The executable as a window of its own on the display, typed into by real keys.
class DraftRun : public RunTest {
protected:
    void startAndShow()
    {
        start({"123,1,HostBox,7,3,Sec"}, "xcb");
        send("START");
        m_window = windowTitled("New Photometric file: (1 of 6) General Info");
        ASSERT_NE(m_window, "");
        xdotool({"windowfocus", "--sync", m_window});
    }

    void kill()
    {
        tool().signal(SIGKILL);
        ASSERT_TRUE(tool().waitForEnd());
    }

    std::string drafts() const { return stateFolder() + "/Lumentor/drafts"; }
    DraftsFound left() const { return SqliteDraftStore(drafts()).look(); }

    /// What page 1 holds by the latest draft, which is free; all boxes empty where there is none.
    Typed keptTexts() const
    {
        Typed texts;
        SqliteDraftStore store(drafts());
        const DraftsFound found = store.look();
        Draft draft;
        if (found.free.empty() || store.takeOver(found.free[0].name, draft) != TakeEnd::Taken)
            return texts;
        for (const DraftText &held : draft.texts)
            for (int box = 0; box < kBoxes; ++box)
                if (held.page == 0 && held.name == kNames[box])
                    texts.at(static_cast<std::size_t>(box)) = held.text;
        return texts;
    }

    static std::string shown(const Typed &texts)
    {
        std::string line;
        for (const std::string &text : texts)
            line += text + "|";
        return line;
    }

private:
    std::string m_window;
};

/// A walk through the boxes of page 1: some digits into each, then Tab, by chance.
std::vector<Key> walk(std::mt19937 &chance)
{
    std::vector<Key> keys{{"", {}, {}}};
    Typed texts;
    for (std::string &text : texts) {
        const auto digits = 1 + chance() % 5;
        for (unsigned digit = 0; digit < digits; ++digit) {
            const std::string key = std::to_string(1 + chance() % 9);
            text += key;
            keys.push_back({key, texts, {}});
        }
        keys.push_back({"Tab", texts, {}});
        if (&text == &texts[4])
            keys.push_back({"Tab", texts, {}});  // past the list of shapes
    }
    return keys;
}

TEST_F(DraftRun, killAtAnyMomentCostsTwoSecondsOfTypingAtMost)
{
    constexpr unsigned kSeed = 20260514;
    for (int round = 0; round < killRounds(8); ++round) {
        std::mt19937 chance(kSeed + static_cast<unsigned>(round));
        startAndShow();
        std::vector<Key> keys = walk(chance);
        const std::size_t last = 1 + chance() % (keys.size() - 1);
        keys[0].pressed = Clock::now();
        for (std::size_t key = 1; key <= last; ++key) {
            typeKeys({keys[key].name});
            keys[key].pressed = Clock::now();
            std::this_thread::sleep_for(Milliseconds(chance() % 150));
        }
        if (!areKillsMeasured() && round % 4 == 3)
            std::this_thread::sleep_for(killCost() + 500ms);  // all must be kept by then
        const auto killed = Clock::now();
        kill();

        const Typed kept = keptTexts();
        std::size_t same = last + 1;
        while (same > 0 && keys[same - 1].after != kept)
            --same;
        ASSERT_GT(same, 0U) << "round " << round << ": " << shown(kept) << " never stood on the page, the last was "
                            << shown(keys[last].after);
        if (same <= last)  // keys[same] is the first key that is missing
            EXPECT_LE(killed - keys[same].pressed, killCost())
                << "round " << round << ": kept " << shown(kept) << " of " << shown(keys[last].after);
        std::filesystem::remove_all(drafts());
    }
}

TEST_F(DraftRun, signalsThatEndTheProgramLeaveAllThatWasTyped)
{
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        startAndShow();
        typeKeys({"4", "2"});
        send("anything");  // behind the keys, which the display hands on at once
        tool().signal(number);
        expectUnloaded();
        EXPECT_EQ(keptTexts()[0], "42") << number;
        std::filesystem::remove_all(drafts());
    }
}

TEST_F(DraftRun, runInWhichNothingIsTypedLeavesNoFile)
{
    startAndShow();
    send("CLOSE");
    expectUnloaded();
    EXPECT_FALSE(std::filesystem::exists(stateFolder()));
}

}  // namespace
}  // namespace penwright::test
