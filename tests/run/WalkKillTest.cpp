#include <csignal>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "platform/sqlite/SqliteDraftStore.h"
#include "run/RunTest.h"
#include "support/Process.h"
#include "support/ReadBackFolder.h"

namespace penwright::test {
namespace {

using FileClock = std::filesystem::file_time_type::clock;

/// What is kept: a text for each page and control.
using Kept = std::map<std::pair<int, std::string>, std::string>;

Kept keptOf(const Draft &draft)
{
    Kept kept;
    for (const DraftText &text : draft.texts)
        kept[{text.page, text.name}] = text.text;
    return kept;
}

std::set<std::string> cellsOf(const std::string &table)
{
    std::set<std::string> cells;
    for (std::size_t at = 0; at <= table.size();) {
        const std::size_t end = std::min(table.find_first_of("\t\n", at), table.size());
        cells.insert(table.substr(at, end - at));
        at = end + 1;
    }
    return cells;
}

/// The first child of a process, which it has started; 0 while it has none.
pid_t childOf(pid_t process)
{
    const std::string number = std::to_string(process);
    pid_t child = 0;
    std::ifstream("/proc/" + number + "/task/" + number + "/children") >> child;
    return child;
}

/// Whether a process runs, or a thread of it that has a disk to wait for yet and its files open; one that has ended and
/// that nobody has asked for does not.
bool isRunning(pid_t process)
{
    const std::filesystem::path folder = "/proc/" + std::to_string(process);
    std::string text;
    std::getline(std::ifstream(folder / "stat"), text);
    const std::size_t name = text.rfind(") ");
    if (name == std::string::npos)
        return false;
    std::error_code gone;
    const std::filesystem::directory_iterator threads(folder / "task", gone);
    return text.substr(name + 2, 1) != "Z" || std::distance(begin(threads), end(threads)) > 1;
}

/// The stand-in host that types a whole luminaire into the wizard by real keys. A picture of each page is written once
/// all that belongs there stands on it.
class WalkKill : public testing::Test {
protected:
    WalkKill() { std::filesystem::create_directories(m_folder.file("walk")); }

    /// The walk keeps its settings and drafts in a temporary folder of its own.
    void startWalk()
    {
        std::filesystem::remove_all(temporary());
        std::filesystem::create_directories(temporary());
        m_begun = FileClock::now();
        m_host = std::make_unique<Process>(
            std::vector<std::string>{HOSTBENCH, "--walk", m_folder.file("walk")},
            Process::Environment{{"TMPDIR", temporary()}, {"LSAN_OPTIONS", "detect_leaks=0"}}, Process::Errors::Joined);
    }

    /// Walks to the last page; how long that took.
    Milliseconds walkToTheLastPage()
    {
        startWalk();
        EXPECT_TRUE(waitUntil([this] { return isWhole(kLastPage); }, 60s)) << m_host->readAll();
        const auto taken = std::chrono::duration_cast<Milliseconds>(FileClock::now() - m_begun);
        hold();
        killOne(false);
        m_whole = left();
        return taken;
    }

    /// Holds the host up until all that was typed has to be kept.
    void hold() const
    {
        m_host->signal(SIGSTOP);
        std::this_thread::sleep_for(killCost() + 500ms);
    }

    /// Lets the host type on for a while, then holds it up as a user does who looks into the papers.
    void pauseTyping(Milliseconds after) const
    {
        std::this_thread::sleep_for(after);
        m_host->signal(SIGSTOP);
        std::this_thread::sleep_for(800ms);
        m_host->signal(SIGCONT);
    }

    /// Kills the tool, or the host first; false when the walk had come to its end before. The host is held before the
    /// tool is killed: it would clear its folder.
    bool killOne(bool isHost)
    {
        const pid_t tool = childOf(m_host->pid());
        if (!isHost) {
            m_host->signal(SIGSTOP);
            if (tool > 0)
                ::kill(tool, SIGKILL);
        }
        m_killed = FileClock::now();
        m_isOver = tool == 0;
        EXPECT_TRUE(!m_isOver || writtenInThisWalk("walk/luminaire.ies") < m_killed) << "the tool went before its end";
        m_host->signal(SIGKILL);
        const bool isKilled = m_host->waitForEnd() != 0;
        EXPECT_TRUE(tool == 0 || waitUntil([&] { return !isRunning(tool); }, 60s)) << "an orphan stays behind";
        return isKilled;
    }

    /// What a run that is gone has left as a draft; nothing where there is none.
    Kept left() const
    {
        SqliteDraftStore store(drafts());
        const DraftsFound found = store.look();
        EXPECT_EQ(found.putAside, 0);
        Draft draft;
        if (!found.free.empty())
            EXPECT_EQ(store.takeOver(found.free[0].name, draft), TakeEnd::Taken);
        return keptOf(draft);
    }

