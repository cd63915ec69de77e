#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "draft/PageValue.h"
#include "platform/DraftStore.h"

namespace penwright {

/// What one page holds, by the page's index.
struct HeldPage {
    int page = 0;
    PageValue value;
};

/// Everything that is typed, at one moment: what a draft is made of.
struct DraftSnapshot {
    int page = 0;         ///< index of the page shown
    std::string about{};  ///< what the file is about, "" when nothing of it was typed
    std::vector<HeldPage> pages{};
};

/// A draft that was wanted, and how that ended; it is empty unless it was taken.
struct TakenDraft {
    TakeEnd end = TakeEnd::Gone;
    Draft draft{};
};

/// Keeps what is typed in a store of drafts, on a thread of its own: no call but `flush` waits for the disk. What is
/// asked for is done in the order of asking. Answers come by the `Deliver` that it is made with, each once.
class DraftKeeper {
public:
    /// Has a call made later, on the thread that asks; never at once.
    using Deliver = std::function<void(std::function<void()>)>;

    /// The seconds since 1970.
    using Clock = std::function<std::int64_t()>;

    /// Told once when drafts cannot be written any more, with the reason, and with "" when they can again.
    using Trouble = std::function<void(const std::string &)>;

    /// Has the store for itself from here on.
    DraftKeeper(std::unique_ptr<DraftStore> store, Deliver deliver, Clock clock, Trouble trouble);
    DraftKeeper(const DraftKeeper &) = delete;
    DraftKeeper &operator=(const DraftKeeper &) = delete;

    /// Does what was asked for, for two seconds at most: a disk that hangs does not hold up the end of the program.
    ~DraftKeeper();

    /// Writes a snapshot as the run's draft. One that waits to be written gives way to it. Its texts are made on the
    /// keeper's thread.
    void keep(DraftSnapshot snapshot);

    /// Looks for drafts and the last finished file; none are found when that fails.
    void look(const std::function<void(DraftsFound)> &answer);

    /// Makes a free draft the run's own and reads it.
    void takeOver(const std::string &name, const std::function<void(TakenDraft)> &answer);

    /// Reads the last finished file; nothing when there is none that is understood, or when that fails.
    void readLast(const std::function<void(std::optional<Draft>)> &answer);

    /// Deletes a free draft that is as it was found.
    void discard(const DraftEntry &draft);

    /// Leaves the run's own draft as a free one; what is kept next is another.
    void leave();

    /// Deletes the run's own draft.
    void drop();

    /// Makes the run's own draft the last finished file.
    void finish();

    /// Waits until all that was asked for is done; false when that takes longer than `limit`.
    bool flush(std::chrono::milliseconds limit);

private:
    struct Desk;
    struct Job;

    void ask(Job job);
    static void work(const std::shared_ptr<Desk> &desk);

    std::shared_ptr<Desk> m_desk;  ///< shared with the thread, which may outlive the keeper
    Clock m_clock;
    std::thread m_thread;
};

}  // namespace penwright
