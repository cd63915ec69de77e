#include "draft/DraftKeeper.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>

#include "platform/RunTimeError.h"

namespace penwright::test {
namespace {

using namespace std::chrono_literals;

/// What the keeper's thread and the test share: what the store was told, and a gate that holds its next call up.
struct Notes {
    void add(const std::string &line)
    {
        std::unique_lock lock(mutex);
        ++arrived;
        changed.notify_all();
        changed.wait(lock, [this] { return !isHeld; });
        lines += line + "\n";
    }
    void hold(bool held)
    {
        const std::lock_guard lock(mutex);
        isHeld = held;
        changed.notify_all();
    }
    void waitForCalls(int count)
    {
        std::unique_lock lock(mutex);
        ASSERT_TRUE(changed.wait_for(lock, 60s, [&] { return arrived >= count; }));
    }
    std::string all()
    {
        const std::lock_guard lock(mutex);
        return lines;
    }

    std::mutex mutex;
    std::condition_variable changed;
    std::string lines;
    int arrived = 0;
    bool isHeld = false;
    std::string failure;  ///< what the store fails with
};

/// A store that notes what it is told.
class NotingStore : public DraftStore {
public:
    explicit NotingStore(std::shared_ptr<Notes> notes) : m_notes(std::move(notes)) {}

    DraftsFound look() override
    {
        m_notes->add("look");
        failIfWanted();
        return {.free = {{"one", {7, 1, "EL-1"}}}, .last = {}, .putAside = 2};
    }
    void write(const DraftHead &head, const DraftTextSource &texts) override
    {
        std::string line =
            "write " + std::to_string(head.time) + " page " + std::to_string(head.page) + " " + head.about;
        while (const auto text = texts())
            line += " " + std::to_string(text->page) + ":" + text->name + "=" + text->text;
        m_notes->add(line);
        failIfWanted();
    }
    TakeEnd takeOver(const std::string &name, Draft &draft) override
    {
        m_notes->add("take over " + name);
        failIfWanted();
        draft = {{7, 1, "EL-1"}, {{0, "box", "text"}}};
        return TakeEnd::Taken;
    }
    void discard(const DraftEntry &draft) override
    {
        m_notes->add("discard " + draft.name);
        failIfWanted();
    }
    void leave() override { m_notes->add("leave"); }
    void drop() override { m_notes->add("drop"); }
    void finish() override
    {
        m_notes->add("finish");
        failIfWanted();
    }
    std::optional<Draft> readLast() override
    {
        m_notes->add("read last");
        failIfWanted();
        return Draft{{3, 5, "EL-0"}, {}};
    }

private:
    void failIfWanted() const
    {
        if (!m_notes->failure.empty())
            throw RunTimeError(61, m_notes->failure);
    }

    std::shared_ptr<Notes> m_notes;
};

DraftSnapshot snapshot(const std::string &text)
{
    return {0, "EL-1", {{0, {{"box", [text] { return text; }}}}, {1, {}}, {2, {{"grid", [] { return "cells"; }}}}}};
}

class DraftKeeperTest : public testing::Test {
protected:
    /// Has what was delivered so far called, as the thread that asks does when it comes to it.
    void obey()
    {
        EXPECT_TRUE(keeper->flush(60s));
        std::vector<std::function<void()>> calls;
        {
            const std::lock_guard lock(mutex);
            calls.swap(delivered);
        }
        for (const auto &call : calls)
            call();
    }