    /// When all that belongs there stood on a page in this walk; never, where it did not.
    FileClock::time_point wholeSince(int page) const
    {
        return writtenInThisWalk("walk/page-" + std::to_string(page + 1) + ".png");
    }
    bool isWhole(int page) const { return wholeSince(page) < FileClock::now(); }

    /// Whether a page was whole so long before the kill that the draft must have it.
    bool isDue(int page) const { return wholeSince(page) + killCost() < m_killed; }

    /// Whether the host has taken the finished file, so that there is nothing to be lost any more. A walk that is over
    /// clears the folder of its drafts.
    bool isFinished() const { return m_isOver || SqliteDraftStore(drafts()).look().last.has_value(); }

    /// Whether a text is one on the way to the one that stood at the end: of a table each cell, of a box its beginning,
    /// of options and lists an entry before it, of the height what a flat shape before the chosen one writes there.
    bool isOnTheWay(const std::pair<int, std::string> &place, const std::string &text) const
    {
        const auto whole = m_whole.find(place);
        if (whole == m_whole.end())
            return place.second.ends_with(".editor");
        if (whole->second.starts_with(text) || std::set<std::string>{"-1", "0", "1", "2"}.contains(text) ||
            (place.second == "txtHeight" && text == " 0"))
            return true;
        std::set<std::string> known = cellsOf(whole->second);
        known.insert({"", " ", "0"});
        for (const std::string &cell : cellsOf(text))
            if (!known.contains(cell) && !isBuiltIn(cell))
                return false;
        return true;
    }

    /// Whether something has been typed and kept. A tool whose host goes before it could look for it has no host, and
    /// waits for one for minutes.
    bool hasDraft() const { return std::filesystem::is_directory(drafts()); }

    std::string drafts() const
    {
        for (const auto &entry : std::filesystem::directory_iterator(temporary()))
            if (const auto found = entry.path() / "Lumentor/drafts"; std::filesystem::exists(found))
                return found;
        return temporary() + "/none";
    }

    Kept m_whole;

private:
    /// Whether a text is one that a page begins with: a keyword line, the advice in a list.
    static bool isBuiltIn(const std::string &cell)
    {
        return cell.starts_with("[") || cell.starts_with("IES") || cell.starts_with("Type in a number");
    }

    static constexpr int kLastPage = 5;

    std::string temporary() const { return m_folder.file("tmp"); }

    /// When this walk has written a file; never, where it has not.
    FileClock::time_point writtenInThisWalk(const std::string &name) const
    {
        std::error_code missing;
        const auto written = std::filesystem::last_write_time(m_folder.file(name), missing);
        return !missing && written > m_begun ? written : FileClock::time_point::max() - 1h;
    }

    ReadBackFolder m_folder;
    std::unique_ptr<Process> m_host;
    FileClock::time_point m_begun;
    FileClock::time_point m_killed;
    bool m_isOver = false;
};

TEST_F(WalkKill, ofToolOrHostAtAnyMomentCostsTwoSecondsOfTypingAtMostAndNeverMakesAWrongValue)
{
    auto longest = static_cast<unsigned>(walkToTheLastPage().count() / 4);
    ASSERT_FALSE(m_whole.empty());
    std::mt19937 chance(20260514);
    for (int round = 0; round < killRounds(2); ++round) {
        startWalk();
        ASSERT_TRUE(waitUntil([this] { return hasDraft(); }, 60s)) << "nothing was typed";
        for (auto pauses = chance() % 4; pauses > 0; --pauses)
            pauseTyping(Milliseconds(chance() % longest));
        std::this_thread::sleep_for(Milliseconds(chance() % longest));
        if (!areKillsMeasured())
            hold();
        if (!killOne(round % 2 == 0)) {  // on a machine that has become less busy since
            longest = std::max(longest / 2, 1U);
            --round;
            continue;
        }
        const Kept kept = left();
        for (const auto &[place, text] : kept)
            EXPECT_TRUE(isOnTheWay(place, text)) << "round " << round << ": " << place.second << " holds " << text;
        if (isFinished())
            continue;
        for (const auto &[place, text] : m_whole)
            if (isDue(place.first)) {
                const auto found = kept.find(place);
                EXPECT_TRUE(found != kept.end() && found->second == text)
                    << "round " << round << ": " << place.second << " lacks " << text << ", is "
                    << (found == kept.end() ? "(none)" : found->second);
            }
    }
}

}  // namespace
}  // namespace penwright::test