    std::shared_ptr<Notes> notes = std::make_shared<Notes>();
    std::mutex mutex;
    std::vector<std::function<void()>> delivered;
    std::vector<std::string> troubles;
    std::int64_t now = 1000;
    std::unique_ptr<DraftKeeper> keeper = std::make_unique<DraftKeeper>(
        std::make_unique<NotingStore>(notes),
        [this](std::function<void()> call) {
            const std::lock_guard lock(mutex);
            delivered.push_back(std::move(call));
        },
        [this] { return now; }, [this](const std::string &reason) { troubles.push_back(reason); });
};

TEST_F(DraftKeeperTest, snapshotIsWrittenWithItsTimeAndTexts)
{
    keeper->keep(snapshot("a"));
    EXPECT_TRUE(keeper->flush(60s));
    EXPECT_EQ(notes->all(), "write 1000 page 0 EL-1 0:box=a 2:grid=cells\n");
}

TEST_F(DraftKeeperTest, olderSnapshotThatWaitsGivesWay)
{
    notes->hold(true);
    keeper->keep(snapshot("a"));
    notes->waitForCalls(1);
    for (const char *text : {"b", "c", "d"})
        keeper->keep(snapshot(text));
    notes->hold(false);
    EXPECT_TRUE(keeper->flush(60s));
    EXPECT_EQ(notes->all(),
              "write 1000 page 0 EL-1 0:box=a 2:grid=cells\nwrite 1000 page 0 EL-1 0:box=d 2:grid=cells\n");
}

TEST_F(DraftKeeperTest, keepingNeverWaitsForTheDisk)
{
    notes->hold(true);
    keeper->keep(snapshot("a"));
    notes->waitForCalls(1);
    keeper->keep(snapshot("b"));
    keeper->finish();
    EXPECT_FALSE(keeper->flush(20ms));
    EXPECT_EQ(notes->all(), "");
    notes->hold(false);
}

TEST_F(DraftKeeperTest, whatWasAskedIsDoneInItsOrder)
{
    notes->hold(true);
    keeper->keep(snapshot("a"));
    notes->waitForCalls(1);
    keeper->keep(snapshot("b"));
    keeper->finish();
    keeper->keep(snapshot("c"));
    keeper->leave();
    keeper->keep(snapshot("d"));
    keeper->drop();
    keeper->discard({"one", {}});
    notes->hold(false);
    EXPECT_TRUE(keeper->flush(60s));
    const std::string front = "write 1000 page 0 EL-1 0:box=";
    EXPECT_EQ(notes->all(), front + "a 2:grid=cells\n" + front + "b 2:grid=cells\nfinish\n" + front +
                                "c 2:grid=cells\nleave\n" + front + "d 2:grid=cells\ndrop\ndiscard one\n");
}

TEST_F(DraftKeeperTest, answersAreDeliveredAndNotCalledAtOnce)
{
    std::string told;
    keeper->look([&](const DraftsFound &found) {
        told += found.free.at(0).head.about + " " + std::to_string(found.putAside) + "\n";
    });
    keeper->takeOver("one", [&](const TakenDraft &taken) {
        told += taken.draft.texts.at(0).text + (taken.end == TakeEnd::Taken ? " taken\n" : " not\n");
    });
    keeper->readLast([&](const std::optional<Draft> &draft) { told += draft.value().head.about + "\n"; });
    EXPECT_TRUE(keeper->flush(60s));
    EXPECT_EQ(told, "");
    obey();
    EXPECT_EQ(told, "EL-1 2\ntext taken\nEL-0\n");
}

TEST_F(DraftKeeperTest, troubleIsToldOnceAndItsEndToo)
{
    notes->failure = "/f: disk is full";
    for (int i = 0; i < 3; ++i) {
        keeper->keep(snapshot("a"));
        obey();
    }
    EXPECT_EQ(troubles, std::vector<std::string>{"/f: disk is full"});
    notes->failure.clear();
    for (int i = 0; i < 3; ++i) {
        keeper->keep(snapshot("a"));
        obey();
    }
    EXPECT_EQ(troubles, (std::vector<std::string>{"/f: disk is full", ""}));
}

TEST_F(DraftKeeperTest, everyQuestionIsAnsweredThoughTheStoreFails)
{
    notes->failure = "/f: disk is gone";
    std::string told;
    keeper->look([&](const DraftsFound &found) { told += std::to_string(found.free.size()) + " found\n"; });
    keeper->takeOver("one", [&](const TakenDraft &taken) {
        told += (taken.end == TakeEnd::Failed ? "failed " : "not ") + std::to_string(taken.draft.texts.size()) + "\n";
    });
    keeper->readLast([&](const std::optional<Draft> &draft) { told += draft ? "a file\n" : "no file\n"; });
    obey();
    EXPECT_EQ(told, "0 found\nfailed 0\nno file\n");
}

TEST_F(DraftKeeperTest, failureOfAnythingButKeepingIsNoTrouble)
{
    notes->failure = "/f: disk is gone";
    keeper->look([](const DraftsFound &) {});
    keeper->discard({"one", {}});
    keeper->finish();
    obey();
    EXPECT_EQ(troubles, std::vector<std::string>());
    keeper->keep(snapshot("a"));
    obey();
    EXPECT_EQ(troubles, std::vector<std::string>{"/f: disk is gone"});
}

TEST_F(DraftKeeperTest, endWritesWhatWaits)
{
    keeper->keep(snapshot("a"));
    keeper.reset();
    EXPECT_EQ(notes->all(), "write 1000 page 0 EL-1 0:box=a 2:grid=cells\n");
}

TEST_F(DraftKeeperTest, endDoesNotWaitForADiskThatHangs)
{
    notes->hold(true);
    keeper->keep(snapshot("a"));
    notes->waitForCalls(1);
    keeper->keep(snapshot("b"));
    keeper.reset();
    EXPECT_EQ(notes->all(), "");
    notes->hold(false);
}

}  // namespace
}  // namespace penwright::test
